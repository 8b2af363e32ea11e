#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace zilvo::platform {

/// The file of a registration store is replaced as a whole: whatever happens to the process that writes, a reader
/// finds the old text or the new one.

/// The text; null when there is no such file. Fails with RegistrationsUnreadable.
std::optional<std::string> readRegistrationFile(const std::filesystem::path& file);

/// An open file of the system, or none when opening it failed. Closed with its end.
class FileDescriptor {
public:
    explicit FileDescriptor(int number) noexcept : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&&) = delete;
    ~FileDescriptor();

    bool isOpen() const noexcept { return number_ >= 0; }
    int number() const noexcept { return number_; }

private:
    int number_;
};

/// Keeps other processes from changing the file as long as it lives; readers go on. All calls fail with
/// RegistrationsUnwritable.
class RegistrationFileLock {
public:
    /// Makes the folder of a new file. A link stays one: what it names is written.
    explicit RegistrationFileLock(const std::filesystem::path& file);

    void replace(std::string_view text) const;

private:
    std::filesystem::path file_; ///< no link
    FileDescriptor lock_;
};

} // namespace zilvo::platform
