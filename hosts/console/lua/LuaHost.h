#pragma once

#include "hosts/console/LineEditor.h"
#include "hosts/console/LineReader.h"
#include "hosts/console/Transcript.h"
#include "hosts/console/lua/LuaSession.h"

#include <lua.h>

#include <memory>
#include <string>
#include <vector>

namespace zilvo::console {

/// A Lua state with the table `zilvo` and the components' names in it. Closed before the components are unloaded.
class LuaHost {
public:
    /// One component at least is loaded.
    explicit LuaHost(platform::Components& components);

    /// Runs a script; gives the program's exit status, an error being written to standard error.
    int run(const std::string& file, const std::vector<std::string>& arguments);

    /// Plays a transcript to its end: notes under each statement what is observed. `reached` is told the first line
    /// of each statement that is about to run. False when an error ends the script; it is written to standard error.
    bool play(Transcript& transcript, const std::string& file, const std::function<void(std::size_t line)>& reached);

    /// Whether the lines are one or more whole statements of Lua, right or wrong.
    bool isWhole(const std::string& lines);

    /// Reads and runs statements and expressions until the input ends. An error or an interrupt ends the statement
    /// only.
    void converse(LineReader& reader);

    /// What can stand at the end of a line of a conversation. Runs no code of the script, and never fails.
    Completion complete(std::string_view line);

private:
    struct Close {
        void operator()(lua_State* L) const noexcept {
            sessionOf(L).ends = true;
            lua_close(L);
        }
    };

    Session session_;
    std::unique_ptr<lua_State, Close> lua_;
};

} // namespace zilvo::console
