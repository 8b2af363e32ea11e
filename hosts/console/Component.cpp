#include "hosts/console/Component.h"

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

} // namespace

std::filesystem::path componentFile(const std::filesystem::path& named) {
    if (!named.empty()) return named;
    auto beside = programFolder() / UsualName;
    std::error_code unreadable; // is told by who reads the file
    if (std::filesystem::status(beside, unreadable).type() != std::filesystem::file_type::not_found) return beside;

    const auto nothing = [&] {
        return "there is no component: none is named with --component FILE, none lies beside the program, at " +
               beside.string() + ", and none has been registered with zilvo register FILE";
    };
    Registrations registrations;
    inContext(nothing, [&] {
        for (const RegistrationStore& store : RegistrationStore::all())
            std::ranges::move(store.read(), std::back_inserter(registrations));
        if (registrations.empty()) RegistrationStore(); // which tells that there is no place for any
    });
    if (registrations.empty()) throw Failure(Status::FileNotFound, nothing());
    const auto nameOfFile = [](const Registration& each) { return each.file.filename(); };
    const auto usual = std::ranges::find(registrations, UsualName, nameOfFile);
    return usual == registrations.end() ? registrations.front().file : usual->file;
}

} // namespace zilvo::console
