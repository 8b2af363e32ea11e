#include "hosts/console/lua/LuaParts.h"

#include "hosts/console/lua/LuaErrors.h"
#include "hosts/console/lua/LuaUserdata.h"
#include "hosts/console/lua/LuaValues.h"

#include <array>

namespace zilvo::console {

using namespace platform;

namespace {

/// The control's userdata is its user value.
struct LuaPart {
    static constexpr const char* TypeName = "zilvo control part";
    Part which;
};

Described& describedOf(ControlHost& host, Part which) {
    switch (which) {
    case Part::Surface:
        return host.control().surface().members();
    case Part::Extender:
        return host.extenderObject();
    case Part::Ambient:
        break;
    }
    return host.ambientProperties();
}

const LuaPart& selfAt(lua_State* L) {
    if (const auto* part = findUserdata<LuaPart>(L, 1)) return *part;
    throw Failure(Status::TypeMismatch, shownType(L, 1) + " is no part of a control");
}

/// "ssOKCancel.surface"; the control's userdata is on top of the stack.
std::string labelOf(lua_State* L, const LuaPart& part) {
    constexpr std::array names = {".surface", ".extender", ".ambient"};
    return objectAt(L, -1).className() + names[static_cast<std::size_t>(part.which)];
}

int get(lua_State* L) {
    const LuaPart& self = selfAt(L);
    lua_getiuservalue(L, 1, 1);
    Described& object = describedOf(hostAt(L, -1), self.which);
    const auto label = labelOf(L, self);
    pushProperty(L, object, label, textAt(L, 2, label));
    return 1;
}

int set(lua_State* L) {
    const LuaPart& self = selfAt(L);
    lua_getiuservalue(L, 1, 1);
    Described& object = describedOf(hostAt(L, -1), self.which);
    const auto label = labelOf(L, self);
    const auto name = textAt(L, 2, label);
    if (self.which == Part::Ambient)
        setAmbient(hostAt(L, -1), label, name, ambientValue(L, 3, label, name));
    else
        setProperty(L, object, label, name, 3);
    return 0;
}

int equals(lua_State* L) {
    const auto* one = findUserdata<LuaPart>(L, 1);
    const auto* other = findUserdata<LuaPart>(L, 2);
    bool same = one && other && one->which == other->which;
    if (same) {
        lua_getiuservalue(L, 1, 1);
        lua_getiuservalue(L, 2, 1);
        same = lua_rawequal(L, -1, -2) != 0;
    }
    lua_pushboolean(L, same);
    return 1;
}

int toText(lua_State* L) {
    const LuaPart& self = selfAt(L);
    lua_getiuservalue(L, 1, 1);
    pushText(L, labelOf(L, self));
    return 1;
}

constexpr luaL_Reg metamethods[] = {
    {"__index", guarded<get>},
    {"__newindex", guarded<set>},
    {"__eq", guarded<equals>},
    {"__tostring", guarded<toText>},
};

} // namespace

void defineParts(lua_State* L) {
    defineUserdata<LuaPart>(L, metamethods);
}

void pushPart(lua_State* L, int controlIndex, Part which) {
    (void)hostAt(L, controlIndex);
    pushUserdata(L, LuaPart{which}, 1);
    lua_pushvalue(L, controlIndex);
    lua_setiuservalue(L, -2, 1);
}

void addPartNames(lua_State* L, int index, MemberNames& names) {
    const auto* part = findUserdata<LuaPart>(L, index);
    if (!part) return;
    lua_getiuservalue(L, index, 1);
    if (const auto* control = findUserdata<LuaControl>(L, -1))
        names.add(describedOf(*control->host, part->which).description());
}

void setAmbient(ControlHost& host, const std::string& label, const String& name, const Variant& value) {
    ErrorInfo error;
    const Status status = atTheEdge(
        &error, [&] { return label + "." + toUtf8(name); }, [&] { host.setAmbient(name, value); });
    throwUnlessOk(status, error);
}

Variant ambientValue(lua_State* L, int index, const std::string& label, const String& name) {
    const StandardAmbient known;
    const auto* member = known.description().find(name);
    if (!member) throw Failure(Status::UnknownMember, label + " has no member named " + toUtf8(name));
    return toVariant(L, index, label + "." + toUtf8(name), member->type.kind).value();
}

} // namespace zilvo::console
