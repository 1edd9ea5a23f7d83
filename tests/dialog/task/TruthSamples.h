#pragma once

#include <QList>
#include <QString>

#include "dialog/job/Document.h"
#include "platform/pde/PDEJobValues.h"

namespace corvana::test {

/// Documents of all kinds and layouts of all kinds, for whoever tries each with the others.

struct NamedLayout
{
    QString name;
    QList<JobOption> options;
};

/// Each control. Values of one control stand in a list of their own: a pair has two controls.
QList<QList<NamedLayout>> controls();
/// One option of a job.
NamedLayout layout(const char *name, const char *value);
/// One layout with the other one.
NamedLayout operator+(const NamedLayout &one, const NamedLayout &other);

enum class Kind {
    A4,
    Single, // page
    Letter,
    Landscape,
    Mixed,
    Rotated,
    Cropped,
    Portrait, // a picture
    Wide,     // a picture
    Text,
    PostScript,
    MixedPostScript,
    Several,
    Long,
    VeryLong,
};

struct NamedKind
{
    const char *name;
    Kind kind;
};
inline constexpr NamedKind kKinds[] = {
    {"A4", Kind::A4},
    {"one page", Kind::Single},
    {"Letter", Kind::Letter},
    {"landscape", Kind::Landscape},
    {"mixed", Kind::Mixed},
    {"rotated", Kind::Rotated},
    {"cropped", Kind::Cropped},
    {"picture", Kind::Portrait},
    {"wide picture", Kind::Wide},
    {"text", Kind::Text},
    {"PostScript", Kind::PostScript},
    {"mixed PostScript", Kind::MixedPostScript},
    {"several", Kind::Several},
    {"60 pages", Kind::Long},
    {"500 pages", Kind::VeryLong},
};

/// The documents of a kind, written into a folder.
QList<Document> documentsOf(Kind kind, const QString &folder);

} // namespace corvana::test
