#include "zilvo/platform/component/Components.h"

#include "zilvo/platform/component/RegistrationStore.h"

namespace zilvo::platform {

namespace {

struct RegisteredClass {
    std::filesystem::path file;
    Guid classId;
};

/// The newest of that name; fails with ClassNotAvailable.
RegisteredClass findRegistered(StringView name, const RegistrationStore& store) {
    const auto id = Guid::parse(toUtf8(name));
    std::optional<RegisteredClass> newest;
    for (const Registration& registration : store.read())
        for (const auto& each : registration.classes)
            if (sameName(each.progId, name) || sameName(each.name, name) || each.classId == id)
                newest = {registration.file, each.classId};
    if (!newest)
        throw Failure(Status::ClassNotAvailable, "neither a loaded component nor the registrations in " +
                                                     store.file().string() + " have a class " + toUtf8(name));
    return *newest;
}

} // namespace

const LoadedComponent& Components::add(const std::filesystem::path& file) {
    std::error_code error;
    for (const LoadedComponent& component : loaded_)
        if (std::filesystem::equivalent(component.file(), file, error)) return component;
    return loaded_.emplace_back(file);
}

Ref<Object> Components::create(StringView name) {
    for (const LoadedComponent& component : loaded_)
        if (component.description().find(name)) return component.create(name);
    return createRegistered(name);
}

Ref<Object> Components::createRegistered(StringView name) {
    const RegistrationStore store;
    const RegisteredClass found = findRegistered(name, store);
    const LoadedComponent* component = nullptr;
    inContext([&] { return toUtf8(name) + ", registered in " + store.file().string(); },
              [&] { component = &add(found.file); });
    if (!component->description().find(found.classId))
        throw Failure(Status::ClassNotAvailable, toUtf8(name) + " is registered in " + store.file().string() + " for " +
                                                     found.file.string() + ", which does not have it");
    return component->create(toUtf16(found.classId.text()));
}

std::size_t Components::liveObjects() const {
    std::size_t sum = 0;
    for (const LoadedComponent& component : loaded_)
        sum += component.liveObjects();
    return sum;
}

} // namespace zilvo::platform
