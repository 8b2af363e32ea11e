#include "hosts/console/lua/LuaMembers.h"

namespace zilvo::console {

using namespace platform;

void MemberNames::add(const ClassDescription& description) {
    for (const auto* at = &description; at; at = at->base)
        for (const MemberDescription& member : at->members)
            (member.kind == MemberKind::Method ? methods : fields).insert(toUtf8(member.name));
}

void MemberNames::add(const Surface& surface) {
    for (const Widget& widget : surface)
        widgets.insert(toUtf8(widget.name()));
}

} // namespace zilvo::console
