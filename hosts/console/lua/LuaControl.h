#pragma once

#include "hosts/console/lua/LuaMembers.h"

#include <lua.h>

namespace zilvo::console {

void defineControls(lua_State* L);

/// zilvo.create
int createObject(lua_State* L);

/// Adds what a script can use of the control at that index; nothing for anything else.
void addControlNames(lua_State* L, int index, MemberNames& names);

} // namespace zilvo::console
