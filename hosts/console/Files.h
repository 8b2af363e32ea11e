#pragma once

#include <filesystem>
#include <string>

namespace zilvo::console {

/// Writes all the bytes or, failing with Failed, leaves what was there.
void writeFile(const std::filesystem::path& file, const std::string& bytes);

/// Makes the directory and those above it where they are missing; fails with Failed.
void makeDirectory(const std::filesystem::path& directory);

} // namespace zilvo::console
