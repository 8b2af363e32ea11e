#include "zilvo/platform/component/SelfRegistration.h"

#include "zilvo/platform/component/RegistrationStore.h"

#include <charconv>
#include <cstdint>
#include <dlfcn.h>
#include <fstream>

namespace zilvo::platform {

namespace {

thread_local ErrorInfo registrationError;

/// A component does not know its own file, but the system knows what is mapped where the module lies. The loader
/// knows the name that it was given, which may be relative to a folder that is no longer the current one.
std::filesystem::path fileOf(const ComponentModule& module) {
    Dl_info loaded{};
    if (dladdr(&module, &loaded) != 0) {
        const auto start = reinterpret_cast<std::uintptr_t>(loaded.dli_fbase);
        std::ifstream maps("/proc/self/maps"); // "7f00-7f10 r--p 00000000 08:01 1234   /the/file"
        for (std::string line; std::getline(maps, line);) {
            std::uintptr_t from = 0;
            std::from_chars(line.data(), line.data() + line.size(), from, 16);
            const auto path = line.find('/');
            if (from == start && path != std::string::npos) return line.substr(path);
        }
    }
    throw Failure(Status::FileNotFound, "the file of the component cannot be found");
}

Registration ownOf(const ComponentModule& module) {
    return registrationOf(module.description(), fileOf(module));
}

template <class Body>
Status keepingTheMessage(const ComponentModule& module, const Body& body) noexcept {
    registrationError.message.clear();
    return atTheEdge(
        &registrationError, [&] { return toUtf8(module.description().library.name); }, body);
}

} // namespace

Status registerServer(const ComponentModule& module) noexcept {
    return keepingTheMessage(module, [&] { RegistrationStore().add(ownOf(module)); });
}

Status unregisterServer(const ComponentModule& module) noexcept {
    return keepingTheMessage(module, [&] { RegistrationStore().remove(ownOf(module)); });
}

ErrorInfo takeRegistrationError() noexcept {
    return std::exchange(registrationError, {});
}

} // namespace zilvo::platform
