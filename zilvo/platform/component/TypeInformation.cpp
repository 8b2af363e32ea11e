#include "zilvo/platform/component/TypeInformation.h"

#include "zilvo/platform/component/Object.h"

namespace zilvo::platform {

const ClassEntry* ComponentDescription::find(const Guid& classId) const noexcept {
    for (const ClassEntry& entry : classes)
        if (entry.identity.classId == classId) return &entry;
    return nullptr;
}

const ClassEntry* ComponentDescription::find(StringView name) const {
    const std::size_t prefix = library.name.size();
    const bool isProgId =
        name.size() > prefix && name[prefix] == u'.' && sameName(name.substr(0, prefix), library.name);
    const StringView className = isProgId ? name.substr(prefix + 1) : name;
    for (const ClassEntry& entry : classes)
        if (sameName(entry.identity.name, className)) return &entry;
    const auto classId = Guid::parse(toUtf8(name));
    return classId ? find(*classId) : nullptr;
}

String progIdOf(const LibraryIdentity& library, const ClassIdentity& identity) {
    return String(library.name) + u"." + String(identity.name);
}

String interfaceNameOf(const ClassIdentity& identity) {
    return u"_" + String(identity.name);
}

String eventInterfaceNameOf(const ClassIdentity& identity) {
    return u"__" + String(identity.name);
}

std::string versionOf(const LibraryIdentity& library) {
    return std::to_string(library.majorVersion) + "." + std::to_string(library.minorVersion);
}

} // namespace zilvo::platform
