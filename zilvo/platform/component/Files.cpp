#include "zilvo/platform/component/Files.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <fstream>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace zilvo::platform {

namespace {

constexpr mode_t UsualMode = 0666; // as the user's mask leaves it

/// Whether the file is one of the names under which the system shows a process its own descriptors.
bool isOwnDescriptor(const std::filesystem::path& file) {
    std::error_code error;
    return std::filesystem::equivalent(file.parent_path(), "/proc/self/fd", error);
}

std::filesystem::path folderOf(const std::filesystem::path& file) {
    return file.has_parent_path() ? file.parent_path() : ".";
}

/// Brings an open file to the disk; false when that failed. What has no place there gives EINVAL.
bool synchronise(const FileDescriptor& file) {
    return file.isOpen() && (fsync(file.number()) == 0 || errno == EINVAL);
}

/// A file of a name that nothing else has, which goes away unless it is renamed. None when it could not be made.
class NewFile {
public:
    explicit NewFile(const std::filesystem::path& folder) : descriptor_(make(folder, path_)) {}
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile() {
        if (descriptor_.isOpen() && !path_.empty()) unlink(path_.c_str());
    }

    const FileDescriptor& descriptor() const noexcept { return descriptor_; }
    bool rename(const std::filesystem::path& target) {
        if (std::rename(path_.c_str(), target.c_str()) != 0) return false;
        path_.clear();
        return true;
    }

private:
    static FileDescriptor make(const std::filesystem::path& folder, std::filesystem::path& path) {
        for (unsigned number = std::random_device()();; ++number) {
            path = folder / (".zilvo-" + std::to_string(number) + ".new");
            FileDescriptor made(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, UsualMode));
            if (made.isOpen() || errno != EEXIST) return made;
        }
    }

    std::filesystem::path path_;
    FileDescriptor descriptor_;
};

/// How a file is written, and what is said when that fails.
struct Writing {
    const std::filesystem::path& file; ///< as the caller names it
    std::string_view bytes;
    Status onFailure;

    [[noreturn]] void fail(const std::string& why) const {
        throw Failure(onFailure, file.string() + " cannot be written: " + why);
    }

    void into(int descriptor) const {
        for (auto left = bytes; !left.empty();) {
            const auto count = write(descriptor, left.data(), left.size());
            if (count >= 0)
                left.remove_prefix(static_cast<std::size_t>(count));
            else if (errno != EINTR)
                fail(systemReason());
        }
    }

    void inPlace(const std::filesystem::path& target) const {
        const FileDescriptor out(open(target.c_str(), O_WRONLY | O_TRUNC | O_NOCTTY | O_CLOEXEC));
        if (!out.isOpen()) fail(systemReason());
        into(out.number());
        if (!synchronise(out)) fail(systemReason());
    }

    /// `earlier` is what is replaced; null for nothing.
    void beside(const std::filesystem::path& target, const struct stat* earlier) const {
        const auto folder = folderOf(target);
        NewFile fresh(folder);
        const FileDescriptor& out = fresh.descriptor();
        if (!out.isOpen()) fail(systemReason());
        if (earlier) {
            [[maybe_unused]] const int kept = fchown(out.number(), earlier->st_uid, earlier->st_gid);
            if (fchmod(out.number(), earlier->st_mode & 07777) != 0) fail(systemReason());
        }
        into(out.number());
        if (!synchronise(out) || !fresh.rename(target)) fail(systemReason());
        if (!synchronise(FileDescriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))))
            throw Failure(onFailure, file.string() + " is written, but may not survive a loss of power: its folder " +
                                         "cannot be brought to the disk: " + systemReason());
    }
};

} // namespace

FileDescriptor::~FileDescriptor() {
    if (isOpen()) close(number_);
}

void writeFile(const std::filesystem::path& file, std::string_view bytes, Status onFailure) {
    const Writing writing{file, bytes, onFailure};
    const auto target = withoutLinks(file);
    if (isOwnDescriptor(target)) {
        std::fflush(nullptr); // what was printed earlier comes first
        const std::string name = target.filename();
        int descriptor = -1;
        std::from_chars(name.data(), name.data() + name.size(), descriptor);
        return writing.into(descriptor);
    }
    struct stat earlier {};
    const bool isThere = stat(file.c_str(), &earlier) == 0;
    if (!isThere && errno != ENOENT) writing.fail(systemReason());
    if (isThere && S_ISDIR(earlier.st_mode)) writing.fail("it is a directory");
    if (isThere && !S_ISREG(earlier.st_mode)) return writing.inPlace(target);
    if (isThere)
        if (const auto why = whyReadOnly(target); !why.empty()) writing.fail(why);
    const auto why = whyReadOnly(folderOf(target));
    if (why.empty()) return writing.beside(target, isThere ? &earlier : nullptr);
    if (!isThere) writing.fail("its folder: " + why);
    writing.inPlace(target);
}

void makeFolder(const std::filesystem::path& folder, Status onFailure) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) throw Failure(onFailure, "the directory " + folder.string() + " cannot be made: " + error.message());
}

std::filesystem::path absolutePath(const std::filesystem::path& file) {
    std::error_code error;
    auto path = std::filesystem::absolute(file, error);
    if (error) throw Failure(Status::FileNotFound, file.string() + " cannot be found: " + error.message());
    return path;
}

std::optional<std::filesystem::path> folderIn(const char* variable) {
    const char* value = std::getenv(variable);
    return value && std::filesystem::path(value).is_absolute() ? std::optional<std::filesystem::path>(value)
                                                               : std::nullopt;
}

std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder,
                                           const std::filesystem::path& extension) {
    std::vector<std::filesystem::path> files;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error))
        if (entry.path().extension() == extension) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::filesystem::path withoutLinks(std::filesystem::path file) {
    constexpr int MostLinks = 40; // as the system follows
    std::error_code error;
    for (int links = 0; links < MostLinks && !isOwnDescriptor(file); ++links) {
        if (!std::filesystem::is_symlink(std::filesystem::symlink_status(file, error))) break;
        file = file.parent_path() / std::filesystem::read_symlink(file, error);
    }
    return file;
}

/// A component does not know its own file, but the system knows what is mapped where its data lies. The loader knows
/// the name that it was given, which may be relative to a folder that is no longer the current one.
std::filesystem::path fileMappedAt(const void* address) {
    Dl_info loaded{};
    if (dladdr(address, &loaded) != 0) {
        const auto start = reinterpret_cast<std::uintptr_t>(loaded.dli_fbase);
        std::ifstream maps("/proc/self/maps"); // "7f00-7f10 r--p 00000000 08:01 1234   /the/file"
        for (std::string line; std::getline(maps, line);) {
            std::uintptr_t from = 0;
            std::from_chars(line.data(), line.data() + line.size(), from, 16);
            const auto path = line.find('/');
            if (from == start && path != std::string::npos) return line.substr(path);
        }
    }
    throw Failure(Status::FileNotFound, "the file of a component or library that is loaded cannot be found");
}

std::string whyReadOnly(const std::filesystem::path& path) {
    struct stat found {};
    if (stat(path.c_str(), &found) != 0) return systemReason();
    if ((found.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) return "it is read-only";
    return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0 ? "" : systemReason();
}

std::string systemReason() {
    return std::generic_category().message(errno);
}

} // namespace zilvo::platform
