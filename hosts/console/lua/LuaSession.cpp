#include "hosts/console/lua/LuaSession.h"

namespace zilvo::console {

platform::Object& Session::application(platform::KnownComponent& component, const platform::ClassEntry& entry) {
    auto& instance = applications_[&entry];
    if (!instance) instance = component.application(entry.identity.name);
    return *instance;
}

void attachSession(lua_State* L, Session& session) {
    session.current = L;
    *static_cast<Session**>(lua_getextraspace(L)) = &session;
}

Session& sessionOf(lua_State* L) {
    return **static_cast<Session**>(lua_getextraspace(L));
}

} // namespace zilvo::console
