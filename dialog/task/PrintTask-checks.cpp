#include "dialog/task/PrintTask.h"

#include <algorithm>
#include <utility>

#include "dialog/documents/DocumentTexts.h"
#include "dialog/job/FilterPlan.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;
using Kind = DocumentState::Kind;

namespace {

// Whether a password would help.
bool wantsPassword(const DocumentState &state)
{
    return state.kind == Kind::Locked || state.kind == Kind::Forbidden;
}

QString detailsOf(const Document &document, const DocumentState &state)
{
    return state.details.isEmpty()
               ? QString()
               : u"%1: %2"_s.arg(terminalLine(document.path), terminalLine(state.details));
}

// Of documents with commands to a printer, what was not said yet.
QStringList lostCommands(const QList<Document> &documents, QStringList &told)
{
    QStringList notes;
    for (const Document &document : documents) {
        const QString note = commandsNote(document);
        if (note.isEmpty() || told.contains(document.path + note))
            continue;
        told += document.path + note;
        notes += note;
    }
    return notes;
}

} // namespace

void PrintTask::documentsLookedAt()
{
    // A face asks once; what is locked is counted when it was unlocked.
    if (m_looks.countsThen && documentsCanBeCounted())
        countSheets();
    else
        Q_EMIT sheetsCounted(); // why there are none
    if (isPreparing() && m_looks.printsThen) {
        m_looks.printsThen = false;
        if (documentsAreReady())
            goOnWithJob();
        return;
    }
    if (m_phase != Phase::Ready)
        return;
    sayOfDocuments();
    if (std::exchange(m_looks.printsThen, false))
        return print();
    askForPasswords();
}

// What of a document comes out otherwise than it was meant; empty where nothing does.
QString PrintTask::damageOf(const Document &document) const
{
    const DocumentState state = m_looks.documents.stateOf(document);
    if (!state.isDamaged)
        return {};
    const QString loss = documentLoss(document.title, state);
    // What is said of a copy without a password is not about its pages.
    const bool isSaidOfDamage = loss.isEmpty() && !state.isUnlocked;
    return isSaidOfDamage ? documentNote(document.title, state, PrintsTo::File) : loss;
}

// Once for each of them.
void PrintTask::sayOfDocuments()
{
    const PrintsTo to = printsTo();
    QStringList notes =
        passesFilesOn() ? QStringList() : lostCommands(m_request.documents, m_looks.told);
    QStringList warnings;
    QStringList details;
    QString damaged;
    for (const Document &document : std::as_const(m_request.documents)) {
        const DocumentState state = m_looks.documents.stateOf(document);
        const QString note = documentNote(document.title, state, to);
        const QString warning = documentLoss(document.title, state);
        const QString text = note.isEmpty() ? warning : note;
        if (text.isEmpty() || m_looks.told.contains(document.path + text))
            continue;
        m_looks.told += document.path + text;
        (note.isEmpty() ? warnings : notes) += text;
        if (damaged.isEmpty() && !damageOf(document).isEmpty())
            damaged = document.path;
        if (const QString detail = detailsOf(document, state); !detail.isEmpty())
            details += detail;
    }
    for (const QString &note : std::as_const(notes))
        Q_EMIT noted(note);
    if (notes.isEmpty() && warnings.isEmpty())
        return;
    TaskMessage message;
    message.kind = warnings.isEmpty() ? TaskMessage::Kind::Information : TaskMessage::Kind::Problem;
    message.text = (warnings + notes).join(u'\n');
    message.details = details.join(u'\n');
    if (!damaged.isEmpty()) {
        message.offer = tr("Show Its First Sheet");
        message.staysWithoutPrinter = true;
        message.take = [this, damaged] { Q_EMIT sheetWanted(damaged); };
    }
    Q_EMIT said(message);
}

// A script cannot be asked, and has another way to say it.
QString PrintTask::problemOf(const Document &document) const
{
    const DocumentState state = m_looks.documents.stateOf(document);
    const QString problem = documentProblem(document.title, state);
    const bool needsHint =
        wantsPassword(state) && !m_chosen.canBeAnother && !m_request.documentPassword;
    return needsHint ? tr("%1 %2", "two sentences")
                           .arg(problem, tr("Give the password with --document-password-file."))
                     : problem;
}

TaskRefusal PrintTask::documentProblems() const
{
    TaskRefusal refusal;
    QStringList details;
    for (const Document &document : m_request.documents) {
        const QString problem = problemOf(document);
        if (problem.isEmpty())
            continue;
        refusal.problems += problem;
        const QString detail = detailsOf(document, m_looks.documents.stateOf(document));
        if (!detail.isEmpty())
            details += detail;
    }
    refusal.details = details.join(u'\n');
    return refusal;
}

// Whoever has given one in advance does not sit there.
bool PrintTask::mayAskForPassword() const
{
    return m_face.canAsk() && (m_chosen.canBeAnother || !m_request.documentPassword);
}

// Of documents that were looked into, whether all can be printed. Else that was said, or is being
// asked, and printing goes on with the answer.
bool PrintTask::documentsAreReady()
{
    if (m_looks.isAsking) {
        m_looks.printsThen = true;
        return false;
    }
    for (const Document &document : std::as_const(m_request.documents)) {
        if (m_looks.documents.stateOf(document).kind != Kind::Locked || !mayAskForPassword())
            continue;
        m_looks.printsThen = true;
        askForPassword(document);
        return false;
    }
    // The way out is offered again with the words that it had before.
    for (const Document &document : std::as_const(m_request.documents)) {
        if (m_looks.documents.stateOf(document).kind != Kind::Forbidden || !mayAskForPassword())
            continue;
        m_looks.printsThen = true;
        passwordDeclined(document);
        return false;
    }
    const TaskRefusal refusal = documentProblems();
    if (!refusal.problems.isEmpty()) {
        refuseDocuments(refusal);
        return false;
    }
    // They may go elsewhere than when it was said.
    sayOfDocuments();
    if (mayPrintWithoutLostPages())
        return true;
    refuseDocuments({{}, TaskRefusal::Place::Nowhere, true});
    return false;
}

bool PrintTask::documentsCanBeCounted() const
{
    return m_looks.documents.isDone() && documentProblems().problems.isEmpty();
}

void PrintTask::refuseDocuments(const TaskRefusal &refusal)
{
    const bool wasPreparing = isPreparing();
    if (wasPreparing)
        enter(Phase::Ready);
    Q_EMIT refused(refusal);
    if (wasPreparing)
        takeNext();
}

bool PrintTask::mayPrintWithoutLostPages()
{
    QStringList losses;
    for (const Document &document : std::as_const(m_request.documents)) {
        const QString loss = documentLoss(document.title, m_looks.documents.stateOf(document));
        if (!loss.isEmpty())
            losses += loss;
    }
    return losses.isEmpty() || m_face.mayPrintWithout(losses.join(u'\n'));
}

// For somebody who sits there, one document after the other.
void PrintTask::askForPasswords()
{
    if (!m_chosen.canBeAnother || !mayAskForPassword() || m_looks.isAsking)
        return;
    for (const Document &document : std::as_const(m_request.documents)) {
        const DocumentState state = m_looks.documents.stateOf(document);
        if (m_looks.declined.contains(document.path))
            continue;
        if (state.kind == Kind::Locked || (state.kind == Kind::Forbidden && state.isPasswordWrong))
            return askForPassword(document);
        // Who may not print it learns so at once, and is asked for the owner's password only when
        // he has it.
        if (!documentProblem(document.title, state).isEmpty())
            return passwordDeclined(document);
    }
}

void PrintTask::askForPassword(const Document &document)
{
    const DocumentState state = m_looks.documents.stateOf(document);
    m_looks.isAsking = true;
    m_looks.declined.removeAll(document.path);
    m_face.askDocumentPassword(
        {document.title, state.kind == Kind::Forbidden, state.isPasswordWrong},
        [this, document](const std::optional<QString> &password) {
            m_looks.isAsking = false;
            if (!m_request.documents.contains(document))
                return;
            if (password)
                m_looks.documents.unlock(document, *password);
            else
                passwordDeclined(document);
        });
}

void PrintTask::passwordDeclined(const Document &document)
{
    m_looks.declined += document.path;
    const DocumentState state = m_looks.documents.stateOf(document);
    const bool wasToBePrinted = std::exchange(m_looks.printsThen, false);
    TaskMessage message{TaskMessage::Kind::Problem, problemOf(document)};
    message.details = detailsOf(document, state);
    if (wantsPassword(state) && mayAskForPassword()) {
        message.offer = state.kind == Kind::Locked ? tr("Enter the Password…")
                                                   : tr("Enter the Owner's Password…");
        message.take = [this, document] {
            if (!m_looks.isAsking && m_request.documents.contains(document))
                askForPassword(document);
        };
    }
    // In the place of what was said of the others, such as that one goes out unprotected.
    m_looks.told.clear();
    Q_EMIT said(message);
    if (wasToBePrinted)
        refuseDocuments({{message.text}, TaskRefusal::Place::Nowhere, true, message.details});
}

// What was unlocked, repaired or turned is printed instead of the file that was chosen. Where
// nobody but the printer reads it, a picture is that file, and commands to the printer reach it.
QList<Document> PrintTask::printedDocuments() const
{
    QList<Document> printed;
    const bool areFiles = m_opened && passesFilesOn();
    for (const Document &document : m_request.documents) {
        printed += areFiles && isPicture(document) ? document : m_looks.documents.printed(document);
        if (areFiles && !document.original.isEmpty())
            printed.last().path = document.original;
    }
    return printed;
}

} // namespace corvana
