#pragma once

#include <lua.h>

#include <string>

namespace zilvo::console {

/// The value at that index as a script would write it: "text", {5, Cancel = true}, zilvo.Integer(5). What a script
/// cannot write, such as a control or a function, is shown as Lua's own print does, and so is a table that says itself
/// how it is shown. A table is told with its keys in order, in lines of its own when it has too much for one; one in
/// itself as "<cycle .way.to[it]>". What is too deep or too much is left out: "{...}", "... 12 more". Fails as such a
/// table's own code does.
std::string literalOf(lua_State* L, int index);

} // namespace zilvo::console
