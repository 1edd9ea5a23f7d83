#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "platform/pde/PDEJobValues.h"
#include "platform/printcore/Ppd.h"

namespace corvana {

/// What a printer makes of one value of a job attribute for which PPDs have options.
struct AttributeChoices
{
    enum class Outcome {
        Choices,   ///< choices of the PPD stand for it, so that these are marked and sent
        Attribute, ///< CUPS' filters follow the attribute itself, or it asks for nothing new
        Refused,   ///< nobody would do anything
    };
    Outcome outcome = Outcome::Refused;
    QList<JobOption> choices{};
    QString allowed{}; ///< of a refusal: the values that would be taken; empty for none
};

/// Whether the pages of jobs pass the filter that makes PostScript of them. It is the one filter
/// that turns pages grey because the job says so, whatever the PPD has.
bool getsPostScript(ppd_file_t *ppd);

/// The job attributes of lp and IPP that CUPS' filters look for among the options of the PPD:
/// "print-color-mode", "print-quality", "output-bin" and so on.
///
/// What an attribute stands for is asked of libcups itself, which the filters ask as well. So the
/// dialog marks what would be printed, and its panels, its summary and the job say the same.
///
/// Borrows the PPD, whose marks are afterwards what they were before. `jobValues` may be null; a
/// plug-in may know options of its printers that libcups does not.
class AttributeReader
{
public:
    AttributeReader(ppd_file_t *ppd, const PDEJobValues *jobValues);

    static bool isFor(const QString &attribute);
    static QStringList attributes();

    /// What one attribute stands for. `others` are what else is asked for at the same time: draft
    /// quality may be another choice in colour than in black and white.
    AttributeChoices read(const JobOption &attribute, const QList<JobOption> &others = {}) const;

    /// Whether the marks of the PPD ask for pages in black and white.
    bool isMonochromeMarked() const;

    /// The source or the type of paper that a part of "media=A4,Upper,Glossy" names; empty for
    /// neither.
    QList<JobOption> sourceOrType(const QString &media) const;

private:
    AttributeChoices readColorMode(const QString &mode) const;
    AttributeChoices readQuality(const QString &quality, const QList<JobOption> &others) const;
    AttributeChoices readFinishings(const QString &finishings) const;
    QList<JobOption> choicesOf(const JobOption &attribute) const;
    QString choicesAllowedFor(const QString &attribute) const;

    QList<JobOption> colorModeChoices(const QString &mode) const;
    QList<JobOption> qualityChoices(const QString &mode, const QString &quality) const;
    JobOption otherThan(const JobOption &choice) const;
    bool isMarked(const QList<JobOption> &choices) const;

    ppd_file_t *m_ppd;
    const PDEJobValues *m_jobValues;
};

} // namespace corvana
