#pragma once

#include "zilvo/platform/values/Status.h"

#include <filesystem>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace zilvo::platform {

/// An open file of the system, or none when opening it failed. Closed with its end.
class FileDescriptor {
public:
    explicit FileDescriptor(int number) noexcept : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~FileDescriptor();

    bool isOpen() const noexcept { return number_ >= 0; }
    int number() const noexcept { return number_; }

private:
    int number_;
};

/// Replaces the whole content of a file, or makes the file. Fails with `onFailure`; the message names the file and the
/// reason.
///
/// The bytes go into a new file beside it, which takes its place once they are on the disk: whatever happens meanwhile,
/// to this process or to the machine, a reader finds the old content or the new one, and a call that fails leaves the
/// old one. A writer that is killed may leave the new file, .zilvo-*.new; it is in nobody's way. A link stays, and what
/// it names is written, though it be missing. The mode stays, owner and group where the system allows; another name of
/// the same file (a hard link) keeps the old content. A file that is read-only is not written.
///
/// Should the folder fail to reach the disk after the new file took its place, that is a failure too: the file is
/// written, but may not survive a loss of power. The message says so.
///
/// Not so careful, for want of a way: a file in a folder that cannot be written to is written in place, so that a
/// failure leaves it cut short; pipes and devices are written to; and so is what a name like /dev/stdout stands for,
/// from where it is on, behind what the process has printed.
void writeFile(const std::filesystem::path& file, std::string_view bytes, Status onFailure = Status::Failed);

/// Makes the folder and those above it where they are missing. Fails with `onFailure`.
void makeFolder(const std::filesystem::path& folder, Status onFailure = Status::Failed);

/// Fails with FileNotFound when there is no current folder any more.
std::filesystem::path absolutePath(const std::filesystem::path& file);

/// The folder that a variable of the environment names. Null when it is not set, or to no absolute path, which counts
/// as the same.
std::optional<std::filesystem::path> folderIn(const char* variable);

/// The files of a folder whose names end in that extension ("" for none), by their names; none when it cannot be read.
std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder, const std::filesystem::path& extension);

/// The file that a link, or a chain of them, names; it may be missing. Of links in a circle, one.
std::filesystem::path withoutLinks(std::filesystem::path file);

/// The component or library whose code or data an address of this process is. Fails with FileNotFound.
std::filesystem::path fileMappedAt(const void* address);

/// Why the file or folder cannot be written; empty when it can. By its mode too, which the system does not hold an
/// administrator to.
std::string whyReadOnly(const std::filesystem::path& path);

/// What the system says of its last call that failed.
std::string systemReason();

} // namespace zilvo::platform
