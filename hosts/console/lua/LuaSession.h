#pragma once

#include "hosts/console/Interrupts.h"
#include "hosts/console/Observer.h"
#include "zilvo/platform/component/Components.h"

#include <lua.h>

#include <functional>
#include <map>

namespace zilvo::console {

/// What one Lua state knows of its host. Lives longer than the state.
class Session {
public:
    explicit Session(platform::Components& hosted) : components(hosted) {}
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Creating by name may add to them.
    platform::Components& components;
    /// How many of them have their names in the Lua state.
    std::size_t namedComponents = 0;
    std::size_t beeps = 0;
    /// Writes down what happens while a transcript is played; else null.
    std::unique_ptr<Observer> observer;
    /// Asked now and then while a statement of a conversation runs; null where nobody interrupts it.
    const Interrupts* interrupts = nullptr;
    /// Told each line of the script itself that is about to run.
    std::function<void(std::size_t line)> reached;
    /// The Lua thread whose call into the component is running: an event's handler runs on it.
    lua_State* current = nullptr;
    /// Whether an error of a handler is on its way through the component back to the call that led to the
    /// event.
    bool errorIsKept = false;
    /// Only the script's finalizers still run.
    bool ends = false;

    /// Numbers for controls and handlers, none given twice.
    lua_Integer nextNumber() noexcept { return ++lastNumber_; }

    /// The one instance of an application object, whose methods scripts call without naming one; made on
    /// first use.
    platform::Object& application(platform::KnownComponent& component, const platform::ClassEntry& entry);
    /// The components' living objects without the application objects above, which no script can let go of.
    std::size_t aliveForScripts() const { return components.liveObjects() - applications_.size(); }

private:
    lua_Integer lastNumber_ = 0;
    std::map<const platform::ClassEntry*, platform::Ref<platform::Object>> applications_;
};

/// Makes the session known to a Lua state and all its threads.
void attachSession(lua_State* L, Session& session);
Session& sessionOf(lua_State* L);

} // namespace zilvo::console
