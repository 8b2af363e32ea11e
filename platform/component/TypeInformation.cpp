#include "platform/component/TypeInformation.h"

#include "platform/component/Object.h"

namespace zilvo::platform {

const ClassEntry* ComponentDescription::find(const Guid& classId) const noexcept {
    for (const ClassEntry& entry : classes)
        if (entry.identity.classId == classId) return &entry;
    return nullptr;
}

const ClassEntry* ComponentDescription::find(StringView name) const {
    if (const auto classId = Guid::parse(toUtf8(name))) return find(*classId);
    for (const ClassEntry& entry : classes)
        if (sameName(entry.identity.name, name) || sameName(progIdOf(library, entry.identity), name)) return &entry;
    return nullptr;
}

String progIdOf(const LibraryIdentity& library, const ClassIdentity& identity) {
    return String(library.name) + u"." + String(identity.name);
}

} // namespace zilvo::platform
