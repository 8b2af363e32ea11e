#pragma once

#include <lua.h>

namespace zilvo::console {

/// Makes globals of the enumerators and application functions of the components that have been loaded since the last
/// time. What is a global already stays as it is.
void defineGlobals(lua_State* L);

} // namespace zilvo::console
