#include "hosts/console/Component.h"

#include "platform/values/Status.h"

namespace zilvo::console {

namespace {

constexpr const char* UsualName = "ZilvoButtons-445.Ocx";

} // namespace

std::filesystem::path componentFile(const std::filesystem::path& named) {
    if (!named.empty()) return named;
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error)
        throw platform::Failure(platform::Status::FileNotFound, "cannot tell where the program lies (" +
                                                                    error.message() +
                                                                    "): name the component with --component FILE");
    return program.parent_path() / UsualName;
}

} // namespace zilvo::console
