#include "hosts/console/Files.h"

#include "zilvo/platform/values/Status.h"

#include <cerrno>
#include <fstream>
#include <unistd.h>

namespace zilvo::console {

using namespace platform;

namespace {

[[noreturn]] void fail(const std::filesystem::path& file, const std::string& why) {
    throw Failure(Status::Failed, file.string() + " cannot be written: " + why);
}

void write(const std::filesystem::path& target, const std::string& bytes, const std::filesystem::path& named) {
    errno = 0;
    std::ofstream out(target, std::ios::binary | std::ios::trunc);
    out << bytes;
    out.close();
    if (!out) fail(named, errno ? std::generic_category().message(errno) : "writing failed");
}

} // namespace

void writeFile(const std::filesystem::path& file, const std::string& bytes) {
    std::error_code error;
    const auto existing = std::filesystem::status(file, error);
    if (std::filesystem::is_directory(existing)) fail(file, "it is a directory");
    // A device or a pipe is written to; only a file can be replaced.
    if (std::filesystem::exists(existing) && !std::filesystem::is_regular_file(existing))
        return write(file, bytes, file);

    // A link stays, and what it names is replaced.
    auto target = std::filesystem::exists(existing) ? std::filesystem::canonical(file, error) : file;
    if (error) target = file;
    const auto partial = std::filesystem::path(target) += "." + std::to_string(getpid()) + ".part";
    try {
        write(partial, bytes, file);
        std::filesystem::rename(partial, target, error);
        if (error) fail(file, error.message());
    } catch (const Failure&) {
        std::filesystem::remove(partial, error);
        throw;
    }
}

void makeDirectory(const std::filesystem::path& directory) {
    std::error_code error;
    std::filesystem::create_directories(directory, error);
    if (error)
        throw Failure(Status::Failed, "the directory " + directory.string() + " cannot be made: " + error.message());
}

} // namespace zilvo::console
