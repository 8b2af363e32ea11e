#include "zilvo/platform/component/SelfRegistration.h"

#include "zilvo/platform/component/Files.h"
#include "zilvo/platform/component/RegistrationStore.h"

namespace zilvo::platform {

namespace {

thread_local ErrorInfo registrationError;

Registration ownOf(const ComponentModule& module) {
    return registrationOf(module.description(), fileMappedAt(&module));
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
