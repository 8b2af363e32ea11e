#include "zilvo/platform/component/Components.h"

#include "zilvo/platform/component/RegistrationStore.h"

namespace zilvo::platform {

namespace {

struct RegisteredClass {
    std::filesystem::path file;
    Guid classId;
};

/// The newest of that name; fails with ClassNotAvailable.
RegisteredClass newestOf(StringView name, const RegistrationStore& store) {
    const auto id = Guid::parse(toUtf8(name));
    std::optional<RegisteredClass> newest;
    for (const Registration& registration : store.read())
        for (const auto& each : registration.classes)
            if (sameName(each.progId, name) || sameName(each.name, name) || each.classId == id)
                newest = {registration.file, each.classId};
    if (!newest)
        throw Failure(Status::ClassNotAvailable, "neither a known component nor the registrations in " +
                                                     store.file().string() + " have a class " + toUtf8(name));
    return *newest;
}

} // namespace

KnownComponent& Components::add(const std::filesystem::path& file) {
    std::error_code error;
    for (KnownComponent& component : known_)
        if (std::filesystem::equivalent(component.file(), file, error)) return component;
    return known_.emplace_back(file);
}

Ref<Object> Components::create(StringView name) {
    const Found found = find(name);
    return found.component.create(found.className);
}

Ref<Object> Components::application(StringView name) {
    const Found found = find(name);
    return found.component.application(found.className);
}

Components::Found Components::find(StringView name) {
    for (KnownComponent& component : known_)
        if (component.description().find(name)) return {component, String(name)};
    return findRegistered(name);
}

Components::Found Components::findRegistered(StringView name) {
    const auto file = RegistrationStore::usualFile();
    if (!file)
        throw Failure(Status::ClassNotAvailable,
                      "no known component has a class " + toUtf8(name) + ", and there is no place for registrations");
    const RegistrationStore store(*file);
    const RegisteredClass found = newestOf(name, store);
    KnownComponent* component = nullptr;
    inContext([&] { return toUtf8(name) + ", registered in " + store.file().string(); },
              [&] { component = &add(found.file); });
    if (!component->description().find(found.classId))
        throw Failure(Status::ClassNotAvailable, toUtf8(name) + " is registered in " + store.file().string() + " for " +
                                                     found.file.string() + ", which does not have it");
    return {*component, toUtf16(found.classId.text())};
}

std::size_t Components::liveObjects() const {
    std::size_t sum = 0;
    for (const KnownComponent& component : known_)
        sum += component.liveObjects();
    return sum;
}

} // namespace zilvo::platform
