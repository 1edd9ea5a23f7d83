// From the construction of the dialog until it can be used, with a server that answers, one that is
// not there and one that accepts and never says a word: nobody may wait for a server that is of no
// use.

#include "benchmarks/host/HostTimes.h"

#include <stdexcept>

#include <QEvent>
#include <QFile>
#include <QPushButton>

#include "dialog/printers/LastPrinter.h"
#include "dialog/printers/PpdCache.h"
#include "dialog/server/IppMessage.h"
#include "dialog/window/PrintWindow.h"
#include "dialog/window/pages/GeneralPage.h"

namespace corvana::benchmarks {

using namespace Qt::StringLiterals;

namespace {

/// Whether a window was painted.
class Painted : public QObject
{
public:
    explicit Painted(QWidget *window) { window->installEventFilter(this); }
    explicit operator bool() const { return m_painted; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_painted = false;
};

/// What makes the dialog usable.
enum class Wanted {
    FilePrinter, ///< the General page of the printer that stands for no printer
    Panels,      ///< both panels of the queue
};

bool isUsable(const PrintWindow &dialog, Wanted wanted)
{
    const auto *print = dialog.findChild<QPushButton *>(u"print"_s);
    if (!print->isEnabled() || !dialog.findChild<GeneralPage *>())
        return false;
    return wanted == Wanted::FilePrinter || (dialog.findChild<QWidget *>(u"mediaTypePopup"_s) &&
                                             dialog.findChild<QWidget *>(u"colorMatchingMatrix"_s));
}

std::optional<double> openingTime(const PrintRequest &request, Wanted wanted)
{
    std::optional<double> time;
    {
        const Clock::time_point start = Clock::now();
        PrintWindow dialog(request);
        const Painted painted(&dialog);
        dialog.show();
        if (waitFor([&] { return painted && isUsable(dialog, wanted); }))
            time = std::chrono::duration<double>(Clock::now() - start).count();
    }
    settleDown();
    return time;
}

/// What the dialog keeps of a queue that was printed to before.
void makeKnown(const QString &server)
{
    Printer printer;
    printer.name = kQueue;
    printer.description = kQueue;
    printer.origin = PrinterOrigin::Queue;
    printer.uri = queueUri(kQueue);
    QueueDetails details;
    details.state = QueueDetails::Ppd::Read;
    details.printer = printer;
    QFile ppd(kSamplePpd);
    if (ppd.open(QIODevice::ReadOnly))
        details.ppd = ppd.readAll();
    details.ppdHash = hashOfPpd(details.ppd);
    if (!PpdCache().store(server, details))
        throw std::runtime_error("the sample printer cannot be kept");
    rememberPrinter(server, kQueue);
}

void forgetKnown(const QString &server)
{
    PpdCache().remove(server, kQueue);
    rememberPrinter(server, QString());
}

} // namespace

void measureOpening(const QString &folder, const QString &healthy, const QString &absent,
                    const QString &silent)
{
    const QString output = folder + u"/job.ps"_s;
    const auto unknown = [output](const char *name, const QString &server, Wanted wanted) {
        measure(
            name,
            [=] {
                forgetKnown(server);
                return openingTime(requestFor(server, output), wanted);
            },
            kOpenings);
    };
    const auto known = [output](const char *name, const QString &server) {
        measure(
            name,
            [=] {
                makeKnown(server);
                return openingTime(requestFor(server, output), Wanted::Panels);
            },
            kOpenings);
    };
    unknown(kAbsent, absent, Wanted::FilePrinter);
    unknown(kHung, silent, Wanted::FilePrinter);
    if (healthy.isEmpty())
        return;
    known(kKnown, healthy);
    known(kKnownAbsent, absent);
    known(kKnownHung, silent);
    unknown(kFirstSight, healthy, Wanted::Panels);
}

} // namespace corvana::benchmarks
