#include <optional>
#include <utility>

#include "renderer/PictureTurn.h"

namespace corvana::renderer {

namespace {

constexpr unsigned char kMark = 0xff;
constexpr unsigned char kBegin = 0xd8;
constexpr unsigned char kEnd = 0xd9;
constexpr unsigned char kScan = 0xda;
constexpr unsigned char kFirstWithoutLength = 0xd0;
constexpr unsigned char kApp0 = 0xe0;
constexpr unsigned char kApp1 = 0xe1;
constexpr unsigned char kApp2 = 0xe2;
constexpr unsigned char kApp14 = 0xee;
constexpr unsigned char kApp15 = 0xef;

constexpr std::string_view kJfif{"JFIF\0", 5};
constexpr std::string_view kExif{"Exif\0\0", 6};
constexpr std::string_view kProfile{"ICC_PROFILE\0", 12};
constexpr std::string_view kAdobe{"Adobe"};

constexpr unsigned kOrientation = 0x0112;
constexpr unsigned kAcross = 0x011a; // resolution
constexpr unsigned kDown = 0x011b;
constexpr unsigned kShort = 3;
constexpr unsigned kRational = 5;

unsigned char byteAt(std::string_view bytes, std::size_t at)
{
    return static_cast<unsigned char>(bytes[at]);
}

// Whether there are as many bytes from there on; no sum of these can be too large.
bool has(std::string_view bytes, std::size_t at, std::size_t count)
{
    return at <= bytes.size() && count <= bytes.size() - at;
}

// Numbers of a TIFF, which says at its beginning which way round they are.
class Tiff
{
public:
    explicit Tiff(std::string_view bytes) : m_bytes(bytes) {}

    // Errors: nothing, where it is none.
    std::optional<std::size_t> firstList()
    {
        constexpr std::size_t kHead = 8;
        constexpr unsigned kVersion = 42;
        if (!has(m_bytes, 0, kHead))
            return std::nullopt;
        m_isBigFirst = m_bytes.substr(0, 2) == "MM";
        if ((!m_isBigFirst && m_bytes.substr(0, 2) != "II") || number(2, 2) != kVersion)
            return std::nullopt;
        const std::size_t list = number(4, 4);
        return list >= kHead && has(m_bytes, list, 2) ? std::optional(list) : std::nullopt;
    }
    bool hasBytes(std::size_t at, std::size_t count) const { return has(m_bytes, at, count); }
    // They are there.
    unsigned number(std::size_t at, std::size_t count) const
    {
        unsigned value = 0;
        for (std::size_t i = 0; i < count; ++i)
            value = value << 8U | byteAt(m_bytes, m_isBigFirst ? at + i : at + count - 1 - i);
        return value;
    }
    bool isBigFirst() const { return m_isBigFirst; }

private:
    std::string_view m_bytes;
    bool m_isBigFirst = false;
};

// Where the values stand in a segment. 0: nowhere.
struct ExifPlaces
{
    int orientation = 1;
    bool isBigFirst = false;
    std::size_t ofOrientation = 0;
    std::size_t across = 0;
    std::size_t down = 0;
};

ExifPlaces placesIn(std::string_view segment)
{
    constexpr std::size_t kEntry = 12;
    Tiff tiff(segment.substr(kExif.size()));
    ExifPlaces places;
    const std::optional<std::size_t> list = tiff.firstList();
    if (!list)
        return places;
    places.isBigFirst = tiff.isBigFirst();
    const unsigned count = tiff.number(*list, 2);
    for (unsigned i = 0; i < count; ++i) {
        const std::size_t entry = *list + 2 + i * kEntry;
        if (!tiff.hasBytes(entry, kEntry))
            return {}; // a list that goes on behind its end
        const unsigned tag = tiff.number(entry, 2);
        const unsigned type = tiff.number(entry + 2, 2);
        const bool isOne = tiff.number(entry + 4, 4) == 1;
        const std::size_t value = entry + 8;
        if (tag == kOrientation && type == kShort && isOne) {
            const unsigned orientation = tiff.number(value, 2);
            places.orientation = orientation >= 1 && orientation <= 8 ? int(orientation) : 1;
            places.ofOrientation = kExif.size() + value;
        } else if (tag == kAcross && type == kRational && isOne) {
            places.across = kExif.size() + value;
        } else if (tag == kDown && type == kRational && isOne) {
            places.down = kExif.size() + value;
        }
    }
    return places;
}

void swapBytes(std::string &bytes, std::size_t one, std::size_t other, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        std::swap(bytes[one + i], bytes[other + i]);
}

// A segment of a picture that is seen as it lies.
std::string exifOfTurned(std::string_view segment, const ExifPlaces &places)
{
    std::string turned(segment);
    const std::size_t low = places.ofOrientation + (places.isBigFirst ? 1 : 0);
    turned[places.ofOrientation] = turned[places.ofOrientation + 1] = 0;
    turned[low] = 1;
    if (swapsSides(places.orientation) && places.across > 0 && places.down > 0)
        swapBytes(turned, places.across, places.down, 4);
    return turned;
}

std::string jfifOfTurned(std::string_view segment, int orientation)
{
    constexpr std::size_t kAcrossOfJfif = 8;
    constexpr std::size_t kDownOfJfif = 10;
    std::string turned(segment);
    if (swapsSides(orientation) && turned.size() >= kDownOfJfif + 2)
        swapBytes(turned, kAcrossOfJfif, kDownOfJfif, 2);
    return turned;
}

std::string withHead(unsigned char mark, const std::string &segment)
{
    const std::size_t length = segment.size() + 2;
    return {char(kMark), char(mark), char(length >> 8U), char(length & 0xffU)};
}

struct Segment
{
    unsigned char mark = 0;
    std::string_view content{};
};

// All that stand before the picture. Errors: nothing where they do not follow each other.
std::optional<std::vector<Segment>> segmentsOf(std::string_view file)
{
    std::vector<Segment> segments;
    if (!has(file, 0, 2) || byteAt(file, 0) != kMark || byteAt(file, 1) != kBegin)
        return std::nullopt;
    std::size_t at = 2;
    while (true) {
        if (!has(file, at, 2) || byteAt(file, at) != kMark)
            return std::nullopt;
        const unsigned char mark = byteAt(file, at + 1);
        if (mark == kMark) { // one that fills up
            ++at;
            continue;
        }
        if (mark == kScan)
            return segments;
        if (mark <= 1 || (mark >= kFirstWithoutLength && mark <= kEnd) || !has(file, at + 2, 2))
            return std::nullopt;
        const std::size_t length =
            static_cast<std::size_t>(byteAt(file, at + 2)) << 8U | byteAt(file, at + 3);
        if (length < 2 || !has(file, at + 2, length))
            return std::nullopt;
        segments.push_back({mark, file.substr(at + 4, length - 2)});
        at += 2 + length;
    }
}

// A file of which there are segments has four bytes.
bool isBare(std::string_view file)
{
    return byteAt(file, 3) < kApp0 || byteAt(file, 3) > kApp15;
}

bool isExif(const Segment &segment)
{
    return segment.mark == kApp1 && segment.content.starts_with(kExif);
}

} // namespace

PictureNotes notesOfPicture(std::string_view file)
{
    const auto segments = segmentsOf(file);
    if (!segments)
        return {};
    ExifPlaces places;
    for (const Segment &segment : *segments) {
        if (isExif(segment)) {
            places = placesIn(segment.content);
            break; // there is one
        }
    }
    PictureNotes notes;
    notes.orientation = places.orientation;
    notes.isBare = isBare(file);
    if (notes.orientation == 1)
        return notes;
    bool hasExif = false;
    for (const Segment &segment : *segments) {
        std::string kept;
        if (isExif(segment) && !hasExif) {
            kept = exifOfTurned(segment.content, places);
            hasExif = true;
        } else if (segment.mark == kApp0 && segment.content.starts_with(kJfif)) {
            kept = jfifOfTurned(segment.content, notes.orientation);
        } else if (segment.mark == kApp2 && segment.content.starts_with(kProfile)) {
            kept = segment.content;
        }
        notes.hasAdobeMark =
            notes.hasAdobeMark || (segment.mark == kApp14 && segment.content.starts_with(kAdobe));
        if (!kept.empty())
            notes.segments += withHead(segment.mark, kept) + kept;
    }
    return notes;
}

} // namespace corvana::renderer
