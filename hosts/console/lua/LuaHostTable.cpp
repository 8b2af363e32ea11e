#include "hosts/console/lua/LuaHostTable.h"

#include "hosts/console/lua/LuaControl.h"
#include "hosts/console/lua/LuaErrors.h"
#include "hosts/console/lua/LuaObject.h"
#include "hosts/console/lua/LuaValues.h"

namespace zilvo::console {

namespace {

/// zilvo.describe()
int describeComponent(lua_State* L) {
    pushJson(L, description(sessionOf(L).components.main().description()));
    return 1;
}

int beeps(lua_State* L) {
    lua_pushinteger(L, static_cast<lua_Integer>(sessionOf(L).beeps));
    return 1;
}

int alive(lua_State* L) {
    lua_pushinteger(L, static_cast<lua_Integer>(sessionOf(L).aliveForScripts()));
    return 1;
}

/// What the table `zilvo` looks up anew each time.
constexpr luaL_Reg counters[] = {
    {"beeps", guarded<beeps>},
    {"alive", guarded<alive>},
};

int get(lua_State* L) {
    if (pushNamed(L, counters, 2))
        lua_call(L, 0, 1);
    else
        lua_pushnil(L);
    return 1;
}

int set(lua_State* L) {
    refuseNamed(L, counters, 2, "zilvo");
    lua_rawset(L, 1);
    return 0;
}

} // namespace

void defineHostTable(lua_State* L) {
    lua_newtable(L);
    lua_pushcfunction(L, guarded<createObject>);
    lua_setfield(L, -2, "create");
    lua_pushcfunction(L, guarded<describeComponent>);
    lua_setfield(L, -2, "describe");
    registerValueFunctions(L);

    lua_newtable(L);
    lua_pushcfunction(L, guarded<get>);
    lua_setfield(L, -2, "__index");
    lua_pushcfunction(L, guarded<set>);
    lua_setfield(L, -2, "__newindex");
    lua_setmetatable(L, -2);
    lua_setglobal(L, "zilvo");
}

void addHostTableNames(MemberNames& names) {
    for (const luaL_Reg& counter : counters)
        names.fields.insert(counter.name);
}

} // namespace zilvo::console
