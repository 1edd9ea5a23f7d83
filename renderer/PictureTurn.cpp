#include "renderer/PictureTurn.h"

#include <array>
#include <cstdint>
#include <memory>

#include <turbojpeg.h>

#include "renderer/protocol/Messages.h"

namespace corvana::renderer {

namespace {

using Bytes = std::vector<unsigned char>;

// Compressed once more at this quality a picture differs from what it was by rounding only.
constexpr int kQuality = 100;
// Nobody waits for a picture that takes hundreds of scans to get a little better each time.
constexpr int kFlags = TJFLAG_LIMITSCANS | TJFLAG_ACCURATEDCT;

// By orientation.
constexpr std::array kTurns{TJXOP_NONE,   TJXOP_NONE,       TJXOP_HFLIP,
                            TJXOP_ROT180, TJXOP_VFLIP,      TJXOP_TRANSPOSE,
                            TJXOP_ROT90,  TJXOP_TRANSVERSE, TJXOP_ROT270};

// What the library has allocated.
struct Output
{
    Output() = default;
    ~Output() { tjFree(data); }
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;

    void clear()
    {
        tjFree(data);
        data = nullptr;
        size = 0;
    }

    unsigned char *data = nullptr;
    unsigned long size = 0; // NOLINT(google-runtime-int): the library's own type
};

// A rectangle of samples without gaps between its rows.
struct Plane
{
    int width = 0;
    int height = 0;
    int sampleBytes = 1;
    Bytes bytes{};

    void allocate()
    {
        bytes.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) *
                     static_cast<std::size_t>(sampleBytes));
    }
};

Plane turned(const Plane &plane, int orientation)
{
    const bool swaps = swapsSides(orientation);
    Plane result{swaps ? plane.height : plane.width, swaps ? plane.width : plane.height,
                 plane.sampleBytes};
    result.allocate();
    const bool fromRight =
        orientation == 2 || orientation == 3 || orientation == 7 || orientation == 8;
    const bool fromBelow =
        orientation == 3 || orientation == 4 || orientation == 6 || orientation == 7;
    const auto bytes = static_cast<std::size_t>(plane.sampleBytes);
    unsigned char *to = result.bytes.data();
    for (int y = 0; y < result.height; ++y) {
        for (int x = 0; x < result.width; ++x) {
            const int across = swaps ? y : x;
            const int down = swaps ? x : y;
            const auto column =
                static_cast<std::size_t>(fromRight ? plane.width - 1 - across : across);
            const auto row = static_cast<std::size_t>(fromBelow ? plane.height - 1 - down : down);
            const std::size_t from = (row * static_cast<std::size_t>(plane.width) + column) * bytes;
            for (std::size_t i = 0; i < bytes; ++i)
                *to++ = plane.bytes[from + i];
        }
    }
    return result;
}

// How much of the same a row and a column of a plane stand for, where sides are swapped.
// Errors: -1 where JPEG as this library writes it has no such picture.
int swappedSampling(int sampling)
{
    switch (sampling) {
    case TJSAMP_422:
        return TJSAMP_440;
    case TJSAMP_440:
        return TJSAMP_422;
    case TJSAMP_411:
        return -1;
    default:
        return sampling;
    }
}

struct CloseLibrary
{
    void operator()(tjhandle library) const { tjDestroy(library); }
};

// Turns one picture.
class Turner
{
public:
    Turner(std::string_view file, const PictureNotes &notes)
        : m_file(reinterpret_cast<const unsigned char *>(file.data())), m_size(file.size()),
          m_orientation(notes.orientation), m_library(tjInitTransform())
    {
    }

    /// Errors: false.
    bool turn(const PictureNotes &notes, Output &output)
    {
        if (!m_library || !readHead())
            return false;
        // Who reads four colours without that mark takes them the other way round with it.
        if (hasFourColors() && !notes.hasAdobeMark)
            return false;
        return turnExactly(output) || (isPlanar() ? turnPlanes(output) : turnPixels(output));
    }

private:
    // A picture that is not whole is turned as far as it goes.
    bool isDone(int result) const
    {
        return result == 0 || tjGetErrorCode(m_library.get()) == TJERR_WARNING;
    }
    bool readHead()
    {
        return isDone(tjDecompressHeader3(m_library.get(), m_file, m_size, &m_width, &m_height,
                                          &m_sampling, &m_colors)) &&
               m_width > 0 && m_height > 0 && m_sampling >= 0 &&
               static_cast<std::uint64_t>(m_width) * static_cast<std::uint64_t>(m_height) <=
                   kMaxPixels;
    }
    bool hasFourColors() const { return m_colors == TJCS_CMYK || m_colors == TJCS_YCCK; }
    bool isPlanar() const
    {
        return (m_colors == TJCS_YCbCr || m_colors == TJCS_GRAY) && turnedSampling() >= 0;
    }
    int turnedSampling() const
    {
        return swapsSides(m_orientation) ? swappedSampling(m_sampling) : m_sampling;
    }

    // The very same picture: what is compressed is put elsewhere, and nothing is compressed anew.
    // Not where a side is no multiple of the blocks that a picture is made of.
    bool turnExactly(Output &output)
    {
        tjtransform transform{};
        transform.op = kTurns.at(static_cast<std::size_t>(m_orientation));
        transform.options = TJXOPT_PERFECT | TJXOPT_COPYNONE;
        const int result = tjTransform(m_library.get(), m_file, m_size, 1, &output.data,
                                       &output.size, &transform, kFlags);
        const bool isTurned = isDone(result) && output.size > 0;
        if (!isTurned)
            output.clear();
        return isTurned;
    }

    // Brightness and colours as they are in the file, without making pixels of them: that takes a
    // third of the memory, and changes the least.
    bool turnPlanes(Output &output)
    {
        const std::size_t count = m_colors == TJCS_GRAY ? 1 : 3;
        std::array<Plane, 3> planes;
        std::array<unsigned char *, 3> places{};
        for (std::size_t i = 0; i < count; ++i) {
            const int number = static_cast<int>(i);
            planes[i].width = tjPlaneWidth(number, m_width, m_sampling);
            planes[i].height = tjPlaneHeight(number, m_height, m_sampling);
            planes[i].allocate();
            places[i] = planes[i].bytes.data();
        }
        if (!isDone(tjDecompressToYUVPlanes(m_library.get(), m_file, m_size, places.data(), m_width,
                                            nullptr, m_height, kFlags)))
            return false;
        std::array<const unsigned char *, 3> turnedPlaces{};
        for (std::size_t i = 0; i < count; ++i) {
            planes[i] = turned(planes[i], m_orientation);
            turnedPlaces[i] = planes[i].bytes.data();
        }
        const bool swaps = swapsSides(m_orientation);
        return tjCompressFromYUVPlanes(m_library.get(), turnedPlaces.data(),
                                       swaps ? m_height : m_width, nullptr,
                                       swaps ? m_width : m_height, turnedSampling(), &output.data,
                                       &output.size, kQuality, kFlags) == 0;
    }

    bool turnPixels(Output &output)
    {
        const bool isGray = m_colors == TJCS_GRAY;
        const int format = hasFourColors() ? TJPF_CMYK : isGray ? TJPF_GRAY : TJPF_RGB;
        Plane pixels{m_width, m_height, tjPixelSize[format]};
        pixels.allocate();
        if (!isDone(tjDecompress2(m_library.get(), m_file, m_size, pixels.bytes.data(), m_width, 0,
                                  m_height, format, kFlags)))
            return false;
        pixels = turned(pixels, m_orientation);
        return tjCompress2(m_library.get(), pixels.bytes.data(), pixels.width, 0, pixels.height,
                           format, &output.data, &output.size, isGray ? TJSAMP_GRAY : TJSAMP_444,
                           kQuality, kFlags) == 0;
    }

    const unsigned char *m_file;
    unsigned long m_size; // NOLINT(google-runtime-int): the library's own type
    int m_orientation;
    std::unique_ptr<void, CloseLibrary> m_library;
    int m_width = 0;
    int m_height = 0;
    int m_sampling = 0;
    int m_colors = 0;
};

// The library says at the beginning of a file that its pixels are square, and no more of its
// resolution; what is known of that stands in the notes.
Bytes withNotes(const Output &picture, const PictureNotes &notes)
{
    constexpr std::size_t kBegin = 2;
    constexpr unsigned char kApp0 = 0xe0;
    std::size_t rest = kBegin;
    if (picture.size > kBegin + 4 && picture.data[kBegin + 1] == kApp0)
        rest +=
            2 + static_cast<std::size_t>(picture.data[kBegin + 2] << 8 | picture.data[kBegin + 3]);
    if (rest >= picture.size)
        return {};
    Bytes file(picture.data, picture.data + kBegin);
    file.reserve(picture.size + notes.segments.size());
    file.insert(file.end(), notes.segments.begin(), notes.segments.end());
    file.insert(file.end(), picture.data + rest, picture.data + picture.size);
    return file;
}

// The picture stays what it is, byte by byte: what a known segment would say of its colours and
// its resolution stays unsaid.
Bytes withEmptySegment(std::string_view file)
{
    constexpr std::size_t kBegin = 2;
    constexpr std::array<unsigned char, 4> kEmptyApp15{0xff, 0xef, 0, 2};
    Bytes labelled(file.begin(), file.begin() + kBegin);
    labelled.reserve(file.size() + kEmptyApp15.size());
    labelled.insert(labelled.end(), kEmptyApp15.begin(), kEmptyApp15.end());
    labelled.insert(labelled.end(), file.begin() + kBegin, file.end());
    return labelled;
}

} // namespace

std::vector<unsigned char> turnedPicture(std::string_view file, const PictureNotes &notes)
{
    Output output;
    const bool isToBeTurned = notes.orientation > 1 && notes.orientation <= 8;
    if (isToBeTurned && Turner(file, notes).turn(notes, output))
        return withNotes(output, notes);
    return notes.isBare ? withEmptySegment(file) : Bytes();
}

} // namespace corvana::renderer
