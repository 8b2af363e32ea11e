#pragma once

#include "hosts/console/lua/LuaMembers.h"
#include "hosts/console/lua/LuaObject.h"

namespace zilvo::console {

/// What of a control has members of its own: c.surface, c.extender, c.ambient.
enum class Part : std::uint8_t { Surface, Extender, Ambient };

void defineParts(lua_State* L);

/// Pushes a part of the control whose userdata is at that index.
void pushPart(lua_State* L, int controlIndex, Part which);

/// Adds what a script can use of the part at that index; nothing for anything else.
void addPartNames(lua_State* L, int index, MemberNames& names);

/// Sets an ambient property and tells the control. `label` names the ambient properties in messages.
void setAmbient(platform::ControlHost& host, const std::string& label, const platform::String& name,
                const platform::Variant& value);
/// The value at that index for an ambient property. Fails with UnknownMember when there is no such property.
platform::Variant ambientValue(lua_State* L, int index, const std::string& label, const platform::String& name);

} // namespace zilvo::console
