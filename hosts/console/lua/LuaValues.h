#pragma once

#include "hosts/console/Describe.h"
#include "zilvo/platform/values/StdFont.h"

#include <lua.h>

namespace zilvo::console {

/// Defines the userdata types of this file: font, array, value of a kind.
void defineValues(lua_State* L);

/// Lua to component. `what` names the member, argument or key in messages; `wanted`, where it is known, only
/// tells that a whole number above the range of a Long is meant as a colour. A zilvo.array becomes a
/// reference to the live array, valid as long as the userdata at `index`. Fails with TypeMismatch or
/// Overflow.
platform::Variant toVariant(lua_State* L, int index, const std::string& what,
                            platform::Kind wanted = platform::Kind::Empty);
/// After a call that took the value at `index` by reference: writes an array's elements back into a plain
/// table.
void writeBack(lua_State* L, int index, platform::Variant& value);

/// Component to Lua.
void pushVariant(lua_State* L, const platform::Variant& value);
void pushText(lua_State* L, platform::StringView text);
void pushText(lua_State* L, const std::string& text);
void pushJson(lua_State* L, const Json& json);

/// Of a value of a kind, a font or a zilvo.array: pushes what makes such a one, a font's usual members left out, and
/// gives what makes it: "zilvo.Integer". Null, with nothing pushed, for anything else.
std::optional<std::string> pushParts(lua_State* L, int index);

/// Arguments of the host's own functions; all fail with TypeMismatch, naming `what`.
platform::String textAt(lua_State* L, int index, const std::string& what);
platform::Single singleAt(lua_State* L, int index, const std::string& what);
platform::Integer integerAt(lua_State* L, int index, const std::string& what, platform::Integer absent);
void requireTable(lua_State* L, int index, const std::string& what);

/// "a function", "nil", "a string": for messages.
std::string shownType(lua_State* L, int index);

/// Property access by name for what has a description; `label` names the object in messages.
void pushProperty(lua_State* L, platform::Described& object, const std::string& label, const platform::String& name);
void setProperty(lua_State* L, platform::Described& object, const std::string& label, const platform::String& name,
                 int valueIndex);

/// How an assignment sets the property.
platform::Access settingOf(const platform::MemberDescription& member) noexcept;

/// zilvo.Integer and its like, zilvo.Font, zilvo.array.
void registerValueFunctions(lua_State* L);

} // namespace zilvo::console
