#include "zilvo/platform/component/Registration.h"

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
    return std::filesystem::weakly_canonical(std::filesystem::absolute(file));
}

} // namespace zilvo::platform
