#pragma once

#include <string>
#include <vector>

namespace corvana::renderer {

/// Reads once what is the same for all documents: the configuration and the caches of fontconfig,
/// and what Poppler reads before its first page. To be called before the process is locked in.
/// Answers the folders and files that have to stay readable: fonts, and Poppler's data.
std::vector<std::string> prepareFonts();

} // namespace corvana::renderer
