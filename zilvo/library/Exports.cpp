#include "zilvo/platform/component/ClassFactory.h"
#include "zilvo/platform/component/SelfRegistration.h"

/// The entry points of every component, each of which hands the request to the platform together with the module.

namespace {

using namespace zilvo::platform;

constexpr std::uint32_t code(Status status) noexcept {
    return static_cast<std::uint32_t>(status);
}

} // namespace

extern "C" std::uint32_t DllGetClassObject(const Guid* classId, const Guid* interfaceId, void** object) {
    return code(getClassObject(componentModule(), classId, interfaceId, object));
}

extern "C" std::uint32_t DllCanUnloadNow() {
    return code(canUnloadNow(componentModule()));
}

extern "C" std::uint32_t DllRegisterServer() {
    return code(registerServer(componentModule()));
}

extern "C" std::uint32_t DllUnregisterServer() {
    return code(unregisterServer(componentModule()));
}
