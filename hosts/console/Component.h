#pragma once

#include <filesystem>

namespace zilvo::console {

/// The component file to load: the one that is named, else the one that lies beside the program, else a registered
/// one, the usual one before others. Fails with FileNotFound, or as reading the registrations does.
std::filesystem::path componentFile(const std::filesystem::path& named);

} // namespace zilvo::console
