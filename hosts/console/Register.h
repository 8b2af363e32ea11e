#pragma once

#include <filesystem>
#include <string>

namespace zilvo::console {

/// Both run the component's entry point and give a line that says what was done where.
std::string registerComponent(const std::filesystem::path& file);
/// What is registered for a file that is gone or broken is removed too. That nothing is registered is no failure.
std::string unregisterComponent(const std::filesystem::path& file);

} // namespace zilvo::console
