#pragma once

#include "hosts/console/lua/LuaSession.h"

#include <string>

namespace zilvo::console {

/// Makes the metatable of failures and the place for a handler's error. First of all on a new Lua state.
void defineErrors(lua_State* L);

/// "script.lua:12", the innermost line of Lua that is running; empty for none.
std::string whereIn(lua_State* L);

/// Replaces the error value at the top, whatever it is, by its text with the script line: of a table that is no failure
/// and does not say otherwise, its `message`. A message handler.
int errorText(lua_State* L);

/// Takes the error value of an event's handler from the top of the stack and keeps it for the call that led
/// to the event; gives the Failure to throw, which carries it through the component.
platform::Failure keepError(lua_State* L);

/// Raises the exception being handled as a Lua error: the kept error of a handler when there is one, else a
/// table with `status`, `name`, `message` and `where`. Never returns.
int raiseCurrentException(lua_State* L);

/// Every function that scripts can call is wrapped in this one. Lua's own errors, which are exceptions too
/// but none of the standard library's, pass through.
template <lua_CFunction Function>
int guarded(lua_State* L) {
    class Current {
    public:
        explicit Current(lua_State* state) : session_(sessionOf(state)), before_(session_.current) {
            session_.current = state;
            session_.errorIsKept = false; // a control that caught it would have left it here
        }
        Current(const Current&) = delete;
        Current& operator=(const Current&) = delete;
        ~Current() { session_.current = before_; }

    private:
        Session& session_;
        lua_State* before_;
    };

    const Current current(L);
    try {
        return Function(L);
    } catch (const std::exception&) {
        return raiseCurrentException(L);
    }
}

} // namespace zilvo::console
