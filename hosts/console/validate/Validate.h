#pragma once

#include <chrono>
#include <filesystem>

namespace zilvo::console {

/// Checks a component as a host's maker does before trusting it, each check in a process of its own, and reports on
/// standard output, as text or JSON. True when nothing failed or crashed. Must not be called while the process has
/// other threads.
bool validate(const std::filesystem::path& component, bool json, std::chrono::seconds limit);

} // namespace zilvo::console
