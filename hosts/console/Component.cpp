#include "hosts/console/Component.h"

#include "zilvo/platform/component/Components.h"
#include "zilvo/platform/component/RegistrationStore.h"

#include <algorithm>

namespace zilvo::console {

using namespace platform;

namespace {

constexpr const char* UsualName = "ZilvoButtons-445.Ocx";

std::filesystem::path programFolder() {
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error)
        throw Failure(Status::FileNotFound, "cannot tell where the program lies (" + error.message() +
                                                "): name the component with --component FILE");
    return program.parent_path();
}

bool isThere(const std::filesystem::path& file) {
    std::error_code unreadable; // is told by who reads the file
    return std::filesystem::status(file, unreadable).type() != std::filesystem::file_type::not_found;
}

} // namespace

std::filesystem::path componentFile(const std::filesystem::path& named) {
    if (!named.empty()) return named;
    auto beside = programFolder() / UsualName;
    if (isThere(beside)) return beside;
    auto installed = installedComponents() / UsualName;

    const auto nothing = [&] {
        return "there is no component: none is named with --component FILE, none lies beside the program, at " +
               beside.string() + ", none is installed, at " + installed.string() +
               ", and none has been registered with zilvo register FILE";
    };
    Registrations registrations;
    inContext(nothing, [&] {
        for (const RegistrationStore& store : RegistrationStore::all())
            for (Registration& each : store.read())
                registrations.push_back(std::move(each));
    });
    const auto isUsual = [](const Registration& each) { return each.file.filename() == UsualName; };
    const auto usual = std::find_if(registrations.begin(), registrations.end(), isUsual);
    if (usual != registrations.end()) return usual->file;
    if (isThere(installed)) return installed;
    if (!registrations.empty()) return registrations.front().file;
    inContext(nothing, [] { RegistrationStore(); }); // which tells when there is no place for any
    throw Failure(Status::FileNotFound, nothing());
}

} // namespace zilvo::console
