#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace zilvo::console {

/// What to do with transcripts.
struct Playing {
    std::vector<std::string> files;
    std::filesystem::path component; ///< as given on the command line; empty for the usual one
    std::chrono::seconds limit;      ///< for each statement
    bool write = false;              ///< what is observed goes into the files
};

/// Plays each transcript in a process of its own and reports on it; true when all went as written or were written.
bool playTranscripts(const Playing& playing);

} // namespace zilvo::console
