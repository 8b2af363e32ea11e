#pragma once

#include "hosts/console/lua/LuaSession.h"

#include <lua.h>

#include <lauxlib.h>

#include <cstddef>
#include <new>
#include <optional>
#include <span>
#include <utility>

namespace zilvo::console {

/// Pushes the object's address; Lua has no pointers to constants.
template <class T>
void pushPointer(lua_State* L, const T& object) {
    lua_pushlightuserdata(L, const_cast<T*>(&object)); // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

/// The object whose address is a function's first argument. A script that gets hold of the function has no address.
template <class T>
T& passed(lua_State* L) {
    luaL_checktype(L, 1, LUA_TLIGHTUSERDATA);
    return *static_cast<T*>(lua_touserdata(L, 1));
}

/// A C++ value in a Lua userdata. The finalizer only empties the box, so that a script's own finalizers may
/// still meet it. A type T says under which name Lua knows it: T::TypeName.
template <class T>
struct Box {
    std::optional<T> value;
};

/// Pushes a new userdata that holds the value. Fails with UnexpectedCall while Lua closes, when no new one would be
/// finalized.
template <class T>
T& pushUserdata(lua_State* L, T value, int userValues = 0) {
    static_assert(alignof(Box<T>) <= alignof(lua_Number), "Lua aligns a userdata for its numbers");
    if (sessionOf(L).ends) throw platform::Failure(platform::Status::UnexpectedCall, "the script has ended");
    auto* box = new (lua_newuserdatauv(L, sizeof(Box<T>), userValues)) Box<T>();
    luaL_setmetatable(L, T::TypeName);
    return box->value.emplace(std::move(value));
}

/// The value of the userdata at that index; null for anything else, and once it has been finalized.
template <class T>
T* findUserdata(lua_State* L, int index) {
    auto* box = static_cast<Box<T>*>(luaL_testudata(L, index, T::TypeName));
    return box && box->value ? &*box->value : nullptr;
}

/// Makes the metatable of T, which scripts cannot get at.
template <class T>
void defineUserdata(lua_State* L, std::span<const luaL_Reg> metamethods) {
    luaL_newmetatable(L, T::TypeName);
    for (const luaL_Reg& entry : metamethods) {
        lua_pushcfunction(L, entry.func);
        lua_setfield(L, -2, entry.name);
    }
    lua_pushcfunction(L, [](lua_State* state) {
        static_cast<Box<T>*>(luaL_checkudata(state, 1, T::TypeName))->value.reset();
        return 0;
    });
    lua_setfield(L, -2, "__gc");
    lua_pushstring(L, T::TypeName);
    lua_setfield(L, -2, "__metatable");
    lua_pop(L, 1);
}

} // namespace zilvo::console
