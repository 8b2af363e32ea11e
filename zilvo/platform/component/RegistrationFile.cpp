#include "zilvo/platform/component/RegistrationFile.h"

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

[[noreturn]] void cannotRead(const std::filesystem::path& file, const std::string& why) {
    throw Failure(Status::RegistrationsUnreadable, "the registrations in " + file.string() + " cannot be read: " + why);
}

[[noreturn]] void cannotWrite(const std::filesystem::path& file, const std::string& why) {
    throw Failure(Status::RegistrationsUnwritable, file.string() + " cannot be written: " + why);
}

/// Waits for whoever holds the lock. Its file stays behind: were it removed, two processes could hold two of them.
FileDescriptor lockFor(const std::filesystem::path& file) {
    const auto beside = std::filesystem::path(file) += ".lock";
    constexpr int Flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK; // nobody waits for the other end of a pipe
    FileDescriptor lock(open(beside.c_str(), Flags));
    if (!lock.isOpen() && errno == ENOENT) {
        const auto folder = file.parent_path();
        makeFolder(folder, Status::RegistrationsUnwritable);
        if (const auto why = whyReadOnly(folder); !why.empty()) cannotWrite(folder, why);
        lock = FileDescriptor(open(beside.c_str(), Flags | O_CREAT, UsualMode));
    }
    struct stat found {};
    if (!lock.isOpen() || fstat(lock.number(), &found) != 0) cannotWrite(beside, systemReason());
    if (!S_ISREG(found.st_mode)) cannotWrite(beside, "it is no file");
    while (flock(lock.number(), LOCK_EX) != 0)
        if (errno != EINTR) cannotWrite(beside, systemReason());
    return lock;
}

} // namespace

std::optional<std::string> readRegistrationFile(const std::filesystem::path& file) {
    // A pipe is found out without waiting for somebody at its other end.
    const FileDescriptor in(open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!in.isOpen() && errno == ENOENT) return std::nullopt;
    struct stat found {};
    if (!in.isOpen() || fstat(in.number(), &found) != 0) cannotRead(file, systemReason());
    if (!S_ISREG(found.st_mode)) cannotRead(file, "it is no file");
    std::string text;
    std::array<char, 65536> part{};
    for (;;) {
        const auto count = ::read(in.number(), part.data(), part.size());
        if (count < 0 && errno != EINTR) cannotRead(file, systemReason());
        if (count == 0) return text;
        if (count > 0) text.append(part.data(), static_cast<std::size_t>(count));
    }
}

RegistrationFileLock::RegistrationFileLock(const std::filesystem::path& file)
    : file_(withoutLinks(file)), lock_(lockFor(file_)) {}

void RegistrationFileLock::replace(std::string_view text) const {
    writeFile(file_, text, Status::RegistrationsUnwritable);
}

std::filesystem::path RegistrationFileLock::setAside() const {
    std::error_code error;
    auto aside = std::filesystem::path(file_) += ".damaged";
    for (int number = 2; std::filesystem::exists(std::filesystem::symlink_status(aside, error)); ++number)
        aside = std::filesystem::path(file_) += ".damaged-" + std::to_string(number);
    if (std::rename(file_.c_str(), aside.c_str()) != 0) cannotWrite(aside, systemReason());
    return aside;
}

} // namespace zilvo::platform
