#pragma once

#include <lua.h>

namespace zilvo::console {

/// Makes the global table `zilvo`.
void defineHostTable(lua_State* L);

} // namespace zilvo::console
