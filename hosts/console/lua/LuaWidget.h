#pragma once

#include "hosts/console/lua/LuaMembers.h"

#include <lua.h>

namespace zilvo::console {

void defineWidgets(lua_State* L);

/// Pushes a handle of the widget, which keeps the control whose userdata is at `controlIndex` alive.
void pushWidget(lua_State* L, int controlIndex, platform::Widget& widget);

/// Pushes the widget of the surface whose name and index are at `nameIndex` and behind it. `owner` names the
/// surface in messages. Fails with UnknownMember or MissingElement.
void pushWidgetNamed(lua_State* L, int controlIndex, const platform::Surface& surface, const std::string& owner,
                     int nameIndex);

/// Pushes the widget by that name of the control or the widget at that index, the first one of a control array; nil
/// when there is none.
void pushFirstWidget(lua_State* L, int index, platform::StringView name);

/// Adds what a script can use of the widget at that index; nothing for anything else.
void addWidgetNames(lua_State* L, int index, MemberNames& names);

} // namespace zilvo::console
