#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "platform/printcore/Ppd.h"
#include "platform/printcore/PrintSettings.h"

namespace corvana {

/// One option of a job, as CUPS takes it: keyword and choice, `Custom.N`, or a job attribute.
struct JobOption
{
    QString name;
    QString value;

    bool operator==(const JobOption &) const = default;
};

/// What became of one option offered to the plug-in.
struct JobValueClaim
{
    enum class Outcome {
        NotMine,  ///< the plug-in keeps no value of that name; nothing was written
        Accepted, ///< the entries were written
        Refused,  ///< one of the plug-in's own, but the value cannot be taken; nothing was written
    };

    Outcome outcome = Outcome::NotMine;
    /// What an accepted option is in the job from now on, in the form that jobOptions() or the
    /// PPD's mark gives it; so that the host can tell whether the panels left it at that.
    JobOption standsFor;
    /// The values that would have been taken, for the message of a refusal ("1 to 99").
    QString allowed;
};

/// An entry of the print settings in which panels keep a value of their own.
struct PanelEntry
{
    QString key;
    QVariant value;      ///< in the one form in which equal values are equal, stored or not
    QStringList options; ///< of a job, that say it while it is in force

    bool operator==(const PanelEntry &) const = default;
};

/// The optional part of the contract: values that the panels keep in print settings entries of
/// their own, beside the PPD's choices. With it a host carries them into a job, and options of a
/// command line or a preset into the entries, without knowing a single key.
///
/// Ownership: part of the principal object. Thread: GUI thread only.
class PDEJobValues
{
public:
    PDEJobValues() = default;
    PDEJobValues(const PDEJobValues &) = delete;
    PDEJobValues &operator=(const PDEJobValues &) = delete;
    virtual ~PDEJobValues() = default;

    /// The job options that the entries stand for: each in a form that the PPD defines and inside
    /// the declared range, else as a plain job attribute; a value that is not in force gives its
    /// default. An option named here replaces the PPD's mark of the same keyword.
    virtual QList<JobOption> jobOptions(const PrintSettings &settings, ppd_file_t *ppd) const = 0;

    /// Takes one option into the entries when it is one of the plug-in's own.
    virtual JobValueClaim takeJobOption(const JobOption &option, PrintSettings &settings,
                                        ppd_file_t *ppd) const = 0;

    /// The PPD choices that the stored entries imply (a manual sleep time implies the choice
    /// "Custom"); the host marks them before it builds panels and after it changed entries.
    virtual QList<JobOption> impliedMarks(const PrintSettings &settings, ppd_file_t *ppd) const = 0;

    /// Options that say the same as one that was just marked, in another form, and the choices that
    /// they must have now. The host marks those that the PPD has and corrects the entries of those
    /// that it lacks: a panel reads either form, and a stale one would bring the former choice back
    /// at every restore. Empty for most options.
    virtual QList<JobOption> companions([[maybe_unused]] const JobOption &marked,
                                        [[maybe_unused]] const PrintSettings &settings,
                                        [[maybe_unused]] ppd_file_t *ppd) const
    {
        return {};
    }

    /// The choices of the PPD that say the same as one value of a standard job attribute
    /// ("print-color-mode=monochrome"), where an option has a name of the printers' own. Empty for
    /// every other attribute and value, and without such an option. The values are those of IPP, or
    /// keywords of choices, in any case; of the attributes "print-color-mode", "media-source",
    /// "media-type" and "printer-resolution".
    virtual QList<JobOption> choicesFor([[maybe_unused]] const JobOption &attribute,
                                        [[maybe_unused]] ppd_file_t *ppd) const
    {
        return {};
    }

    /// The values that panels keep for a job of this printer, those that are not in force among
    /// them, and those that were never stored as what that means. A host may write them into the
    /// settings of a later job. Whatever else panels store is how they look, such as what is
    /// disclosed, and belongs to no job. Empty: only what jobOptions() names can be kept.
    virtual QList<PanelEntry> entries([[maybe_unused]] const PrintSettings &settings,
                                      [[maybe_unused]] ppd_file_t *ppd) const
    {
        return {};
    }

    /// Options that set up the device rather than a job, such as a time until it sleeps. A host
    /// keeps them for later jobs only where the user says so.
    virtual QStringList deviceOptions() const { return {}; }

    /// The option of the PPD by which a user chooses whether the job is in color, for hosts that
    /// offer it beside copies and paper as well, where people look for it: by keyword. The panels
    /// hear of what is chosen there as of any change elsewhere. Null: there is none.
    virtual QString colorOption([[maybe_unused]] ppd_file_t *ppd) const { return {}; }
};

} // namespace corvana
