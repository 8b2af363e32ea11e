#include "hosts/console/lua/LuaEvents.h"

#include "hosts/console/lua/LuaErrors.h"
#include "hosts/console/lua/LuaUserdata.h"
#include "hosts/console/lua/LuaValues.h"

namespace zilvo::console {

using namespace platform;

namespace {

/// What c:on() gives. Letting go of it changes nothing.
struct LuaConnection {
    static constexpr const char* TypeName = "zilvo connection";
    lua_Integer control;
    lua_Integer handler;
};

struct HandlerCall {
    HandlerSink& sink;
    std::span<Variant> arguments;
};

int disconnect(lua_State* L) {
    const auto* self = findUserdata<LuaConnection>(L, 1);
    if (!self) throw Failure(Status::TypeMismatch, shownType(L, 1) + " is no connection: call with ':'");
    pushObjectNumbered(L, self->control);
    auto* control = findUserdata<LuaControl>(L, -1);
    if (!control) return 0;
    const auto found = control->handlers.find(self->handler);
    if (found == control->handlers.end()) return 0;
    found->second->connection.disconnect(); // a sink that is running lives on to its end
    control->handlers.erase(found);
    lua_getiuservalue(L, -1, 1);
    lua_pushnil(L);
    lua_rawseti(L, -2, self->handler);
    return 0;
}

constexpr luaL_Reg connectionMethods[] = {{"disconnect", guarded<disconnect>}};

int connectionGet(lua_State* L) {
    if (pushNamed(L, connectionMethods, 2)) return 1;
    throw Failure(Status::UnknownMember, "a connection has no member named " + toUtf8(textAt(L, 2, "connection")));
}

constexpr luaL_Reg connectionMetamethods[] = {{"__index", guarded<connectionGet>}};

} // namespace

void defineEvents(lua_State* L) {
    defineUserdata<LuaConnection>(L, connectionMetamethods);
}

/// Runs a handler inside one protected call, conversions included: no Lua error may reach the component.
int HandlerSink::run(lua_State* L) {
    const auto& call = passed<const HandlerCall>(L);
    luaL_checkstack(L, static_cast<int>(call.arguments.size()) + 6, "for an event");
    pushObjectNumbered(L, call.sink.control_);
    if (lua_isnil(L, -1)) return 0;
    lua_getiuservalue(L, -1, 1);
    if (lua_rawgeti(L, -1, call.sink.number_) != LUA_TFUNCTION) return 0;
    const int before = lua_gettop(L) - 1;
    for (const Variant& argument : call.arguments)
        pushVariant(L, argument);
    lua_call(L, static_cast<int>(call.arguments.size()), LUA_MULTRET);

    const int given = lua_gettop(L) - before;
    for (int i = 0; i < given && static_cast<std::size_t>(i) < call.arguments.size(); ++i) {
        const int at = before + 1 + i;
        if (lua_isnil(L, at)) continue;
        const auto what = call.sink.name_ + ", value " + std::to_string(i + 1) + " that the handler gives";
        const Variant value = toVariant(L, at, what);
        if (const auto& observer = sessionOf(L).observer) observer->note("gives " + shownValue(value));
        try {
            call.arguments[static_cast<std::size_t>(i)].assign(value);
        } catch (const Failure& failure) {
            throw Failure(failure.status(), what + ": " + failure.what());
        }
    }
    return 0;
}

void HandlerSink::Event(Long, std::span<Variant> arguments) {
    const auto alive = shared_from_this(); // the handler may disconnect itself
    const Observer::Handling handling(session_.observer.get());
    lua_State* L = session_.current;
    if (!lua_checkstack(L, 4)) throw Failure(Status::OutOfMemory, name_ + ": the stack of Lua is full");
    HandlerCall call{*this, arguments};
    lua_pushcfunction(L, guarded<HandlerSink::run>);
    pushPointer(L, call);
    if (lua_pcall(L, 1, 0, 0) != LUA_OK) throw keepError(L);
}

int attachHandler(lua_State* L) {
    lua_settop(L, 3);
    LuaControl& self = objectAt(L, 1);
    const auto what = self.className() + ":on";
    const auto event = textAt(L, 2, what);
    if (!lua_isfunction(L, 3)) throw Failure(Status::TypeMismatch, what + ": " + shownType(L, 3) + " is no function");
    Session& session = sessionOf(L);
    const lua_Integer number = session.nextNumber();
    auto sink = std::make_shared<HandlerSink>(session, self.number, number, self.className() + "." + toUtf8(event));
    sink->connection = connect(*self.object, event, *sink);

    self.handlers.emplace(number, std::move(sink));
    lua_getiuservalue(L, 1, 1);
    lua_pushvalue(L, 3);
    lua_rawseti(L, -2, number);
    pushUserdata(L, LuaConnection{self.number, number});
    return 1;
}

} // namespace zilvo::console
