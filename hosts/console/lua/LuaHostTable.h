#pragma once

#include "hosts/console/lua/LuaMembers.h"

#include <lua.h>

namespace zilvo::console {

/// Makes the global table `zilvo`.
void defineHostTable(lua_State* L);

/// Adds those of its names that no entry has.
void addHostTableNames(MemberNames& names);

} // namespace zilvo::console
