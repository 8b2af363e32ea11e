#include "hosts/console/lua/LuaErrors.h"

#include <lauxlib.h>

namespace zilvo::console {

using namespace platform;

namespace {

/// Places in Lua's registry; their addresses are the keys.
constexpr char FailureMetatable = 0;
constexpr char KeptError = 0;

bool isFailure(lua_State* L, int index) {
    if (!lua_istable(L, index) || !lua_getmetatable(L, index)) return false;
    lua_rawgetp(L, LUA_REGISTRYINDEX, &FailureMetatable);
    const bool same = lua_rawequal(L, -1, -2) != 0;
    lua_pop(L, 2);
    return same;
}

/// A field of a failure, or of a script's own error, that is text; a script may have put anything there.
std::string textField(lua_State* L, int index, const char* name) {
    index = lua_absindex(L, index);
    lua_pushstring(L, name);
    lua_rawget(L, index);
    std::string text = lua_type(L, -1) == LUA_TSTRING ? lua_tostring(L, -1) : "";
    lua_pop(L, 1);
    return text;
}

std::string at(const std::string& where, const std::string& message) {
    return where.empty() ? message : where + ": " + message;
}

std::string failureText(lua_State* L, int index) {
    return at(textField(L, index, "where"), textField(L, index, "message"));
}

int failureToString(lua_State* L) {
    if (!isFailure(L, 1)) return luaL_error(L, "this is no failure");
    const auto text = failureText(L, 1);
    lua_pushlstring(L, text.data(), text.size());
    return 1;
}

void setText(lua_State* L, const char* name, const std::string& text) {
    lua_pushlstring(L, text.data(), text.size());
    lua_setfield(L, -2, name);
}

void pushFailure(lua_State* L, Status status, const std::string& message) {
    lua_createtable(L, 0, 4);
    lua_pushinteger(L, static_cast<lua_Integer>(status));
    lua_setfield(L, -2, "status");
    setText(L, "name", nameOf(status));
    setText(L, "message", message);
    setText(L, "where", whereIn(L));
    lua_rawgetp(L, LUA_REGISTRYINDEX, &FailureMetatable);
    lua_setmetatable(L, -2);
}

} // namespace

void defineErrors(lua_State* L) {
    lua_createtable(L, 0, 2);
    lua_pushcfunction(L, failureToString);
    lua_setfield(L, -2, "__tostring");
    lua_pushliteral(L, "zilvo failure");
    lua_setfield(L, -2, "__name");
    lua_rawsetp(L, LUA_REGISTRYINDEX, &FailureMetatable);
    lua_pushboolean(L, 0); // holds the place, so that keeping an error later needs no memory
    lua_rawsetp(L, LUA_REGISTRYINDEX, &KeptError);
}

std::string whereIn(lua_State* L) {
    lua_Debug frame{};
    for (int level = 0; lua_getstack(L, level, &frame); ++level) {
        lua_getinfo(L, "Sl", &frame);
        if (frame.currentline > 0) return frame.short_src + (":" + std::to_string(frame.currentline));
    }
    return {};
}

int errorText(lua_State* L) {
    if (isFailure(L, -1)) {
        const auto text = failureText(L, -1);
        lua_pushlstring(L, text.data(), text.size());
        return 1;
    }
    if (lua_type(L, -1) == LUA_TSTRING) return 1;
    std::string text;
    if (lua_type(L, -1) == LUA_TNUMBER || luaL_getmetafield(L, -1, "__tostring") != LUA_TNIL) {
        if (lua_type(L, -1) != LUA_TNUMBER) lua_pop(L, 1);
        text = luaL_tolstring(L, -1, nullptr);
    } else if (lua_istable(L, -1) && !textField(L, -1, "message").empty()) {
        text = textField(L, -1, "message");
    } else {
        text = std::string("the error is a ") + luaL_typename(L, -1) + " value";
    }
    text = at(whereIn(L), text);
    lua_pushlstring(L, text.data(), text.size());
    return 1;
}

Failure keepError(lua_State* L) {
    auto status = Status::Failed;
    std::string message = "a handler failed";
    if (isFailure(L, -1)) {
        message = textField(L, -1, "message");
        lua_pushliteral(L, "status");
        lua_rawget(L, -2);
        const auto number = lua_tointeger(L, -1);
        const auto kept = static_cast<Status>(number);
        // A success would not stop the control.
        if (!succeeded(kept) && static_cast<lua_Integer>(kept) == number) status = kept;
        lua_pop(L, 1);
    } else if (lua_type(L, -1) == LUA_TSTRING) {
        message = lua_tostring(L, -1);
    }
    lua_rawsetp(L, LUA_REGISTRYINDEX, &KeptError);
    sessionOf(L).errorIsKept = true;
    return {status, message};
}

int raiseCurrentException(lua_State* L) {
    Session& session = sessionOf(L);
    if (session.errorIsKept) {
        session.errorIsKept = false;
        lua_rawgetp(L, LUA_REGISTRYINDEX, &KeptError);
        lua_pushboolean(L, 0);
        lua_rawsetp(L, LUA_REGISTRYINDEX, &KeptError);
        if (session.observer) session.observer->note("fails as the handler did");
    } else {
        ErrorInfo error;
        const Status status = statusOfCurrentException(&error, {});
        if (session.observer) session.observer->note(std::string("fails: ") + nameOf(status) + ": " + error.message);
        luaL_checkstack(L, 6, "for a failure");
        pushFailure(L, status, error.message);
    }
    return lua_error(L);
}

} // namespace zilvo::console
