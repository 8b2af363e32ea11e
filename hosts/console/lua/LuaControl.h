#pragma once

#include <lua.h>

namespace zilvo::console {

void defineControls(lua_State* L);

/// zilvo.create
int createObject(lua_State* L);

} // namespace zilvo::console
