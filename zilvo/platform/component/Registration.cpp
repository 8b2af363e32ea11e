#include "zilvo/platform/component/Registration.h"

#include "zilvo/platform/component/Files.h"

#include <algorithm>
#include <functional>
#include <set>

namespace zilvo::platform {

namespace {

Registration::TypeLibrary libraryOf(const LibraryIdentity& library) {
    return {.id = library.id,
            .name = String(library.name),
            .version = versionOf(library),
            .locale = 0, // found whatever the user's language
            .helpString = String(library.helpString),
            .helpDirectory = {},
            .flags = (library.flags & libraryflags::Control) != 0 ? u"control library" : u""};
}

Registration::Class classOf(const LibraryIdentity& library, const ClassIdentity& identity) {
    return {.classId = identity.classId,
            .name = String(identity.name),
            .progId = progIdOf(library, identity),
            .libraryId = library.id,
            .version = versionOf(library),
            .isControl = identity.isControl(),
            .toolboxBitmap = identity.toolboxBitmap,
            .miscStatus = identity.miscStatus};
}

bool isEmpty(const Registration& registration) {
    return !registration.library && registration.classes.empty() && registration.interfaces.empty();
}

/// What a component calls its own.
struct Ids {
    explicit Ids(const Registration& own) {
        if (own.library) libraries.insert(own.library->id);
        for (const auto& each : own.classes)
            classes.insert(each.classId);
        for (const auto& each : own.interfaces)
            interfaces.insert(each.id);
    }

    std::set<Guid> libraries;
    std::set<Guid> classes;
    std::set<Guid> interfaces;
};

template <class Part>
std::vector<Part> partsOf(const std::set<Guid>& ids, Guid Part::*id, std::vector<Part>& parts) {
    const auto isAnothers = [&](const Part& part) { return !ids.contains(std::invoke(id, part)); };
    const auto first = std::stable_partition(parts.begin(), parts.end(), isAnothers);
    std::vector<Part> own(first, parts.end());
    parts.erase(first, parts.end());
    return own;
}

Registration takeOut(const Ids& ids, Registration& from) {
    Registration own{from.file, {}, {}, {}};
    if (from.library && ids.libraries.contains(from.library->id)) own.library.swap(from.library);
    own.classes = partsOf(ids.classes, &Registration::Class::classId, from.classes);
    own.interfaces = partsOf(ids.interfaces, &Registration::Interface::id, from.interfaces);
    return own;
}

} // namespace

Registration registrationOf(const ComponentDescription& component, const std::filesystem::path& file) {
    const LibraryIdentity& library = component.library;
    Registration registration{registeredPath(file), libraryOf(library), {}, {}};
    const auto addInterface = [&](const Guid& id, String name) {
        registration.interfaces.push_back({id, std::move(name), library.id, versionOf(library)});
    };
    for (const ClassEntry& entry : component.classes) {
        const ClassIdentity& identity = entry.identity;
        registration.classes.push_back(classOf(library, identity));
        addInterface(identity.interfaceId, interfaceNameOf(identity));
        if (identity.eventInterfaceId) addInterface(*identity.eventInterfaceId, eventInterfaceNameOf(identity));
    }
    return registration;
}

std::filesystem::path registeredPath(const std::filesystem::path& file) {
    std::error_code error;
    auto path = std::filesystem::weakly_canonical(absolutePath(file), error);
    if (error) throw Failure(Status::FileNotFound, file.string() + " cannot be found: " + error.message());
    return path;
}

Registrations takeOut(const Registration& own, Registrations& from) {
    const Ids ids(own);
    Registrations taken;
    for (Registration& each : from)
        taken.push_back(each.file == own.file ? std::exchange(each, {}) : takeOut(ids, each));
    std::erase_if(from, isEmpty);
    std::erase_if(taken, isEmpty);
    return taken;
}

void enter(const Registration& newcomer, Registrations& into) {
    if (std::find(into.begin(), into.end(), newcomer) != into.end()) return;
    takeOut(newcomer, into);
    into.push_back(newcomer);
}

} // namespace zilvo::platform
