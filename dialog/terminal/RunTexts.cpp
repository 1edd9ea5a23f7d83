#include "dialog/terminal/RunTexts.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include "dialog/job/HandoverOutcomes.h"
#include "dialog/task/PrintRequest.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(UnattendedRun)
};

// A name as a shell takes it: queues may be called almost anything.
QString shellWord(QString text)
{
    static const QRegularExpression plain(
        QRegularExpression::anchoredPattern(u"[A-Za-z0-9_.:/-]+"_s));
    if (plain.match(text).hasMatch())
        return text;
    return u'\'' + text.replace(u'\'', u"'\\''"_s) + u'\'';
}

} // namespace

QString releaseCommand(const PrintRequest &request, const Printer &printer, int job)
{
    const QString server =
        request.serverWasNamed ? u"-h %1 "_s.arg(shellWord(request.server.argument())) : QString();
    const QString name = jobName(printer, job);
    return u"lp %1-i %2 -H resume"_s.arg(server, shellWord(name));
}

QString withName(const QString &problem, const Printer &printer)
{
    return printer.origin == PrinterOrigin::File || problem.contains(printer.name)
               ? problem
               : Texts::tr("%1 So the printer “%2” could not be asked for.")
                     .arg(problem, printer.name);
}

QString withOtherPrinters(const QString &problem, const PrintRequest &request)
{
    QStringList names;
    // What is wrong with one of them is not that it was mistyped.
    if (wantedAmongFiles(request) < 0) {
        for (const Printer &printer : request.printers)
            names += printer.name;
    }
    return names.isEmpty() ? problem
                           : Texts::tr("%1 Printers that need no print server: %2.")
                                 .arg(problem, names.join(u", "_s));
}

} // namespace corvana
