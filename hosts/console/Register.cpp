#include "hosts/console/Register.h"

#include "zilvo/platform/component/ComponentFile.h"

#include <iostream>

namespace zilvo::console {

using namespace platform;

namespace {

std::string line(const char* done, const Registration& registration, const RegistrationStore& store) {
    const auto library = registration.library ? toUtf8(registration.library->name) + ", " : std::string();
    const auto classes = registration.classes.size();
    return std::string(done) + " " + library + std::to_string(classes) + (classes == 1 ? " class" : " classes") +
           " of " + registration.file.string() + ", in " + store.file().string() + "\n";
}

/// Of a file that is gone or broken no more than its path.
Registration ownOf(const std::filesystem::path& file) {
    try {
        return registrationOf(ComponentFile(file).description(), file);
    } catch (const Failure&) {
        return {registeredPath(file), {}, {}, {}};
    }
}

} // namespace

bool setAsideWhenDamaged(RegistrationStore& store) {
    const auto damage = store.damage();
    if (!damage) return false;
    std::cerr << "zilvo: " << *damage << ": the file is set aside\n";
    if (const auto aside = store.setAside()) std::cerr << "zilvo: it is " << aside->string() << " now\n";
    return true;
}

std::string registerComponent(const std::filesystem::path& file) {
    const ComponentFile component(file);
    const Registration own = registrationOf(component.description(), file);
    RegistrationStore store;
    setAsideWhenDamaged(store);
    store.add(own);
    return line("registered", own, store);
}

std::string unregisterComponent(const std::filesystem::path& file) {
    RegistrationStore store;
    std::string lines;
    for (const Registration& taken : store.remove(ownOf(file)))
        lines += line("unregistered", taken, store);
    return lines.empty() ? file.string() + " is not registered in " + store.file().string() + "\n" : lines;
}

} // namespace zilvo::console
