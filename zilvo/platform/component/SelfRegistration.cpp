#include "zilvo/platform/component/SelfRegistration.h"

#include "zilvo/platform/component/RegistrationStore.h"

#include <dlfcn.h>

namespace zilvo::platform {

namespace {

thread_local ErrorInfo registrationError;

/// A component does not know its own file, but the loader knows whose memory the module is.
std::filesystem::path fileOf(const ComponentModule& module) {
    Dl_info found{};
    if (dladdr(&module, &found) == 0 || !std::filesystem::exists(found.dli_fname))
        throw Failure(Status::FileNotFound, "the file of the component cannot be found");
    return found.dli_fname;
}

template <class Body>
Status keepingTheMessage(const ComponentModule& module, const Body& body) noexcept {
    registrationError.message.clear();
    return atTheEdge(
        &registrationError, [&] { return toUtf8(module.description().library.name); }, body);
}

} // namespace

Status registerServer(const ComponentModule& module) noexcept {
    return keepingTheMessage(module,
                             [&] { RegistrationStore().add(registrationOf(module.description(), fileOf(module))); });
}

Status unregisterServer(const ComponentModule& module) noexcept {
    return keepingTheMessage(module, [&] { RegistrationStore().remove(fileOf(module)); });
}

ErrorInfo takeRegistrationError() noexcept {
    return std::exchange(registrationError, {});
}

} // namespace zilvo::platform
