#pragma once

#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include "platform/pde/PDEJobValues.h"
#include "platform/printcore/Ppd.h"

namespace corvana {

class PpdSession;

/// Settings of a job that can be kept for a later one. No documents, pages, copies, files or
/// passwords are among them.
struct PresetContent
{
    /// Options of the printer by their keywords, as a job carries them: a choice, or "Custom.…"
    /// with the whole value. The values of the panels' own that are in force are among them.
    QMap<QString, QString> options;
    /// The panels' own values by their keys, those that are not in force among them.
    QVariantMap entries;
    /// Attributes of the job by their names; a null value: none, where there would be one.
    QMap<QString, QString> attributes;

    bool operator==(const PresetContent &) const = default;
    bool isEmpty() const { return options.isEmpty() && entries.isEmpty() && attributes.isEmpty(); }
    QList<JobOption> jobOptions() const;
};

/// What of a session and of a job's attributes can be kept; with what sets up the device where
/// `withDevice` is true. `jobValues` may be null.
PresetContent contentOf(const PpdSession &session, const PDEJobValues *jobValues,
                        const QList<JobOption> &attributes, bool withDevice);

/// Content without what sets up the device, which a file may name although it says that it does
/// not.
PresetContent withoutDevice(PresetContent content, const PpdSession &session,
                            const PDEJobValues *jobValues);

/// The options of a printer that are never kept: passwords and what is built into it. The answer
/// counts until the next call.
const QSet<QString> &neverKept(const PpdSession &session);

/// The values that the panels keep for a job of a session. `jobValues` may be null.
QList<PanelEntry> panelEntries(const PpdSession &session, const PDEJobValues *jobValues);

/// What of `now` has another value in `before`; an attribute that only `before` has is named with
/// a null value.
PresetContent changesIn(const PresetContent &now, const PresetContent &before);

/// `content` with what is in `changes` in its place.
PresetContent withChanges(PresetContent content, const PresetContent &changes);

/// `now` with the values of `before` in the place of those that were asked for between `before` and
/// `started` and are still in force: nobody changed them who sits here.
PresetContent withoutRequest(PresetContent now, const PresetContent &before,
                             const PresetContent &started);

/// Content without what is no wish for the next job: where it waits, what goes before it, a page
/// that is mirrored.
PresetContent withoutWishesForOneJob(PresetContent content);

/// Keywords of options and names of attributes; those of the options that a panel's value is said
/// by.
QStringList namesIn(const PresetContent &content, const QList<PanelEntry> &entries);

/// Whether an attribute of a job can be kept: it chooses no pages, and counts no copies.
bool isKept(const QString &attribute);

/// By what the model of a printer is known: the name that its PPD gives it, one line, bounded.
/// Drivers that are renewed keep it, where the name of the driver itself has a version in it.
QString modelOf(ppd_file_t *ppd);

} // namespace corvana
