#include "zilvo/platform/component/RegistrationFile.h"

#include "zilvo/platform/values/Status.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zilvo::platform {

namespace {

constexpr mode_t UsualMode = 0666; // as the user's mask leaves it

std::string reason() {
    return std::generic_category().message(errno);
}

[[noreturn]] void cannotRead(const std::filesystem::path& file, const std::string& why) {
    throw Failure(Status::RegistrationsUnreadable, "the registrations in " + file.string() + " cannot be read: " + why);
}

[[noreturn]] void cannotWrite(const std::filesystem::path& file, const std::string& why) {
    throw Failure(Status::RegistrationsUnwritable, file.string() + " cannot be written: " + why);
}

/// Follows links, also one that names a file which is not there yet. The file has been read, so they end.
std::filesystem::path withoutLinks(std::filesystem::path file) {
    while (std::filesystem::is_symlink(std::filesystem::symlink_status(file)))
        file = file.parent_path() / std::filesystem::read_symlink(file);
    return file;
}

/// By the owner's permission too, which the system does not hold an administrator to.
void requireWritable(const std::filesystem::path& path) {
    struct stat found {};
    if (stat(path.c_str(), &found) != 0) cannotWrite(path, reason());
    if ((found.st_mode & S_IWUSR) == 0) cannotWrite(path, "it is read-only");
    if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) cannotWrite(path, reason());
}

void makeFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) cannotWrite(folder, error.message());
}

/// Waits for whoever holds the lock. Its file stays behind: were it removed, two processes could hold two of them.
FileDescriptor lockFor(const std::filesystem::path& file) {
    const auto folder = file.parent_path();
    makeFolder(folder);
    requireWritable(folder);
    if (std::filesystem::exists(file)) requireWritable(file);
    const auto beside = std::filesystem::path(file) += ".lock";
    FileDescriptor lock(open(beside.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, UsualMode));
    if (!lock.isOpen()) cannotWrite(beside, reason());
    while (flock(lock.number(), LOCK_EX) != 0)
        if (errno != EINTR) cannotWrite(beside, reason());
    return lock;
}

void writeAll(const FileDescriptor& out, std::string_view text, const std::filesystem::path& file) {
    while (!text.empty()) {
        const auto count = write(out.number(), text.data(), text.size());
        if (count >= 0)
            text.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            cannotWrite(file, reason());
    }
}

void synchronise(const FileDescriptor& descriptor, const std::filesystem::path& path) {
    if (!descriptor.isOpen() || fsync(descriptor.number()) != 0) cannotWrite(path, reason());
}

} // namespace

FileDescriptor::~FileDescriptor() {
    if (isOpen()) close(number_);
}

std::optional<std::string> readRegistrationFile(const std::filesystem::path& file) {
    // A pipe is found out without waiting for somebody at its other end.
    const FileDescriptor in(open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!in.isOpen() && errno == ENOENT) return std::nullopt;
    struct stat found {};
    if (!in.isOpen() || fstat(in.number(), &found) != 0) cannotRead(file, reason());
    if (!S_ISREG(found.st_mode)) cannotRead(file, "it is no file");
    std::string text;
    std::array<char, 65536> part{};
    for (;;) {
        const auto count = ::read(in.number(), part.data(), part.size());
        if (count < 0 && errno != EINTR) cannotRead(file, reason());
        if (count == 0) return text;
        if (count > 0) text.append(part.data(), static_cast<std::size_t>(count));
    }
}

RegistrationFileLock::RegistrationFileLock(const std::filesystem::path& file)
    : file_(withoutLinks(file)), lock_(lockFor(file_)) {}

void RegistrationFileLock::replace(std::string_view text) const {
    // Always of this name, so that one that was left over when its writer was killed is used again.
    const auto fresh = std::filesystem::path(file_) += ".new";
    const FileDescriptor out(open(fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, UsualMode));
    if (!out.isOpen()) cannotWrite(fresh, reason());
    struct stat earlier {};
    const bool isNew = stat(file_.c_str(), &earlier) != 0;
    if (!isNew && fchmod(out.number(), earlier.st_mode & ALLPERMS) != 0) cannotWrite(fresh, reason());
    writeAll(out, text, fresh);
    synchronise(out, fresh);
    if (rename(fresh.c_str(), file_.c_str()) != 0) cannotWrite(file_, reason());
    const auto folder = file_.parent_path();
    synchronise(FileDescriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)), folder);
}

} // namespace zilvo::platform
