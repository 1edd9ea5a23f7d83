#include "renderer/OpenedDocument.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <poppler-document.h>
#include <poppler-image.h>
#include <poppler-page-renderer.h>
#include <poppler-page.h>

#include "renderer/protocol/MessageReading.h"

namespace corvana::renderer {

namespace {

// Units: pixels. What is larger is drawn in bands, each of which reads the whole page again:
// slower, and bounded in memory. A page that fills a screen of 3840 x 2160 is one band.
constexpr std::uint32_t kBandPixels = 9'000'000;
constexpr double kPointsPerInch = 72;

bool writeAll(int file, const char *data, std::size_t size, std::size_t offset)
{
    while (size > 0) {
        const ssize_t written = ::pwrite(file, data, size, static_cast<off_t>(offset));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        data += written;
        offset += static_cast<std::size_t>(written);
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

/// Writes the rows of a band. Poppler's rows may be longer than their pixels.
bool writeRows(const poppler::image &band, std::uint32_t firstRow, int file)
{
    const std::size_t row = std::size_t{4} * static_cast<std::size_t>(band.width());
    const auto stride = static_cast<std::size_t>(band.bytes_per_row());
    const auto rows = static_cast<std::size_t>(band.height());
    if (stride == row)
        return writeAll(file, band.const_data(), row * rows, row * firstRow);
    for (std::size_t i = 0; i < rows; ++i) {
        if (!writeAll(file, band.const_data() + i * stride, row, row * (firstRow + i)))
            return false;
    }
    return true;
}

/// As the page is read. Units: points. Null for a page whose size makes no sense.
struct Paper
{
    double width = 0;
    double height = 0;
};

std::optional<Paper> paperOf(const poppler::page &page)
{
    const poppler::rectf box = page.page_rect(poppler::crop_box);
    Paper paper{box.width(), box.height()};
    const poppler::page::orientation_enum orientation = page.orientation();
    if (orientation == poppler::page::landscape || orientation == poppler::page::seascape)
        std::swap(paper.width, paper.height);
    const auto isSide = [](double side) {
        return std::isfinite(side) && static_cast<float>(side) > 0 && side <= kMaxPaper;
    };
    if (!isSide(paper.width) || !isSide(paper.height))
        return std::nullopt;
    return paper;
}

/// A character as UTF-8, by hand: Poppler's own way opens files of the system, which nothing may
/// here.
std::string utf8(char32_t character)
{
    const auto part = [character](int shift) {
        return static_cast<char>(0x80 | ((character >> shift) & 0x3f));
    };
    if (character < 0x80)
        return {static_cast<char>(character)};
    if (character < 0x800)
        return {static_cast<char>(0xc0 | (character >> 6)), part(0)};
    if (character < 0x10000)
        return {static_cast<char>(0xe0 | (character >> 12)), part(6), part(0)};
    return {static_cast<char>(0xf0 | (character >> 18)), part(12), part(6), part(0)};
}

/// The character that begins there; U+FFFD for half of one.
char32_t characterAt(const poppler::ustring &text, std::size_t &at)
{
    constexpr char32_t kReplacement = 0xfffd;
    const char32_t unit = text[at++];
    const bool isHigh = unit >= 0xd800 && unit < 0xdc00;
    if (!isHigh)
        return unit >= 0xdc00 && unit < 0xe000 ? kReplacement : unit;
    const char32_t low = at < text.size() ? text[at] : 0;
    if (low < 0xdc00 || low >= 0xe000)
        return kReplacement;
    ++at;
    return 0x10000 + ((unit - 0xd800) << 10) + (low - 0xdc00);
}

/// As many whole characters as have room, and none that would move a cursor.
PageLabel pageLabel(const poppler::ustring &text, int number)
{
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = characterAt(text, at);
        const std::string next = character < 0x20 || character == 0x7f ? "?" : utf8(character);
        if (bytes.size() + next.size() > kLabelRoom)
            break;
        bytes += next;
    }
    PageLabel label;
    if (bytes == std::to_string(number))
        return label;
    label.bytes = static_cast<std::uint32_t>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), label.text.begin());
    return label;
}

/// What pdftoppm draws with, too: pages look as they do in other viewers.
void setUp(poppler::page_renderer &renderer)
{
    renderer.set_render_hint(poppler::page_renderer::antialiasing);
    renderer.set_render_hint(poppler::page_renderer::text_antialiasing);
    renderer.set_image_format(poppler::image::format_argb32);
}

} // namespace

MappedFile::MappedFile(int descriptor)
{
    struct stat information
    {
    };
    if (::fstat(descriptor, &information) != 0 || !S_ISREG(information.st_mode) ||
        information.st_size <= 0)
        return;
    // Poppler counts the bytes of a document in an int.
    m_isTooLarge = information.st_size > std::numeric_limits<int>::max();
    if (m_isTooLarge)
        return;
    const auto size = static_cast<std::size_t>(information.st_size);
    void *data = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor, 0);
    if (data == MAP_FAILED) {
        m_isTooLarge = errno == ENOMEM;
        return;
    }
    m_data = static_cast<const char *>(data);
    m_size = size;
}

MappedFile::~MappedFile()
{
    if (m_data)
        ::munmap(const_cast<char *>(m_data), m_size);
}

std::unique_ptr<OpenedDocument> OpenedDocument::open(int descriptor, const std::string &password,
                                                     Status &status)
{
    std::unique_ptr<OpenedDocument> opened(new OpenedDocument(descriptor));
    status = opened->m_file.isTooLarge() ? Status::TooLarge : Status::Damaged;
    if (!opened->m_file.data())
        return nullptr;
    // Somebody who has a password may look at the pages with it, whoever it was made for.
    opened->m_document.reset(poppler::document::load_from_raw_data(
        opened->m_file.data(), static_cast<int>(opened->m_file.size()), password, password));
    if (!opened->m_document)
        return nullptr;
    if (opened->m_document->is_locked()) {
        status = Status::PasswordNeeded;
        return nullptr;
    }
    opened->m_pages = opened->m_document->pages();
    if (opened->m_pages <= 0)
        return nullptr;
    if (static_cast<std::uint32_t>(opened->m_pages) > kMaxPages) {
        status = Status::TooLarge;
        return nullptr;
    }
    status = Status::Done;
    return opened;
}

OpenedDocument::OpenedDocument(int descriptor) : m_file(descriptor) {}

OpenedDocument::~OpenedDocument() = default;

PageSize OpenedDocument::size(int page) const
{
    const std::unique_ptr<poppler::page> found(m_document->create_page(page));
    const std::optional<Paper> paper = found ? paperOf(*found) : std::nullopt;
    if (!paper)
        return {};
    return {static_cast<float>(paper->width), static_cast<float>(paper->height)};
}

PageLabel OpenedDocument::label(int page) const
{
    const std::unique_ptr<poppler::page> found(m_document->create_page(page));
    return found ? pageLabel(found->label(), page + 1) : PageLabel();
}

Status OpenedDocument::draw(const DrawPage &request, int picture) const
{
    struct stat information
    {
    };
    if (::fstat(picture, &information) != 0 || information.st_size < 0 ||
        static_cast<std::size_t>(information.st_size) < pictureBytes(request.width, request.height))
        return Status::Refused;
    if (request.page >= static_cast<std::uint32_t>(m_pages))
        return Status::Damaged;
    const std::unique_ptr<poppler::page> page(
        m_document->create_page(static_cast<int>(request.page)));
    const std::optional<Paper> paper = page ? paperOf(*page) : std::nullopt;
    if (!paper)
        return Status::Damaged;

    poppler::page_renderer renderer;
    setUp(renderer);
    const auto width = static_cast<int>(request.width);
    const std::uint32_t bandRows = std::max(kBandPixels / request.width, 1U);
    for (std::uint32_t row = 0; row < request.height; row += bandRows) {
        const auto rows = static_cast<int>(std::min(bandRows, request.height - row));
        const poppler::image band = renderer.render_page(
            page.get(), kPointsPerInch * request.width / paper->width,
            kPointsPerInch * request.height / paper->height, 0, static_cast<int>(row), width, rows);
        if (!band.is_valid() || band.width() != width || band.height() != rows ||
            band.format() != poppler::image::format_argb32)
            return Status::Damaged;
        if (!writeRows(band, row, picture))
            return Status::Refused;
    }
    return Status::Done;
}

} // namespace corvana::renderer
