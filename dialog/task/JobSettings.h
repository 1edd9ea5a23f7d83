#pragma once

#include <optional>
#include <utility>

#include <QList>
#include <QString>

#include "dialog/session/OptionLocks.h"
#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// A setting that a choice of another one has taken along.
struct TakenAlong
{
    QString name{};   ///< of an attribute, or the keyword of an option
    QString former{}; ///< its value before; null: none
    QString now{};

    bool operator==(const TakenAlong &) const = default;
};

/// What belongs to the job rather than to its printer: copies, pages, and the job attributes that
/// no page offers. Copies and pages go along when the user chooses another printer.
///
/// A plain value; knows no session and no widget.
class JobSettings
{
public:
    /// Who asks for something. A later one counts more; startLayers() says where each one's wishes
    /// come from.
    enum class By {
        Program,
        Queue,
        UserQueues,
        Policy,
        LastUsed,
        Preset,
        Options,
        CommandLine,
        User
    };

    /// Takes a number of copies, unless somebody who counts more has asked already.
    /// Range: 1 and more.
    void askForCopies(int copies, By by);
    /// The number of copies that this printer makes: what was asked for, or its most.
    int copies() const;
    /// What was asked for, and by whom, whatever the printer makes.
    int copiesAskedFor() const;
    By copiesAskedForBy() const { return m_by; }
    bool asksForTooMany() const { return m_mostCopies > 0 && copiesAskedFor() > m_mostCopies; }
    /// How many copies the printer makes at once; 0: as many as anybody can ask for.
    void setMostCopies(int copies) { m_mostCopies = copies; }
    int mostCopies() const { return m_mostCopies; }

    /// The pages to print ("1-4,7"), as typed, less blanks; empty for all.
    QString pageRanges() const;
    void setPageRanges(const QString &ranges);
    bool hasValidPageRanges() const;

    /// Keeps attributes, and the number of copies, at what an administrator has chosen, whatever
    /// anybody asks for; those of a session, until the printer is left.
    void setLocks(const OptionLocks &locks) { m_locks = locks; }
    /// Who keeps an attribute at what it is: a file and a line; null: nobody does.
    QString lockedBy(const QString &name) const { return m_locks.value(name).by; }

    /// Adds job attributes, each in place of a former one of the same name.
    void addAttributes(const QList<JobOption> &attributes);
    /// The attributes of the job, its pages among them.
    QList<JobOption> attributes() const;
    /// The value of an attribute that is in force; null where nobody asks for one.
    QString attribute(const QString &name) const;
    /// The user chooses a value, which counts most; null: none. One that is usual is kept where it
    /// was chosen over another one. `usual`: on this printer, where that is not what is usual
    /// anywhere.
    void setAttribute(const QString &name, const QString &value, const QString &usual = {});
    /// The attributes that were added, whatever the user has chosen since.
    const QList<JobOption> &attributesOfOthers() const { return m_attributes; }
    /// What the user has chosen himself, with a null value for an attribute that he wants none of.
    const QList<JobOption> &chosenAttributes() const { return m_chosen; }
    /// Takes choices of the user's back that were kept with their printer.
    void restoreChosenAttributes(const QList<JobOption> &chosen) { m_chosen = chosen; }

    /// What the order of pages has taken along, to be given back with it.
    void noteTakenAlong(const TakenAlong &taken) { m_takenAlong += taken; }
    const QList<TakenAlong> &takenAlong() const { return m_takenAlong; }
    void restoreTakenAlong(const QList<TakenAlong> &taken) { m_takenAlong = taken; }
    QList<TakenAlong> takeBackTakenAlong() { return std::exchange(m_takenAlong, {}); }
    /// Somebody has chosen it since: it stays.
    void keepTakenAlong(const QString &name);

    /// Takes the attributes of other settings, whoever asked for them, in place of these. Copies
    /// and pages stay.
    void takeAttributesOf(const JobSettings &other);

    /// The printer is left: what was asked for only by its own options stays behind.
    void leavePrinter();

    bool operator==(const JobSettings &) const = default;

private:
    int m_copies = 1;
    By m_by = By::Program;
    int m_mostCopies = 0;
    std::optional<QString> m_pageRanges; // as the user left them
    QList<JobOption> m_attributes;
    QList<JobOption> m_chosen; // by the user, in place of those
    OptionLocks m_locks;       // over all of them
    QList<TakenAlong> m_takenAlong;
};

} // namespace corvana
