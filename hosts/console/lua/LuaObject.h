#pragma once

#include "hosts/console/lua/LuaSession.h"
#include "zilvo/platform/component/ControlHost.h"

#include <lua.h>

#include <lauxlib.h>

#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace zilvo::console {

class HandlerSink;

/// A control that a script hosts.
class ScriptedControl final : public platform::ControlHost {
public:
    ScriptedControl(platform::Ref<platform::Object> object, Session& session);
    ~ScriptedControl() override;

protected:
    void PropertyChanged(platform::StringView name) override;
    void SizeChanged(platform::Single width, platform::Single height) override;
    void Beep() override;
    bool ShowPopup(platform::Menu& root, platform::Point at) override;
    void ViewChanged() noexcept override;

private:
    class ObservedEvent;

    void note(const std::string& line) const {
        if (session_.observer) session_.observer->note(object(), line);
    }

    Session& session_;
    std::vector<std::unique_ptr<ObservedEvent>> observed_;
};

/// An object of the component in a script; its user value is the table of its handlers.
struct LuaControl {
    static constexpr const char* TypeName = "zilvo control";
    lua_Integer number; ///< given to no other
    platform::Ref<platform::Object> object;
    std::unique_ptr<ScriptedControl> host; ///< null for an object that is no control
    Observer::Watch watch;                 ///< null without an observer
    std::map<lua_Integer, std::shared_ptr<HandlerSink>> handlers;

    std::string className() const { return platform::toUtf8(object->description().name); }
};

void defineObjects(lua_State* L, std::span<const luaL_Reg> metamethods);

/// Pushes the userdata of a new object.
void pushObject(lua_State* L, LuaControl control);
/// Pushes the userdata of the object of that number, or nil when nothing but its own end is left to it.
void pushObjectNumbered(lua_State* L, lua_Integer number);

/// The object whose userdata is at that index. Fails with TypeMismatch for anything else, UnexpectedCall once it has
/// been let go of.
LuaControl& objectAt(lua_State* L, int index);
/// The same as a control; fails with NoInterface for an object that is none.
platform::ControlHost& hostAt(lua_State* L, int index);

/// Calls a member of an object with the Lua values from `first` to the top. Pushes the result, if there is one, and
/// for a method the final values of its by-reference arguments; gives how many.
int callMember(lua_State* L, platform::Object& object, const platform::MemberDescription& member, platform::Access how,
               int first);

/// Host names of a userdata, which come before published members. Pushes the function whose name is at `nameIndex`;
/// false when there is none.
bool pushNamed(lua_State* L, std::span<const luaL_Reg> functions, int nameIndex);
/// Fails with ReadOnlyProperty when the name at `nameIndex` is one of them.
void refuseNamed(lua_State* L, std::span<const luaL_Reg> functions, int nameIndex, const std::string& owner);

} // namespace zilvo::console
