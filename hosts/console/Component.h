#pragma once

#include <filesystem>

namespace zilvo::console {

/// The component file to load: the one that is named, else the usual one, beside the program, registered or installed,
/// else any that is registered. Fails with FileNotFound, or as reading the registrations does.
std::filesystem::path componentFile(const std::filesystem::path& named);

} // namespace zilvo::console
