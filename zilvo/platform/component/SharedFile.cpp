#include "zilvo/platform/component/SharedFile.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zilvo::platform {

namespace {

constexpr mode_t UsualMode = 0666; // as the user's mask leaves it

[[noreturn]] void cannotWrite(const std::filesystem::path& file, Status status, const std::string& why) {
    throw Failure(status, file.string() + " cannot be written: " + why);
}

/// Waits for whoever holds the lock. Its file stays behind: were it removed, two processes could hold two of them.
FileDescriptor lockFor(const std::filesystem::path& file, Status onFailure) {
    const auto beside = std::filesystem::path(file) += ".lock";
    constexpr int Flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK; // nobody waits for the other end of a pipe
    FileDescriptor lock(open(beside.c_str(), Flags));
    if (!lock.isOpen() && errno == ENOENT) {
        const auto folder = file.parent_path();
        makeFolder(folder, onFailure);
        if (const auto why = whyReadOnly(folder); !why.empty()) cannotWrite(folder, onFailure, why);
        lock = FileDescriptor(open(beside.c_str(), Flags | O_CREAT, UsualMode));
    }
    struct stat found {};
    if (!lock.isOpen() || fstat(lock.number(), &found) != 0) cannotWrite(beside, onFailure, systemReason());
    if (!S_ISREG(found.st_mode)) cannotWrite(beside, onFailure, "it is no file");
    while (flock(lock.number(), LOCK_EX) != 0)
        if (errno != EINTR) cannotWrite(beside, onFailure, systemReason());
    return lock;
}

} // namespace

std::optional<std::string> readSharedFile(const std::filesystem::path& file, const std::string& contents,
                                          Status onFailure) {
    const auto fail = [&](const std::string& why) {
        throw Failure(onFailure, "the " + contents + " in " + file.string() + " cannot be read: " + why);
    };
    // A pipe is found out without waiting for somebody at its other end.
    const FileDescriptor in(open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!in.isOpen() && errno == ENOENT) return std::nullopt;
    struct stat found {};
    if (!in.isOpen() || fstat(in.number(), &found) != 0) fail(systemReason());
    if (!S_ISREG(found.st_mode)) fail("it is no file");
    std::string text;
    std::array<char, 65536> part{};
    for (;;) {
        const auto count = ::read(in.number(), part.data(), part.size());
        if (count < 0 && errno != EINTR) fail(systemReason());
        if (count == 0) return text;
        if (count > 0) text.append(part.data(), static_cast<std::size_t>(count));
    }
}

SharedFileLock::SharedFileLock(const std::filesystem::path& file, Status onFailure)
    : file_(withoutLinks(file)), onFailure_(onFailure), lock_(lockFor(file_, onFailure)) {}

void SharedFileLock::replace(std::string_view text) const {
    writeFile(file_, text, onFailure_);
}

std::filesystem::path SharedFileLock::setAside() const {
    std::error_code error;
    auto aside = std::filesystem::path(file_) += ".damaged";
    for (int number = 2; std::filesystem::exists(std::filesystem::symlink_status(aside, error)); ++number)
        aside = std::filesystem::path(file_) += ".damaged-" + std::to_string(number);
    if (std::rename(file_.c_str(), aside.c_str()) != 0) cannotWrite(aside, onFailure_, systemReason());
    return aside;
}

} // namespace zilvo::platform
