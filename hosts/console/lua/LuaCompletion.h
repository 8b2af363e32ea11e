#pragma once

#include "hosts/console/LineEditor.h"

#include <lua.h>

namespace zilvo::console {

/// What a script can have at the end of the line: a class, member, widget or event where one is named, else a global or
/// a keyword. Looks at tables and controls without calling anything; Lua's collector is to be stopped meanwhile.
Completion completionOf(lua_State* L, std::string_view line);

} // namespace zilvo::console
