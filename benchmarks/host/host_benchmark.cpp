// How long the dialog keeps its user waiting where a print server or a large printer could make it
// do so, against baselines in the same run:
//
// - from its construction until it can be used, with a server that answers, one that is not there
//   and one that accepts and never says a word: nobody may wait for a server that is of no use;
// - 2,000 queues listed, against one request for all of them with libcups and nothing else; and
//   searched, against looking for the same letters in the same texts in a plain loop;
// - one change of an option with a PPD of 1,000 options and 2,000 constraints, with all that
//   follows up to the painted page, against one bare cupsGetConflicts() on it.
//
//   host_benchmark           measures and prints the ratios
//   host_benchmark --check   the same, and fails when one is higher than it should be
//
// It needs no display, and cupsd for all but the last one. Other arguments are those of Google
// Benchmark. Exit status: 0; 1 when something cannot be measured or --check fails; 2 for a wrong
// argument.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <cups/cups.h>

#include <QApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QListView>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>

#include "benchmarks/support/BestTimes.h"
#include "dialog/app/LastPrinter.h"
#include "dialog/app/PrintDialog.h"
#include "dialog/chooser/PrinterModel.h"
#include "dialog/chooser/PrinterPopup.h"
#include "dialog/chooser/PrinterSearch.h"
#include "dialog/pages/GeneralPage.h"
#include "dialog/pages/OptionsPage.h"
#include "dialog/queues/PpdCache.h"
#include "dialog/queues/QueueList.h"
#include "dialog/server/IppMessage.h"
#include "platform/printcore/Ppd.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/cups/FaultyServer.h"
#include "tests/support/cups/PrivateCups.h"

using namespace corvana;
using test::FaultyServer;
using test::PrivateCups;

namespace {

constexpr int kRepetitions = 25;
constexpr int kOpenings =
    75; // short and with the network in between, so the best takes longer to come
constexpr int kPatience = 30000; // milliseconds
constexpr int kQueues = 2000;
constexpr int kOptions = 1000;
constexpr int kConstraints = 2000;

const QString kSampleDocument =
    QStringLiteral(CORVANA_BENCHMARK_SOURCE_DIR "/resources/sample/welcome.pdf");
const QString kSamplePpd =
    QStringLiteral(CORVANA_BENCHMARK_SOURCE_DIR "/resources/ppd/corvana-cl5.ppd");
const QString kQueue = QStringLiteral("office");
// What is typed into the search, letter by letter.
const QString kTyped = QStringLiteral("laboratory");

using Clock = std::chrono::steady_clock;

/// A ratio that must not be exceeded.
struct Demand
{
    const char *what;
    const char *baseline;
    double most;
};

// Names of what is measured.
constexpr auto kAbsent = "usable: no printer, server absent";
constexpr auto kHung = "usable: no printer, server silent";
constexpr auto kFirstSight = "usable: default of a healthy server";
constexpr auto kKnown = "usable: last printer, server healthy";
constexpr auto kKnownAbsent = "usable: last printer, server absent";
constexpr auto kKnownHung = "usable: last printer, server silent";
constexpr auto kBareList = "2000 queues: bare request";
constexpr auto kList = "2000 queues: listed";
constexpr auto kLoop = "2000 queues: plain loop";
constexpr auto kSearch = "2000 queues: searched";
constexpr auto kPopup = "2000 queues: searched in the popup";
constexpr auto kConflicts = "1000 options: bare conflicts";
constexpr auto kChange = "1000 options: one change";

// What a user is promised, or else about twice what a good run takes: enough for a busy machine,
// little enough for a loop in a loop to be seen.
constexpr Demand kDemands[] = {
    {kHung, kAbsent, 1.2},     {kFirstSight, kKnown, 4.0},   {kKnownAbsent, kKnown, 1.2},
    {kKnownHung, kKnown, 1.2}, {kList, kBareList, 3.0},      {kSearch, kLoop, 3.0},
    {kPopup, kLoop, 25.0},     {kChange, kConflicts, 100.0},
};

/// Registers something that times itself. Units: seconds; nothing is a failure.
void measure(const char *name, const std::function<std::optional<double>()> &once,
             int repetitions = kRepetitions)
{
    benchmark::RegisterBenchmark(name,
                                 [once](benchmark::State &state) {
                                     for (auto _ : state) {
                                         if (const std::optional<double> seconds = once())
                                             state.SetIterationTime(*seconds);
                                         else
                                             state.SkipWithError("it does not come to its end");
                                     }
                                 })
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->Repetitions(repetitions)
        ->UseManualTime();
}

/// The time that `work` takes. Units: seconds.
template <typename Work> double timeOf(const Work &work)
{
    const Clock::time_point start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Lets events happen until `done`. False when it takes too long.
bool waitFor(const std::function<bool()> &done)
{
    const QDeadlineTimer deadline(kPatience);
    QTimer waker; // so that the deadline is seen
    waker.start(kPatience);
    while (!done()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

void settleDown()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

// --- Until the dialog can be used ---

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

bool isUsable(const PrintDialog &dialog, Wanted wanted)
{
    const auto *print = dialog.findChild<QPushButton *>(QStringLiteral("print"));
    if (!print->isEnabled() || !dialog.findChild<GeneralPage *>())
        return false;
    return wanted == Wanted::FilePrinter ||
           (dialog.findChild<QWidget *>(QStringLiteral("mediaTypePopup")) &&
            dialog.findChild<QWidget *>(QStringLiteral("colorMatchingMatrix")));
}

PrintRequest requestFor(const QString &server, const QString &output)
{
    CommandLine line;
    line.documents = {kSampleDocument};
    line.bundleRoots = {QFileInfo(QStringLiteral(CORVANA_BENCHMARK_BUNDLE_DIR)).path()};
    line.server = server;
    line.output = output;
    QString error;
    const std::optional<PrintRequest> request = preparePrintRequest(line, &error);
    if (!request)
        throw std::runtime_error(error.toStdString());
    PrintRequest result = *request;
    result.outputWasNamed = false;
    return result;
}

std::optional<double> openingTime(const PrintRequest &request, Wanted wanted)
{
    std::optional<double> time;
    {
        const Clock::time_point start = Clock::now();
        PrintDialog dialog(request);
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
    QFile ppd(kSamplePpd);
    if (!ppd.open(QIODevice::ReadOnly) ||
        PpdCache().store(server, printer, ppd.readAll(), 1).isEmpty())
        throw std::runtime_error("the sample printer cannot be kept");
    rememberPrinter(server, kQueue);
}

void forgetKnown(const QString &server)
{
    PpdCache().remove(server, kQueue);
    rememberPrinter(server, QString());
}

void measureOpening(const QString &folder, const QString &healthy, const QString &absent,
                    const QString &silent)
{
    const QString output = folder + QStringLiteral("/job.ps");
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

// --- Thousands of queues ---

// What cupsd keeps of its queues; lpadmin would take minutes to have it written.
void writeQueues(const PrivateCups &cups)
{
    QFile file(cups.folder() + QStringLiteral("/etc/printers.conf"));
    QByteArray text;
    for (int i = 0; i < kQueues; ++i) {
        const QByteArray number = QByteArray::number(i).rightJustified(4, '0');
        text += "<Printer queue" + number + ">\nInfo " +
                (i % 40 == 0 ? "Laboratory " : "Printer ") + number + "\nLocation Building " +
                QByteArray::number(i % 37) + ", floor " + QByteArray::number(i % 9) +
                "\nMakeModel Corvana Test\nDeviceURI file:///dev/null\nState Idle\n"
                "StateTime 1700000000\nConfigTime 1700000000\nType 4\nAccepting Yes\nShared No\n"
                "JobSheets none none\nQuotaPeriod 0\nPageLimit 0\nKLimit 0\nOpPolicy default\n"
                "ErrorPolicy abort-job\n</Printer>\n";
    }
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() ||
        !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        throw std::runtime_error("the queues cannot be written");
}

/// How many queues one request for all of them brings, asking for what the list shows.
int bareListing(quint16 port)
{
    http_t *http = httpConnect2("127.0.0.1", port, nullptr, AF_INET, HTTP_ENCRYPTION_IF_REQUESTED,
                                1, kPatience, nullptr);
    IppMessage request = newIppRequest(IPP_OP_CUPS_GET_PRINTERS);
    addIppKeywords(request.get(), IPP_TAG_OPERATION, "requested-attributes",
                   {"printer-name", "printer-info", "printer-location", "printer-make-and-model",
                    "printer-state", "printer-state-message", "printer-state-reasons",
                    "printer-is-accepting-jobs", "printer-type", "printer-uri-supported",
                    "device-uri", "printer-config-change-time", "auth-info-required"});
    const IppMessage answer(cupsDoRequest(http, request.release(), "/"));
    int queues = 0;
    for (ipp_attribute_t *attribute = ippFindAttribute(answer.get(), "printer-name", IPP_TAG_NAME);
         attribute; attribute = ippFindNextAttribute(answer.get(), "printer-name", IPP_TAG_NAME))
        ++queues;
    httpClose(http);
    return queues;
}

/// Fills the model as the dialog does: whenever more queues are known.
bool listInto(PrinterModel *model, const QString &server)
{
    ServerContext context;
    context.address = ServerAddress::parse(server).value_or(ServerAddress());
    QueueList list(context, UserQueues());
    QObject::connect(&list, &QueueList::changed, model,
                     [&] { model->setPrinters(list.printers()); });
    list.start();
    const bool complete = waitFor([&] {
        return list.state() == QueueList::State::Known || list.state() == QueueList::State::Failed;
    });
    return complete && model->rowCount() == kQueues;
}

/// How many texts have the letters, by looking at each.
int plainCount(const QStringList &texts, const QString &letters)
{
    return static_cast<int>(std::count_if(
        texts.cbegin(), texts.cend(), [&](const QString &text) { return text.contains(letters); }));
}

/// Runs `search` with each of the texts that come about while the word is typed, and answers the
/// time of all; nothing when one finds something else than a plain loop does.
std::optional<double> typingTime(const QStringList &texts,
                                 const std::function<int(const QString &)> &search)
{
    std::vector<int> found;
    const double time = timeOf([&] {
        for (qsizetype length = 1; length <= kTyped.size(); ++length)
            found.push_back(search(kTyped.left(length)));
    });
    for (qsizetype length = 1; length <= kTyped.size(); ++length) {
        if (found[static_cast<size_t>(length) - 1] != plainCount(texts, kTyped.left(length)))
            return std::nullopt;
    }
    return time;
}

void measureQueues(const QString &server, quint16 port)
{
    measure(kBareList, [port] {
        int queues = 0;
        const double time = timeOf([&] { queues = bareListing(port); });
        return queues == kQueues ? std::optional(time) : std::nullopt;
    });
    measure(kList, [server] {
        PrinterModel model;
        bool listed = false;
        const double time = timeOf([&] { listed = listInto(&model, server); });
        return listed ? std::optional(time) : std::nullopt;
    });

    const auto model = std::make_shared<PrinterModel>();
    if (!listInto(model.get(), server))
        throw std::runtime_error("the queues cannot be listed");
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts += model->searchKey(row);
    measure(kLoop, [texts] {
        return typingTime(texts, [&](const QString &typed) { return plainCount(texts, typed); });
    });
    measure(kSearch, [model, texts] {
        PrinterSearch search;
        search.setPrinters(model.get());
        return typingTime(texts, [&](const QString &typed) {
            search.setText(typed);
            return search.rowCount();
        });
    });
    measure(kPopup, [model, texts] {
        QWidget anchor;
        anchor.show();
        PrinterPopup popup(&anchor);
        popup.open(model.get(), 0);
        QCoreApplication::processEvents();
        const auto *rows = popup.findChild<QListView *>();
        return typingTime(texts, [&](const QString &typed) {
            popup.setSearchText(typed);
            QCoreApplication::processEvents(); // painted as well
            return rows->model()->rowCount();
        });
    });
}

// --- A printer with very many options ---

QByteArray optionKeyword(int option)
{
    return "Option" + QByteArray::number(option);
}

QString writeLargePpd(const QString &folder)
{
    test::PpdBuilder ppd;
    for (int i = 0; i < kOptions; ++i)
        ppd.option(optionKeyword(i), "Option " + QByteArray::number(i), "A",
                   {{"A", "First"}, {"B", "Second"}, {"C", "Third"}});
    // Nothing that is marked collides; every option has constraints that must be looked at.
    for (int i = 0; i < kConstraints / 2; ++i)
        ppd.constraint(optionKeyword(i), "C", optionKeyword((i + 1) % kOptions), "C");
    const QString path = folder + QStringLiteral("/large.ppd");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(ppd.text()) < 0)
        throw std::runtime_error("the large PPD cannot be written");
    return path;
}

struct PpdDeleter
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};

void measureOptions(const QString &folder, const QString &absent)
{
    const QString path = writeLargePpd(folder);
    const std::shared_ptr<ppd_file_t> ppd(ppdOpenFile(QFile::encodeName(path).constData()),
                                          PpdDeleter());
    if (!ppd)
        throw std::runtime_error("the large PPD cannot be read");
    ppdMarkDefaults(ppd.get());
    const auto conflicts = [ppd](const char *choice) {
        cups_option_t *options = nullptr;
        const int count = cupsGetConflicts(ppd.get(), "Option500", choice, &options);
        cupsFreeOptions(count, options);
        return count;
    };
    conflicts("A"); // the first one also makes a table of the constraints
    ppdMarkOption(ppd.get(), "Option501", "C");
    if (conflicts("C") == 0)
        throw std::runtime_error("the constraints of the large PPD are not in force");
    ppdMarkOption(ppd.get(), "Option501", "A");
    measure(kConflicts, [conflicts] {
        int found = 0;
        const double time = timeOf([&] { found = conflicts("B"); });
        return found == 0 ? std::optional(time) : std::nullopt;
    });

    PrintRequest request = requestFor(absent, folder + QStringLiteral("/job.ps"));
    request.printers = {Printer{QStringLiteral("large"), QStringLiteral("large"), path}};
    const auto dialog = std::make_shared<PrintDialog>(request);
    dialog->show();
    auto *options = static_cast<OptionsPage *>(nullptr);
    if (!waitFor([&] { return (options = dialog->findChild<OptionsPage *>()) != nullptr; }))
        throw std::runtime_error("the large printer has no options");
    dialog->findChild<QTabWidget *>(QStringLiteral("pages"))->setCurrentWidget(options);
    settleDown();
    const auto view = options->findChild<QAbstractItemView *>(QStringLiteral("options"));
    measure(kChange, [dialog, options, view, second = false]() mutable {
        second = !second;
        const double time = timeOf([&] {
            Q_EMIT options->proposed(QStringLiteral("Option500"),
                                     second ? QStringLiteral("B") : QStringLiteral("A"));
            QCoreApplication::processEvents();
        });
        const QModelIndexList shown = view->model()->match(
            view->model()->index(0, 0), Qt::DisplayRole, QStringLiteral("Option 500"), 1,
            Qt::MatchExactly | Qt::MatchRecursive);
        const QString value =
            shown.isEmpty() ? QString() : shown.constFirst().siblingAtColumn(1).data().toString();
        return value == (second ? QStringLiteral("Second") : QStringLiteral("First"))
                   ? std::optional(time)
                   : std::nullopt;
    });
}

// --- What is demanded ---

/// Prints the ratios; false when one is too high or something was not measured.
bool judge(const benchmarks::BestTimes &times, bool hasServer)
{
    constexpr double missing = std::numeric_limits<double>::infinity();
    std::printf("\nbest of %d, of openings of %d\n%-38s %10s   %-38s %10s %8s %8s\n", kRepetitions,
                kOpenings, "what", "ms", "baseline", "ms", "ratio", "at most");
    bool good = true;
    for (const Demand &demand : kDemands) {
        const double time = times.best(demand.what);
        const double baseline = times.best(demand.baseline);
        if (time == missing && baseline == missing && !hasServer)
            continue;
        const double ratio = time / baseline;
        const bool enough = time < missing && baseline < missing && ratio <= demand.most;
        std::printf("%-38s %10.3f   %-38s %10.3f %8.2f %8.1f%s\n", demand.what, time * 1e3,
                    demand.baseline, baseline * 1e3, ratio, demand.most,
                    enough ? "" : "  TOO SLOW");
        good = good && enough;
    }
    return good;
}

bool measureAll()
{
    const QTemporaryDir folder; // nothing of the user's is read or written
    for (const char *variable : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "HOME"})
        qputenv(variable, folder.path().toLocal8Bit());
    qputenv("CUPS_SERVERROOT", "/nonexistent");
    for (const char *variable : {"LPDEST", "PRINTER", "CUPS_SERVER", "CORVANA_PRINT_PATIENCE"})
        qunsetenv(variable);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 1;
    char program[] = "host_benchmark";
    char *argv[] = {program, nullptr};
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    const FaultyServer absent(0, FaultyServer::Manner::Refuses);
    const FaultyServer silent(0, FaultyServer::Manner::NeverAnswers);
    const bool hasServer = PrivateCups::isAvailable();
    std::optional<PrivateCups> one;
    std::optional<PrivateCups> many;
    if (hasServer) {
        one.emplace();
        one->start();
        one->addQueue(kQueue, kSamplePpd);
        one->setDefault(kQueue);
        many.emplace();
        writeQueues(*many);
        many->start();
        measureQueues(many->server(), many->port());
    } else {
        std::printf("There is no cupsd: nothing is measured that needs one.\n");
    }
    measureOpening(folder.path(), one ? one->server() : QString(), absent.server(),
                   silent.server());
    measureOptions(folder.path(), absent.server());

    benchmarks::BestTimes times(benchmarks::BestTimes::Clock::Wall);
    benchmark::RunSpecifiedBenchmarks(&times);
    benchmark::ClearRegisteredBenchmarks(); // and the windows with them, before their application
    return judge(times, hasServer);
}

} // namespace

int main(int argc, char **argv)
{
    // What is compared must not have been measured at different times: others use the machine too.
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    std::vector<char *> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, interleaving);
    bool check = false;
    if (!benchmarks::takeArguments(static_cast<int>(arguments.size()), arguments.data(), &check))
        return 2;
    try {
        return measureAll() || !check ? 0 : 1;
    } catch (const std::exception &problem) {
        std::fprintf(stderr, "host_benchmark: %s\n", problem.what());
        return 1;
    }
}
