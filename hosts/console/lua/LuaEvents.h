#pragma once

#include "hosts/console/lua/LuaObject.h"

namespace zilvo::console {

/// A script's handler of an event. The function itself is in the table that is the control's user value, so
/// that a handler that holds its control does not keep it alive for ever.
class HandlerSink final : public platform::EventSink, public std::enable_shared_from_this<HandlerSink> {
public:
    HandlerSink(Session& session, lua_Integer control, lua_Integer number, std::string name)
        : session_(session), control_(control), number_(number), name_(std::move(name)) {}

    void Event(platform::Long number, std::span<platform::Variant> arguments) override;

    platform::Connection connection;

private:
    static int run(lua_State* L);

    Session& session_;
    lua_Integer control_;
    lua_Integer number_;
    std::string name_;
};

void defineEvents(lua_State* L);

/// c:on(event, function)
int attachHandler(lua_State* L);

} // namespace zilvo::console
