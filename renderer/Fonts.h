#pragma once

#include <memory>
#include <string>
#include <vector>

namespace poppler {
class document;
}

namespace corvana::renderer {

/// Reads the configuration and the caches of fontconfig, which nothing has to read any more when
/// the process is locked in. Answers the folders and files that have to stay readable: fonts, and
/// Poppler's data.
std::vector<std::string> prepareFonts();

/// Holds what Poppler reads for all documents: its tables, and which font stands in for which. It
/// would forget that with the last document. To be made while there is nothing else to do.
class WarmFonts
{
public:
    WarmFonts();
    ~WarmFonts();
    WarmFonts(WarmFonts &&) noexcept;

private:
    std::unique_ptr<poppler::document> m_document;
};

} // namespace corvana::renderer
