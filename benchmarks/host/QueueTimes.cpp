// 2,000 queues listed, against one request for all of them with libcups and nothing else; and
// searched, against looking for the same letters in the same texts in a plain loop.

#include "benchmarks/host/HostTimes.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <vector>

#include <cups/cups.h>

#include <QCoreApplication>
#include <QFile>
#include <QListView>

#include "dialog/printers/QueueList.h"
#include "dialog/server/IppMessage.h"
#include "dialog/window/chooser/PrinterModel.h"
#include "dialog/window/chooser/PrinterPopup.h"
#include "dialog/window/chooser/PrinterSearch.h"

namespace corvana::benchmarks {

using namespace Qt::StringLiterals;

namespace {

constexpr int kQueues = 2000;
// What is typed into the search, letter by letter.
const QString kTyped = u"laboratory"_s;

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

} // namespace

// What cupsd keeps of its queues; lpadmin would take minutes to have it written.
void writeQueues(const test::PrivateCups &cups)
{
    QFile file(cups.folder() + u"/etc/printers.conf"_s);
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

} // namespace corvana::benchmarks
