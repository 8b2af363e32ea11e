#include "zilvo/platform/component/Components.h"

#include "zilvo/platform/component/Files.h"
#include "zilvo/platform/component/RegistrationStore.h"

namespace zilvo::platform {

namespace {

struct RegisteredClass {
    std::filesystem::path file;
    Guid classId;
};

/// The newest of that name; null when there is none.
std::optional<RegisteredClass> newestOf(StringView name, const RegistrationStore& store) {
    const auto id = Guid::parse(toUtf8(name));
    std::optional<RegisteredClass> newest;
    for (const Registration& registration : store.read())
        for (const auto& each : registration.classes)
            if (sameName(each.progId, name) || sameName(each.name, name) || each.classId == id)
                newest = {registration.file, each.classId};
    return newest;
}

/// The user's, and behind it those of the machine that are there.
std::string listOf(const std::vector<RegistrationStore>& stores) {
    std::string list;
    std::error_code error;
    for (const RegistrationStore& store : stores)
        if (list.empty() || std::filesystem::exists(store.file(), error))
            list += (list.empty() ? "" : " and ") + store.file().string();
    return list;
}

} // namespace

std::filesystem::path installedComponents() {
    static const char ofThePlatform = 0;
    return fileMappedAt(&ofThePlatform).parent_path() / "zilvo";
}

KnownComponent& Components::add(const std::filesystem::path& file) {
    std::error_code error;
    for (KnownComponent& component : known_)
        if (std::filesystem::equivalent(component.file(), file, error)) return component;
    return known_.emplace_back(file);
}

void Components::addFrom(const std::filesystem::path& folder) {
    for (const auto& file : filesIn(folder, ".Ocx")) {
        ErrorInfo unread;
        atTheEdge(
            &unread, [] { return std::string(); }, [&] { add(file); });
    }
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
    if (const auto found = findKnown(name)) return *found;
    if (const auto found = findRegistered(name)) return *found;
    addFrom(installedComponents());
    if (const auto found = findKnown(name)) return *found;
    if (!RegistrationStore::usualFile())
        throw Failure(Status::ClassNotAvailable,
                      "no known component has a class " + toUtf8(name) + ", and there is no place for registrations");
    throw Failure(Status::ClassNotAvailable, "neither a known component nor the registrations in " +
                                                 listOf(RegistrationStore::all()) + " have a class " + toUtf8(name));
}

std::optional<Components::Found> Components::findKnown(StringView name) {
    for (KnownComponent& component : known_)
        if (component.description().find(name)) return Found{component, String(name)};
    return std::nullopt;
}

std::optional<Components::Found> Components::findRegistered(StringView name) {
    for (const RegistrationStore& store : RegistrationStore::all()) {
        const auto found = newestOf(name, store);
        if (!found) continue;
        const auto registered = [&](const char* how) { return toUtf8(name) + how + store.file().string(); };
        KnownComponent* component = nullptr;
        inContext([&] { return registered(", registered in "); }, [&] { component = &add(found->file); });
        if (!component->description().find(found->classId))
            throw Failure(Status::ClassNotAvailable, registered(" is registered in ") + " for " + found->file.string() +
                                                         ", which does not have it");
        return Found{*component, toUtf16(found->classId.text())};
    }
    return std::nullopt;
}

std::size_t Components::liveObjects() const {
    std::size_t sum = 0;
    for (const KnownComponent& component : known_)
        sum += component.liveObjects();
    return sum;
}

} // namespace zilvo::platform
