#include "hosts/console/Register.h"

#include "zilvo/platform/component/ComponentRuntime.h"
#include "zilvo/platform/component/RegistrationStore.h"

namespace zilvo::console {

using namespace platform;

namespace {

std::string line(const char* done, const Registration& registration, const RegistrationStore& store) {
    const auto library = registration.library ? toUtf8(registration.library->name) + ", " : std::string();
    const auto classes = registration.classes.size();
    return std::string(done) + " " + library + std::to_string(classes) + (classes == 1 ? " class" : " classes") +
           " of " + registration.file.string() + ", in " + store.file().string();
}

/// Null for a file that is gone or broken.
std::unique_ptr<LoadedComponent> tryLoading(const std::filesystem::path& file) {
    try {
        return std::make_unique<LoadedComponent>(file);
    } catch (const Failure&) {
        return nullptr;
    }
}

} // namespace

std::string registerComponent(const std::filesystem::path& file) {
    const LoadedComponent component(file);
    component.registerServer();
    return line("registered", registrationOf(component.description(), file), RegistrationStore());
}

std::string unregisterComponent(const std::filesystem::path& file) {
    RegistrationStore store;
    const auto registered = store.find(file);
    if (!registered) return file.string() + " is not registered in " + store.file().string();
    if (const auto component = tryLoading(file))
        component->unregisterServer();
    else
        store.remove(file);
    return line("unregistered", *registered, store);
}

} // namespace zilvo::console
