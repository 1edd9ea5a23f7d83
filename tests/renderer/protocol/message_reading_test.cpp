#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include <QTest>

#include "renderer/protocol/MessageReading.h"
#include "tests/support/Rows.h"

using namespace corvana::renderer;
using namespace corvana::test;

namespace {

constexpr std::uint32_t kSequence = 7;
constexpr bool kWithDescriptor = true;

using Bytes = std::vector<std::byte>;

template <typename Message> Bytes bytesOf(const Message &message)
{
    const auto bytes = std::as_bytes(std::span(&message, 1));
    return {bytes.begin(), bytes.end()};
}

OpenDocument openDocument()
{
    auto message = made<OpenDocument>(kSequence);
    message.document = 1;
    message.passwordBytes = 3;
    std::copy_n("abc", 3, message.password.begin());
    return message;
}

ListSizes listSizes()
{
    auto message = made<ListSizes>(kSequence);
    message.document = 1;
    message.first = 256;
    return message;
}

DrawPage drawPage(std::uint32_t width = 595, std::uint32_t height = 842)
{
    auto message = made<DrawPage>(kSequence);
    message.document = 1;
    message.width = width;
    message.height = height;
    return message;
}

CloseDocument closeDocument()
{
    auto message = made<CloseDocument>(kSequence);
    message.document = 1;
    return message;
}

Opened opened()
{
    auto message = made<Opened>(kSequence);
    message.pages = 3;
    return message;
}

Sizes sizes()
{
    auto message = made<Sizes>(kSequence);
    message.count = 2;
    message.sizes[0] = {595, 842};
    return message; // the second page is damaged
}

ListLabels listLabels()
{
    auto message = made<ListLabels>(kSequence);
    message.document = 1;
    message.first = 64;
    return message;
}

Labels labels()
{
    auto message = made<Labels>(kSequence);
    message.count = 2;
    message.labels[0].bytes = 2;
    std::copy_n("iv", 2, message.labels[0].text.begin());
    return message; // the second page has none
}

CheckDocument checkDocument()
{
    auto message = made<CheckDocument>(kSequence);
    message.passwordBytes = 3;
    std::copy_n("abc", 3, message.password.begin());
    return message;
}

Checked checked()
{
    auto message = made<Checked>(kSequence);
    message.isEncrypted = message.mayPrint = message.isOwner = message.isDamaged = 1;
    message.pages = 3;
    message.lostPages = 2;
    message.damagedAt = 1024;
    message.detailBytes = 5;
    std::copy_n("worse", 5, message.detail.begin());
    return message;
}

Ready ready()
{
    auto message = made<Ready>(kSequence);
    message.filtersCalls = 1;
    message.fencesFiles = 7;
    return message;
}

template <typename Message, typename Change> Bytes changed(Message message, Change change)
{
    change(message);
    return bytesOf(message);
}

Bytes shorter(Bytes bytes)
{
    bytes.pop_back();
    return bytes;
}

Bytes longer(Bytes bytes)
{
    bytes.push_back(std::byte{0});
    return bytes;
}

// The faults that any message can have, whatever is in it.
struct Fault
{
    const char *name;
    void (*change)(Header &header);
};
const Fault kFaults[] = {
    {"another magic number", [](Header &header) { header.magic ^= 1; }},
    {"an older version", [](Header &header) { --header.version; }},
    {"a newer version", [](Header &header) { ++header.version; }},
    {"no kind", [](Header &header) { header.kind = Kind{}; }},
    {"a kind that nobody knows", [](Header &header) { header.kind = Kind{99}; }},
    {"fewer bytes than there are", [](Header &header) { --header.bytes; }},
    {"more bytes than there are", [](Header &header) { ++header.bytes; }},
    {"a kind of the other side",
     [](Header &header) {
         header.kind = header.kind < Kind::Ready ? Kind::Drawn : Kind::DrawPage;
     }},
};

struct BadRequest
{
    const char *name;
    Bytes (*make)();
    bool hasDescriptor;
};
const BadRequest kBadRequests[] = {
    {"nothing", [] { return Bytes{}; }, false},
    {"less than a header", [] { return Bytes(sizeof(Header) - 1); }, false},
    {"a header alone",
     [] {
         Header header;
         header.kind = Kind::CloseDocument;
         header.sequence = kSequence;
         header.bytes = sizeof(Header);
         return bytesOf(header);
     },
     false},
    {"a byte short", [] { return shorter(bytesOf(closeDocument())); }, false},
    {"a byte long", [] { return longer(bytesOf(closeDocument())); }, false},
    {"one kind in the size of another",
     [] { return changed(drawPage(), [](DrawPage &m) { m.header.kind = Kind::CloseDocument; }); },
     kWithDescriptor},
    {"no sequence",
     [] { return changed(closeDocument(), [](CloseDocument &m) { m.header.sequence = 0; }); },
     false},
    {"a document without a descriptor", [] { return bytesOf(openDocument()); }, false},
    {"a picture without a descriptor", [] { return bytesOf(drawPage()); }, false},
    {"sizes with a descriptor", [] { return bytesOf(listSizes()); }, kWithDescriptor},
    {"closing with a descriptor", [] { return bytesOf(closeDocument()); }, kWithDescriptor},
    {"document 0, opened",
     [] { return changed(openDocument(), [](OpenDocument &m) { m.document = 0; }); },
     kWithDescriptor},
    {"document 0, drawn", [] { return changed(drawPage(), [](DrawPage &m) { m.document = 0; }); },
     kWithDescriptor},
    {"document 0, listed",
     [] { return changed(listSizes(), [](ListSizes &m) { m.document = 0; }); }, false},
    {"document 0, closed",
     [] { return changed(closeDocument(), [](CloseDocument &m) { m.document = 0; }); }, false},
    {"a password that fills its room",
     [] {
         return changed(openDocument(), [](OpenDocument &m) {
             m.passwordBytes = kPasswordRoom;
             m.password.fill('x');
         });
     },
     kWithDescriptor},
    {"a password longer than its room",
     [] { return changed(openDocument(), [](OpenDocument &m) { m.passwordBytes = 0xffffffff; }); },
     kWithDescriptor},
    {"something behind the password",
     [] { return changed(openDocument(), [](OpenDocument &m) { m.password.back() = 'x'; }); },
     kWithDescriptor},
    {"a document to be checked without a descriptor", [] { return bytesOf(checkDocument()); },
     false},
    {"a copy without a descriptor", [] { return bytesOf(made<CopyDocument>(kSequence)); }, false},
    {"a password that fills its room, to be checked",
     [] {
         return changed(checkDocument(), [](CheckDocument &m) {
             m.passwordBytes = kPasswordRoom;
             m.password.fill('x');
         });
     },
     kWithDescriptor},
    {"something behind the password, to be checked",
     [] { return changed(checkDocument(), [](CheckDocument &m) { m.password.back() = 'x'; }); },
     kWithDescriptor},
    {"a page that no document has",
     [] { return changed(drawPage(), [](DrawPage &m) { m.page = kMaxPages; }); }, kWithDescriptor},
    {"sizes of pages that no document has",
     [] { return changed(listSizes(), [](ListSizes &m) { m.first = kMaxPages; }); }, false},
    {"labels with a descriptor", [] { return bytesOf(listLabels()); }, kWithDescriptor},
    {"document 0, labelled",
     [] { return changed(listLabels(), [](ListLabels &m) { m.document = 0; }); }, false},
    {"labels of pages that no document has",
     [] { return changed(listLabels(), [](ListLabels &m) { m.first = kMaxPages; }); }, false},
    {"no width", [] { return bytesOf(drawPage(0, 842)); }, kWithDescriptor},
    {"no height", [] { return bytesOf(drawPage(595, 0)); }, kWithDescriptor},
    {"too wide", [] { return bytesOf(drawPage(kMaxSide + 1, 1)); }, kWithDescriptor},
    {"too high", [] { return bytesOf(drawPage(1, kMaxSide + 1)); }, kWithDescriptor},
    {"too many pixels", [] { return bytesOf(drawPage(8000, 8001)); }, kWithDescriptor},
    {"pixels that overflow", [] { return bytesOf(drawPage(0x10000, 0x10000)); }, kWithDescriptor},
};

struct GoodRequest
{
    const char *name;
    Bytes (*make)();
    bool hasDescriptor;
};
const GoodRequest kGoodRequests[] = {
    {"opening", [] { return bytesOf(openDocument()); }, kWithDescriptor},
    {"opening without a password",
     [] {
         return changed(openDocument(), [](OpenDocument &m) {
             m.passwordBytes = 0;
             m.password = {};
         });
     },
     kWithDescriptor},
    {"the longest password",
     [] {
         return changed(openDocument(), [](OpenDocument &m) {
             m.passwordBytes = kPasswordRoom - 1;
             std::fill_n(m.password.begin(), kPasswordRoom - 1, 'x');
         });
     },
     kWithDescriptor},
    {"sizes", [] { return bytesOf(listSizes()); }, false},
    {"labels", [] { return bytesOf(listLabels()); }, false},
    {"drawing", [] { return bytesOf(drawPage()); }, kWithDescriptor},
    {"one pixel", [] { return bytesOf(drawPage(1, 1)); }, kWithDescriptor},
    {"the most pixels", [] { return bytesOf(drawPage(8000, 8000)); }, kWithDescriptor},
    {"the widest", [] { return bytesOf(drawPage(kMaxSide, 3906)); }, kWithDescriptor},
    {"closing", [] { return bytesOf(closeDocument()); }, false},
    {"checking", [] { return bytesOf(checkDocument()); }, kWithDescriptor},
    {"copying", [] { return bytesOf(made<CopyDocument>(kSequence)); }, kWithDescriptor},
};

struct BadAnswer
{
    const char *name;
    bool (*isRead)();
};

template <typename Answer, typename Change> bool isRead(const Answer &answer, Change change)
{
    return readAnswer<Answer>(changed(answer, change), false, kSequence).has_value();
}

const BadAnswer kBadAnswers[] = {
    {"no bytes", [] { return readAnswer<Drawn>(Bytes{}, false, kSequence).has_value(); }},
    {"a byte short",
     [] { return readAnswer<Opened>(shorter(bytesOf(opened())), false, kSequence).has_value(); }},
    {"a byte long",
     [] { return readAnswer<Opened>(longer(bytesOf(opened())), false, kSequence).has_value(); }},
    {"a descriptor",
     [] { return readAnswer<Opened>(bytesOf(opened()), kWithDescriptor, kSequence).has_value(); }},
    {"the answer to an earlier request",
     [] { return isRead(opened(), [](Opened &m) { --m.header.sequence; }); }},
    {"the answer to another kind of request",
     [] {
         return readAnswer<Drawn>(bytesOf(made<Closed>(kSequence)), false, kSequence).has_value();
     }},
    {"a status that nobody knows",
     [] { return isRead(made<Drawn>(kSequence), [](Drawn &m) { m.status = Status{5}; }); }},
    {"a document without pages", [] { return isRead(opened(), [](Opened &m) { m.pages = 0; }); }},
    {"more pages than there can be",
     [] { return isRead(opened(), [](Opened &m) { m.pages = kMaxPages + 1; }); }},
    {"pages of a damaged document",
     [] { return isRead(opened(), [](Opened &m) { m.status = Status::Damaged; }); }},
    {"more sizes than there is room for",
     [] { return isRead(sizes(), [](Sizes &m) { m.count = kSizesAtOnce + 1; }); }},
    {"no sizes", [] { return isRead(sizes(), [](Sizes &m) { m.count = 0; }); }},
    {"sizes of a refused request",
     [] { return isRead(sizes(), [](Sizes &m) { m.status = Status::Refused; }); }},
    {"a size that is no number",
     [] { return isRead(sizes(), [](Sizes &m) {
              m.sizes[1] = {std::nanf(""), 1};
          }); }},
    {"a size without an end",
     [] {
         return isRead(sizes(), [](Sizes &m) {
             m.sizes[1] = {1, std::numeric_limits<float>::infinity()};
         });
     }},
    {"a negative size", [] { return isRead(sizes(), [](Sizes &m) {
                                 m.sizes[1] = {-1, 1};
                             }); }},
    {"half a size", [] { return isRead(sizes(), [](Sizes &m) {
                             m.sizes[1] = {0, 1};
                         }); }},
    {"paper as large as a town",
     [] { return isRead(sizes(), [](Sizes &m) {
              m.sizes[1] = {1, kMaxPaper * 2};
          }); }},
    {"nonsense behind the sizes",
     [] { return isRead(sizes(), [](Sizes &m) {
              m.sizes[255] = {-1, 1};
          }); }},
    {"more labels than there is room for",
     [] { return isRead(labels(), [](Labels &m) { m.count = kLabelsAtOnce + 1; }); }},
    {"no labels", [] { return isRead(labels(), [](Labels &m) { m.count = 0; }); }},
    {"labels of a refused request",
     [] { return isRead(labels(), [](Labels &m) { m.status = Status::Refused; }); }},
    {"a label longer than its room",
     [] { return isRead(labels(), [](Labels &m) { m.labels[1].bytes = kLabelRoom + 1; }); }},
    {"a label that moves the cursor",
     [] { return isRead(labels(), [](Labels &m) { m.labels[0].text[1] = '\x1b'; }); }},
    {"something behind a label",
     [] { return isRead(labels(), [](Labels &m) { m.labels[0].text[2] = 'x'; }); }},
    {"nonsense behind the labels",
     [] { return isRead(labels(), [](Labels &m) { m.labels[63].text[0] = 'x'; }); }},
    {"a checked document without pages",
     [] { return isRead(checked(), [](Checked &m) { m.pages = 0; }); }},
    {"more checked pages than there can be",
     [] { return isRead(checked(), [](Checked &m) { m.pages = kMaxPages + 1; }); }},
    {"more lost pages than there can be",
     [] { return isRead(checked(), [](Checked &m) { m.lostPages = kMaxPages + 1; }); }},
    {"pages of a locked document",
     [] { return isRead(checked(), [](Checked &m) { m.status = Status::PasswordNeeded; }); }},
    {"half an owner", [] { return isRead(checked(), [](Checked &m) { m.isOwner = 2; }); }},
    {"half a permission", [] { return isRead(checked(), [](Checked &m) { m.mayPrint = 2; }); }},
    {"half an encryption", [] { return isRead(checked(), [](Checked &m) { m.isEncrypted = 2; }); }},
    {"half a damage", [] { return isRead(checked(), [](Checked &m) { m.isDamaged = 2; }); }},
    {"a detail longer than its room",
     [] { return isRead(checked(), [](Checked &m) { m.detailBytes = kDetailRoom + 1; }); }},
    {"a detail that moves the cursor",
     [] { return isRead(checked(), [](Checked &m) { m.detail[0] = '\x1b'; }); }},
    {"something behind the detail",
     [] { return isRead(checked(), [](Checked &m) { m.detail.back() = 'x'; }); }},
    {"a copy with a status that nobody knows",
     [] { return isRead(made<Copied>(kSequence), [](Copied &m) { m.status = Status{5}; }); }},
    {"half a lock", [] { return isRead(ready(), [](Ready &m) { m.filtersCalls = 2; }); }},
    {"a fence of a far future",
     [] { return isRead(ready(), [](Ready &m) { m.fencesFiles = 0xffffffff; }); }},
};

/// How many messages are read with that fault; without one there are thirteen.
int readWith(void (*change)(Header &header))
{
    const auto request = [&](auto message, bool hasDescriptor) {
        change(message.header);
        return readRequest(bytesOf(message), hasDescriptor) ? 1 : 0;
    };
    const auto answer = [&](auto message) {
        change(message.header);
        return readAnswer<decltype(message)>(bytesOf(message), false, kSequence) ? 1 : 0;
    };
    return request(openDocument(), true) + request(listSizes(), false) + request(drawPage(), true) +
           request(closeDocument(), false) + answer(ready()) + answer(opened()) + answer(sizes()) +
           answer(made<Drawn>(kSequence)) + answer(made<Closed>(kSequence)) +
           request(checkDocument(), true) + request(made<CopyDocument>(kSequence), true) +
           answer(checked()) + answer(made<Copied>(kSequence));
}

} // namespace

class MessageReadingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messagesAreReadAsTheyWereWritten()
    {
        QCOMPARE(readWith([](Header &) {}), 13);
        const std::optional<Request> request = readRequest(bytesOf(openDocument()), true);
        QVERIFY(request);
        const auto &read = std::get<OpenDocument>(*request);
        QCOMPARE(read.document, 1U);
        QCOMPARE(std::string(read.password.data(), read.passwordBytes), "abc");
        const auto answer = readAnswer<Sizes>(bytesOf(sizes()), false, kSequence);
        QVERIFY(answer);
        QCOMPARE(answer->count, 2U);
        QVERIFY((answer->sizes[0] == PageSize{595, 842}));
    }

    void goodRequestsAreRead_data() { addRows(kGoodRequests); }
    void goodRequestsAreRead()
    {
        const GoodRequest &row = currentRow(kGoodRequests);
        QVERIFY(readRequest(row.make(), row.hasDescriptor));
    }

    void noMessageIsReadWithAFault_data() { addRows(kFaults); }
    void noMessageIsReadWithAFault() { QCOMPARE(readWith(currentRow(kFaults).change), 0); }

    void badRequestsAreNotRead_data() { addRows(kBadRequests); }
    void badRequestsAreNotRead()
    {
        const BadRequest &row = currentRow(kBadRequests);
        QVERIFY(!readRequest(row.make(), row.hasDescriptor));
    }

    void badAnswersAreNotRead_data() { addRows(kBadAnswers); }
    void badAnswersAreNotRead() { QVERIFY(!currentRow(kBadAnswers).isRead()); }
};

QTEST_GUILESS_MAIN(MessageReadingTest)
#include "message_reading_test.moc"
