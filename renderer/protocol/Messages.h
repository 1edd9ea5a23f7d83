#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

// What a program that wants pictures of pages and the program that draws them say to each other:
// messages of a fixed size over a pair of sockets that keeps messages apart (SOCK_SEQPACKET). Both
// run on one machine and come from one build, so numbers have that machine's byte order; the
// version is there for a program that was replaced while the other one was running.
//
// The client asks, the renderer answers each request once, in order. Before the first request the
// renderer says Ready, when it is locked in.
//
// Neither side trusts the other: every message is read by MessageReading.h, which refuses whatever
// is not exactly as it stands here.

namespace corvana::renderer {

inline constexpr std::uint32_t kMagic = 0x52564331; // "1CVR"
inline constexpr std::uint16_t kVersion = 2;

// Bounds, which both sides check.
inline constexpr std::uint32_t kMaxSide = 16384;        ///< Units: pixels
inline constexpr std::uint32_t kMaxPixels = 64'000'000; ///< of one picture
inline constexpr std::uint32_t kMaxPages = 1'000'000;   ///< of one document
inline constexpr std::uint32_t kMaxDocuments = 64;      ///< open at a time
inline constexpr float kMaxPaper = 1'000'000;           ///< a side of a page. Units: points
inline constexpr std::uint32_t kSizesAtOnce = 256;
inline constexpr std::uint32_t kLabelsAtOnce = 64;
inline constexpr std::uint32_t kLabelRoom = 44;     ///< a longer label is cut
inline constexpr std::uint32_t kPasswordRoom = 128; ///< longer ones do not exist in a PDF
inline constexpr std::uint32_t kDetailRoom = 200;   ///< for what is wrong with a document

enum class Kind : std::uint16_t {
    // Requests.
    OpenDocument = 1, ///< the document's descriptor comes with it
    ListSizes = 2,
    DrawPage = 3, ///< the memory for the picture comes with it
    CloseDocument = 4,
    CheckDocument = 5, ///< the document's descriptor comes with it
    CopyDocument = 6,  ///< the file for the copy comes with it
    ListLabels = 7,
    // Answers.
    Ready = 100,
    Opened = 101,
    Sizes = 102,
    Drawn = 103,
    Closed = 104,
    Checked = 105,
    Copied = 106,
    Labels = 107,
};

enum class Status : std::uint32_t {
    Done = 0,
    Damaged = 1,        ///< there is no such document in the file, or no such page in the document
    TooLarge = 2,       ///< it would take more memory than there is for it
    PasswordNeeded = 3, ///< none was given, or a wrong one
    Refused = 4,        ///< the request makes no sense: a document that is not open
};

struct Header
{
    std::uint32_t magic = kMagic;
    std::uint16_t version = kVersion;
    Kind kind{};
    std::uint32_t sequence = 0; ///< an answer has that of its request; Ready has 0
    std::uint32_t bytes = 0;    ///< of the whole message
};

// ---- Requests

struct OpenDocument
{
    static constexpr Kind kKind = Kind::OpenDocument;
    Header header;
    std::uint32_t document = 0; ///< chosen by the client; not 0
    std::uint32_t passwordBytes = 0;
    std::array<char, kPasswordRoom> password{}; ///< zeros behind the password
};

struct ListSizes
{
    static constexpr Kind kKind = Kind::ListSizes;
    Header header;
    std::uint32_t document = 0;
    std::uint32_t first = 0; ///< page, from 0
};

struct ListLabels
{
    static constexpr Kind kKind = Kind::ListLabels;
    Header header;
    std::uint32_t document = 0;
    std::uint32_t first = 0; ///< page, from 0
};

/// The picture fills the memory from its beginning: rows from top to bottom without gaps, a pixel
/// is 32 bits 0xXXRRGGBB.
struct DrawPage
{
    static constexpr Kind kKind = Kind::DrawPage;
    Header header;
    std::uint32_t document = 0;
    std::uint32_t page = 0; ///< from 0
    std::uint32_t width = 0;
    std::uint32_t height = 0; ///< Units: pixels
};

struct CloseDocument
{
    static constexpr Kind kKind = Kind::CloseDocument;
    Header header;
    std::uint32_t document = 0;
};

/// Looks into a PDF that is to be printed. It stays at hand until the next one is checked.
struct CheckDocument
{
    static constexpr Kind kKind = Kind::CheckDocument;
    Header header;
    std::uint32_t passwordBytes = 0;
    std::array<char, kPasswordRoom> password{}; ///< zeros behind the password
};

/// Writes what was checked last: without a password, and without what could not be read.
struct CopyDocument
{
    static constexpr Kind kKind = Kind::CopyDocument;
    Header header;
};

// ---- Answers

/// What keeps the renderer in. Limits of memory and privileges are always there.
struct Ready
{
    static constexpr Kind kKind = Kind::Ready;
    Header header;
    std::uint32_t filtersCalls = 0; ///< 1: seccomp
    std::uint32_t fencesFiles = 0;  ///< the version of Landlock that is in force; 0: none
};

struct Opened
{
    static constexpr Kind kKind = Kind::Opened;
    Header header;
    Status status = Status::Done;
    std::uint32_t pages = 0; ///< 0 unless done
};

/// As the page is read, its rotation included. Units: points. Both 0: the page is damaged.
struct PageSize
{
    float width = 0;
    float height = 0;
    bool operator==(const PageSize &) const = default;
};

struct Sizes
{
    static constexpr Kind kKind = Kind::Sizes;
    Header header;
    Status status = Status::Done;
    std::uint32_t count = 0; ///< 0 unless done; fewer than kSizesAtOnce only at the end
    std::array<PageSize, kSizesAtOnce> sizes{};
};

/// What a document calls one of its pages, where that is not the page's number. Whoever shows it
/// knows that a stranger wrote it.
struct PageLabel
{
    std::uint32_t bytes = 0;             ///< 0: the page has no label of its own
    std::array<char, kLabelRoom> text{}; ///< meant to be UTF-8; no control characters, zeros behind
};

struct Labels
{
    static constexpr Kind kKind = Kind::Labels;
    Header header;
    Status status = Status::Done;
    std::uint32_t count = 0; ///< 0 unless done; fewer than kLabelsAtOnce only at the end
    std::array<PageLabel, kLabelsAtOnce> labels{};
};

struct Drawn
{
    static constexpr Kind kKind = Kind::Drawn;
    Header header;
    Status status = Status::Done;
};

struct Closed
{
    static constexpr Kind kKind = Kind::Closed;
    Header header;
    Status status = Status::Done;
};

struct Checked
{
    static constexpr Kind kKind = Kind::Checked;
    Header header;
    Status status = Status::Done;
    std::uint32_t isEncrypted = 0; ///< 1: yes, as in what follows
    std::uint32_t mayPrint = 0;    ///< whoever has no owner password
    std::uint32_t isOwner = 0;     ///< the password is the owner's
    std::uint32_t isDamaged = 0;
    std::uint32_t pages = 0; ///< that can be read; 0 unless done
    std::uint32_t lostPages = 0;
    std::uint32_t detailBytes = 0;
    std::uint64_t damagedAt = 0; ///< the byte at which the first damage was found; 0: nobody knows
    std::array<char, kDetailRoom> detail{}; ///< what is wrong, in a library's words: plain ASCII
};

struct Copied
{
    static constexpr Kind kKind = Kind::Copied;
    Header header;
    Status status = Status::Done;
};

inline constexpr std::size_t kLargestMessage = std::max(sizeof(Sizes), sizeof(Labels));

// A gap between the fields would carry bytes of one program's memory into the other.
template <typename Message>
inline constexpr bool kIsPlain =
    std::is_trivially_copyable_v<Message> &&std::is_standard_layout_v<Message>;
static_assert(std::has_unique_object_representations_v<Header> && sizeof(Header) == 16);
static_assert(std::has_unique_object_representations_v<OpenDocument>);
static_assert(std::has_unique_object_representations_v<ListSizes>);
static_assert(std::has_unique_object_representations_v<ListLabels>);
static_assert(std::has_unique_object_representations_v<DrawPage>);
static_assert(std::has_unique_object_representations_v<CloseDocument>);
static_assert(std::has_unique_object_representations_v<Ready>);
static_assert(std::has_unique_object_representations_v<Opened>);
static_assert(std::has_unique_object_representations_v<Drawn>);
static_assert(std::has_unique_object_representations_v<Closed>);
static_assert(std::has_unique_object_representations_v<CheckDocument>);
static_assert(std::has_unique_object_representations_v<CopyDocument>);
static_assert(std::has_unique_object_representations_v<Checked>);
static_assert(std::has_unique_object_representations_v<Copied>);
static_assert(std::has_unique_object_representations_v<Labels>);
static_assert(kIsPlain<Sizes> && sizeof(Sizes) == sizeof(Header) + 8 + 8 * kSizesAtOnce);

/// A message with its header filled in.
template <typename Message> Message made(std::uint32_t sequence)
{
    Message message;
    message.header.kind = Message::kKind;
    message.header.sequence = sequence;
    message.header.bytes = sizeof(Message);
    return message;
}

} // namespace corvana::renderer
