#pragma once

#include <filesystem>

namespace zilvo::console {

/// The component file to load: the one that is named, else the one that lies beside the program.
std::filesystem::path componentFile(const std::filesystem::path& named);

} // namespace zilvo::console
