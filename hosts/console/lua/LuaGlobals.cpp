#include "hosts/console/lua/LuaGlobals.h"

#include "hosts/console/lua/LuaErrors.h"
#include "hosts/console/lua/LuaObject.h"
#include "hosts/console/lua/LuaUserdata.h"
#include "hosts/console/lua/LuaValues.h"

namespace zilvo::console {

using namespace platform;

namespace {

template <class T>
T& upvalue(lua_State* L, int number) {
    return *static_cast<T*>(lua_touserdata(L, lua_upvalueindex(number)));
}

/// A method of an application object, called without naming an instance.
int callApplication(lua_State* L) {
    Object& object = sessionOf(L).application(upvalue<KnownComponent>(L, 1), upvalue<const ClassEntry>(L, 2));
    return callMember(L, object, upvalue<const MemberDescription>(L, 3), Access::Method, 1);
}

/// Pops the value. Goes round the metatable that a script may have given its globals.
void addGlobal(lua_State* L, StringView name) {
    lua_pushglobaltable(L);
    pushText(L, name);
    if (lua_rawget(L, -2) == LUA_TNIL) {
        pushText(L, name);
        lua_pushvalue(L, -4);
        lua_rawset(L, -4);
    }
    lua_pop(L, 3);
}

void addGlobalsOf(lua_State* L, KnownComponent& component) {
    for (const EnumerationDescription* enumeration : component.description().enumerations)
        for (const EnumerationMember& member : enumeration->members) {
            lua_pushinteger(L, member.value);
            addGlobal(L, member.name);
        }
    for (const ClassEntry& entry : component.description().classes) {
        if (!entry.identity.isApplicationObject()) continue;
        for (const MemberDescription& member : entry.description.members) {
            if (member.kind != MemberKind::Method) continue;
            pushPointer(L, component);
            pushPointer(L, entry);
            pushPointer(L, member);
            lua_pushcclosure(L, guarded<callApplication>, 3);
            addGlobal(L, member.name);
        }
    }
}

} // namespace

void defineGlobals(lua_State* L) {
    Session& session = sessionOf(L);
    for (; session.namedComponents < session.components.known().size(); ++session.namedComponents)
        addGlobalsOf(L, session.components.known()[session.namedComponents]);
}

} // namespace zilvo::console
