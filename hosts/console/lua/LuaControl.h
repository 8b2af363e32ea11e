#pragma once

#include "hosts/console/lua/LuaMembers.h"

#include <lua.h>

namespace zilvo::console {

void defineControls(lua_State* L);

/// zilvo.create
int createObject(lua_State* L);

/// Pushes what a name of the host's gives on the control at that index, as c.surface does; nil for anything else.
/// Published members are not looked at, so nothing of the control runs.
void pushControlField(lua_State* L, int index, std::string_view name);

/// Adds what a script can use of the control at that index; nothing for anything else.
void addControlNames(lua_State* L, int index, MemberNames& names);

} // namespace zilvo::console
