#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

#include "dialog/session/OptionLocks.h"
#include "dialog/session/PpdFile.h"
#include "platform/printcore/PageFormat.h"
#include "platform/printcore/PrintSettings.h"

namespace corvana {

/// One option and one of its choices.
struct OptionChoice
{
    QString keyword;
    QString choice;

    bool operator==(const OptionChoice &) const = default;
};

/// Everything that a user can change in one session, as one value: what undo, Cancel, presets and
/// failures restore, and what is compared to find out what one event has changed.
struct SessionSnapshot
{
    QMap<QString, QString> marks;        ///< option keyword to marked choice
    QMap<QString, QString> customValues; ///< option keyword to "Custom.…"
    QVariantMap entries;                 ///< the print settings
    PageFormat pageFormat;

    bool operator==(const SessionSnapshot &) const = default;
};

/// A choice that was refused, and the marked choices that it collides with; none where libcups does
/// not take it from this PPD, or where it is an administrator's to choose.
struct Refusal
{
    OptionChoice proposed;
    QList<OptionChoice> conflicting;
    OptionChoice locked{}; ///< the choice of an administrator's that it would move

    bool operator==(const Refusal &) const = default;
};

/// What became of one change.
struct ChangeResult
{
    enum class Outcome {
        Accepted,
        UnknownOption,
        UnknownChoice,
        Conflict,
        NotMarked, ///< libcups does not take it from this PPD
        Locked,    ///< an administrator has chosen
    };

    Outcome outcome = Outcome::Accepted;
    QList<OptionChoice> conflicting; ///< the marked choices in the way of a conflict
    OptionChoice locked{};           ///< the choice of an administrator's that it would move

    bool accepted() const { return outcome == Outcome::Accepted; }
};

/// The state of one job for one printer: the marks of its PPD, the print settings that record them,
/// and the page format that follows from the paper size. Knows no widget and no panel.
///
/// Every marked choice stands in the print settings under its option's keyword, from the opening
/// on. Thread: GUI thread only.
class PpdSession : public QObject
{
    Q_OBJECT

public:
    /// Who proposes a change.
    enum class Origin { Dialog, Panel };

    /// Errors: null; `error` says what is wrong with the PPD.
    static std::unique_ptr<PpdSession> open(const QString &ppdPath, QString *error);
    /// Takes over an opened PPD with its marks.
    explicit PpdSession(PpdFile ppd);

    /// To be read; who marks in it for a moment takes that back at once.
    ppd_file_t *ppd() const { return m_ppd.get(); }
    PrintSettings &printSettings() { return m_printSettings; }
    const PrintSettings &printSettings() const { return m_printSettings; }
    const PageFormat &pageFormat() const { return m_pageFormat; }

    /// The PPD's options that a user can choose, in the PPD's order; the page region, which follows
    /// the page size, is none.
    QList<ppd_option_t *> options() const;
    /// Null when nothing is marked.
    QString markedChoice(const QString &keyword) const;
    /// The custom value of an option that is marked "Custom" ("Custom.100x200mm"); null otherwise.
    QString customValue(const QString &keyword) const { return m_customValues.value(keyword); }

    /// Whether an option is at another choice than the printer's default. False where the PPD names
    /// no default that is one of the option's choices.
    bool differsFromDefault(const QString &keyword) const;

    /// Marks a choice and records it, unless it is unknown or a constraint of the PPD refuses it.
    /// A custom value is written `Custom.…` and must have been checked (see CustomValue.h).
    ChangeResult change(const QString &keyword, const QString &choice, Origin origin);

    /// Marks several choices together: only the set as a whole must be free of conflicts.
    /// Errors: the conflicts of the set, and what libcups did not mark; nothing is changed then.
    /// Unknown names must have been refused before.
    QList<Refusal> changeTogether(const QList<OptionChoice> &choices);

    /// What changeTogether() would refuse; nothing is changed, and nobody hears of it.
    QList<Refusal> refusalsOf(const QList<OptionChoice> &choices);

    /// Options that say the same as a choice in another form, with the choices that they would get.
    using Companions = std::function<QList<OptionChoice>(const OptionChoice &)>;
    /// Keeps options at what they are: no change, restored state or companion of a choice moves
    /// them from here on. What is to be marked is marked already.
    void setLocks(const OptionLocks &locks, const Companions &companions = {});
    const OptionLocks &locks() const { return m_locks; }
    /// Who keeps an option at what it is: a file and a line; null: nobody does.
    QString lockedBy(const QString &keyword) const { return m_locks.value(keyword).by; }

    /// Other choices that make room for the proposed one; empty when there are none.
    QList<OptionChoice> wayOut(const OptionChoice &proposed);

    /// The marked choices that collide with a choice, marked or not; empty when none does.
    QList<OptionChoice> conflictsOf(const OptionChoice &choice) const;

    SessionSnapshot snapshot() const;
    /// Goes back to an earlier state of this session.
    void restore(const SessionSnapshot &snapshot);

    /// The refusals of panel proposals since the last call, less those that the panel itself
    /// replaced by a choice which was accepted.
    QList<Refusal> takeRefusals();

Q_SIGNALS:
    /// A choice was marked that was not marked before.
    void changed(const QString &keyword, const QString &choice, Origin origin);
    /// A panel's proposal collides with other marks; takeRefusals() tells which.
    void refused();
    /// The paper is another one; everything else is already up to date.
    void paperChanged();
    /// An entry of the print settings is another one.
    void entriesChanged();

private:
    bool mark(const QString &keyword, const QString &choice);
    QList<Refusal> markTogether(const QList<OptionChoice> &choices);
    /// The paper first: what else is possible may depend on it.
    static QList<OptionChoice> inOrder(QList<OptionChoice> choices);
    void unmark(const QString &keyword);
    QMap<QString, QString> allMarks() const;
    void recordMarks();
    bool updatePageFormat();
    void setDuplex(PMDuplexMode mode);
    ChangeResult refuse(const ChangeResult &result, const OptionChoice &proposed, Origin origin);
    OptionChoice lockInTheWay(const OptionChoice &proposed) const;
    OptionChoice movedLock() const;
    void markLocks();
    QList<OptionChoice> followHandFeed(const QString &keyword, const QString &handFeed);
    QList<OptionChoice> trayBack(const QList<OptionChoice> &set, const SessionSnapshot &before);

    PpdFile m_ppd;
    /// What is marked, from the first question after a mark on: one change asks many times.
    mutable std::optional<QMap<QString, QString>> m_allMarks;
    PrintSettings m_printSettings;
    PageFormat m_pageFormat;
    QMap<QString, QString> m_customValues;
    QMap<QString, Refusal> m_refusals;
    OptionLocks m_locks;
    Companions m_companions;
};

} // namespace corvana
