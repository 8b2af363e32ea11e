#pragma once

#include "tests/support/Outcome.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <unistd.h>

namespace zilvo::platform {

namespace fs = std::filesystem;

inline std::string contentOf(const fs::path& file) {
    std::ostringstream out;
    out << std::ifstream(file, std::ios::binary).rdbuf();
    return out.str();
}

inline void write(const fs::path& file, const std::string& text) {
    std::ofstream(file, std::ios::binary) << text;
}

/// Runs the body in a process of its own, which ends in a signal when it fails.
template <class Body>
pid_t inChild(const Body& body) noexcept {
    const pid_t child = fork();
    if (child != 0) return child;
    body();
    _exit(0);
}

/// Has a folder of its own for each test.
class FolderTest : public testing::Test {
protected:
    FolderTest() { fs::create_directories(folder); }
    ~FolderTest() override {
        fs::permissions(folder, fs::perms::owner_all);
        fs::remove_all(folder);
    }

    std::ptrdiff_t filesInFolder() const { return std::distance(fs::directory_iterator(folder), {}); }

    const fs::path folder = fs::canonical(fs::temp_directory_path()) / ("zilvo-test-" + std::to_string(getpid()));
};

} // namespace zilvo::platform
