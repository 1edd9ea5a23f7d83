#pragma once

#include <string>
#include <vector>

namespace corvana::renderer {

/// From now on this process reads files and folders below `readable` (a file or a folder, which
/// need not be there) and does nothing else with files, and talks to no network: Landlock. Answers
/// its version; 0 where there is none.
int fenceFiles(const std::vector<std::string> &readable);

} // namespace corvana::renderer
