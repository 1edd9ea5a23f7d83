#include "renderer/Fonts.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <memory>
#include <set>
#include <string_view>

#include <fontconfig/fontconfig.h>
#include <poppler-document.h>
#include <poppler-image.h>
#include <poppler-page-renderer.h>
#include <poppler-page.h>
#include <sys/stat.h>

namespace corvana::renderer {

namespace {

/// A page with a word in a font that it does not bring along: Poppler asks fontconfig for one, and
/// reads its lists of characters.
constexpr std::string_view kFirstPage =
    "%PDF-1.4\n"
    "1 0 obj\n<</Type/Catalog/Pages 2 0 R>>\nendobj\n"
    "2 0 obj\n<</Type/Pages/Count 1/Kids[3 0 R]>>\nendobj\n"
    "3 0 obj\n<</Type/Page/Parent 2 0 R/MediaBox[0 0 20 20]/Contents 4 0 R/Resources<</Font<</F "
    "<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>>>>>>>\nendobj\n"
    "4 0 obj\n<</Length 30>>\nstream\nBT /F 9 Tf 2 2 Td (page) Tj ET\nendstream\nendobj\n"
    "trailer\n<</Root 1 0 R/Size 5>>\n";

std::string canonical(const std::string &path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr),
                                                           &std::free);
    return real ? real.get() : std::string();
}

bool isLink(const std::string &path)
{
    struct stat information
    {
    };
    return ::lstat(path.c_str(), &information) == 0 && S_ISLNK(information.st_mode);
}

std::set<std::string> fontFolders()
{
    std::set<std::string> folders;
    FcStrList *list = FcConfigGetFontDirs(nullptr);
    while (list) {
        const FcChar8 *folder = FcStrListNext(list);
        if (!folder)
            break;
        folders.insert(reinterpret_cast<const char *>(folder));
    }
    if (list)
        FcStrListDone(list);
    return folders;
}

/// A font may be a link to somewhere else, or lie in a folder that is one.
std::set<std::string> linkedFonts()
{
    std::set<std::string> found;
    std::map<std::string, std::string> folders; // of the fonts, and where they really are
    const FcFontSet *fonts = FcConfigGetFonts(nullptr, FcSetSystem);
    for (int i = 0; fonts && i < fonts->nfont; ++i) {
        FcChar8 *name = nullptr;
        if (FcPatternGetString(fonts->fonts[i], FC_FILE, 0, &name) != FcResultMatch)
            continue;
        const std::string file(reinterpret_cast<const char *>(name));
        const std::string folder = file.substr(0, file.rfind('/'));
        if (const auto [entry, isNew] = folders.try_emplace(folder); isNew) {
            entry->second = canonical(folder);
            if (entry->second != folder)
                found.insert(entry->second);
        }
        if (isLink(file))
            found.insert(canonical(file));
    }
    found.erase(std::string());
    return found;
}

} // namespace

std::vector<std::string> prepareFonts()
{
    FcInit();
    std::set<std::string> readable = fontFolders();
    readable.merge(linkedFonts());
    // Where distributions have the package poppler-data, and where it is built by hand.
    readable.insert({"/usr/share/poppler", "/usr/local/share/poppler"});
    return {readable.begin(), readable.end()};
}

WarmFonts::WarmFonts()
    : m_document(poppler::document::load_from_raw_data(kFirstPage.data(),
                                                       static_cast<int>(kFirstPage.size())))
{
    const std::unique_ptr<poppler::page> page(m_document ? m_document->create_page(0) : nullptr);
    if (page)
        poppler::page_renderer().render_page(page.get());
}

WarmFonts::~WarmFonts() = default;
WarmFonts::WarmFonts(WarmFonts &&) noexcept = default;

} // namespace corvana::renderer
