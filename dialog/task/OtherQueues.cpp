#include "dialog/task/OtherQueues.h"

#include <algorithm>
#include <chrono>
#include <memory>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>

#include "dialog/printers/UserQueues.h"
#include "dialog/task/PresetInstances.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OtherQueues)
};

// How long one queue may take, and all of them. A server that is away is asked for each.
constexpr std::chrono::seconds kForOne{30};
constexpr std::chrono::seconds kForAll{120};
// Nobody reads more than this of what is wrong with one queue. Units: characters.
constexpr qsizetype kMostText = 4096;
const QString kPrefix = u"corvana-print: "_s;
const QString kIndent = u"  "_s; // of what goes on in a further line

struct Ends
{
    QStringList problems{};
    QStringList remarks{};
};

// What the program says on its standard error. What is logged there is for nobody who saves a
// preset.
QStringList linesOf(const QByteArray &text)
{
    QStringList said;
    qsizetype size = 0;
    const QStringList lines = QString::fromUtf8(text).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const bool isSaid = line.startsWith(kPrefix);
        const bool goesOn = line.startsWith(kIndent) && !said.isEmpty();
        if ((isSaid || goesOn) && (size += line.size()) > kMostText)
            break;
        if (isSaid)
            said += line.mid(kPrefix.size());
        else if (goesOn)
            said.last() += u'\n' + line;
    }
    return said;
}

// Answers whether the instance is written, and what is to be said of it.
bool run(const QString &program, const QStringList &arguments, QDeadlineTimer deadline,
         QStringList *lines)
{
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForStarted()) {
        *lines += process.errorString();
        return false;
    }
    const qint64 patience =
        std::min<qint64>(std::chrono::milliseconds(kForOne).count(), deadline.remainingTime());
    if (!process.waitForFinished(int(patience))) {
        process.kill();
        process.waitForFinished();
        *lines += Texts::tr("The queue could not be read in time.");
        return false;
    }
    *lines += linesOf(process.readAllStandardError());
    const bool hasCrashed = process.exitStatus() != QProcess::NormalExit;
    if (hasCrashed)
        *lines += process.errorString();
    return !hasCrashed && process.exitCode() == 0;
}

void write(const OtherInstance &instance, const QString &program, const QStringList &arguments,
           QDeadlineTimer deadline, Ends *ends)
{
    QStringList lines;
    const bool isWritten = !deadline.hasExpired() && run(program, arguments, deadline, &lines);
    // The program names the instance itself, as far as it gets.
    for (QString &line : lines) {
        if (!line.contains(instance.name))
            line = problemWithInstance(instance.name, line);
    }
    if (!isWritten && lines.isEmpty())
        lines +=
            problemWithInstance(instance.name, Texts::tr("The queue could not be read in time."));
    (isWritten ? ends->remarks : ends->problems) += lines;
}

} // namespace

PrintRequest requestForOther(const OtherInstance &instance, PrintRequest request)
{
    request.documents.clear();
    request.toRead.clear();
    request.options.clear();
    request.alsoOn.clear();
    request.presetToSave.clear();
    request.copies = 1;
    request.copiesWereNamed = request.summary = request.remembersLastUsed = false;
    request.wantedPrinter = queueOfInstance(instance.name);
    request.preset = instance.preset;
    request.instance = instance.name.section(u'/', 1);
    request.followedModel = instance.model;
    return request;
}

QStringList argumentsForOther(const OtherInstance &instance, const PrintRequest &request)
{
    // A name may begin with a "-".
    QStringList arguments{u"--no-dialog"_s, u"--printer="_s + queueOfInstance(instance.name),
                          u"--preset="_s + instance.preset,
                          u"--save-instance="_s + instance.name.section(u'/', 1),
                          u"--follow-preset="_s + instance.model};
    if (request.serverWasNamed)
        arguments += u"--server="_s + request.server.argument();
    if (request.server.encryption == HTTP_ENCRYPTION_REQUIRED)
        arguments += u"-E"_s;
    for (const QString &root : request.bundleRoots)
        arguments += u"--bundle-root="_s + root;
    return arguments;
}

void OtherQueues::write(const QList<OtherInstance> &instances, const PrintRequest &request)
{
    QList<QStringList> arguments;
    for (const OtherInstance &instance : instances)
        arguments += argumentsForOther(instance, request);
    m_work.run([this, instances, arguments, program = request.program] {
        const QDeadlineTimer deadline(kForAll);
        auto ends = std::make_shared<Ends>();
        for (qsizetype i = 0; i < instances.size(); ++i)
            corvana::write(instances.at(i), program, arguments.at(i), deadline, ends.get());
        // On the GUI thread, and only while this is there.
        return PresetWork::Then([this, ends] { Q_EMIT ended(ends->problems, ends->remarks); });
    });
}

} // namespace corvana
