#include "hosts/console/lua/LuaHost.h"

#include "hosts/console/lua/LuaCompletion.h"
#include "hosts/console/lua/LuaControl.h"
#include "hosts/console/lua/LuaErrors.h"
#include "hosts/console/lua/LuaGlobals.h"
#include "hosts/console/lua/LuaHostTable.h"
#include "hosts/console/lua/LuaLiteral.h"
#include "hosts/console/lua/LuaUserdata.h"
#include "hosts/console/lua/LuaValues.h"
#include "hosts/console/lua/LuaWidget.h"
#include "hosts/console/lua/Nesting.h"

#include <lauxlib.h>
#include <lualib.h>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <iterator>
#include <map>

namespace zilvo::console {

using namespace platform;

namespace {

/// Lua's own library without what reaches behind the host: into userdata, metatables, the registry and the stack.
int openDebug(lua_State* L) {
    lua_newtable(L);
    luaopen_debug(L);
    for (const char* name : {"traceback", "getinfo", "gethook", "sethook"}) {
        lua_getfield(L, -1, name);
        lua_setfield(L, -3, name);
    }
    lua_pop(L, 1);
    return 1;
}

int openEverything(lua_State* L) {
    defineErrors(L);
    luaL_requiref(L, LUA_DBLIBNAME, openDebug, 1); // the one that is there stays
    luaL_openlibs(L);
    defineValues(L);
    defineControls(L);
    defineWidgets(L);
    defineHostTable(L);
    defineGlobals(L);
    return 0;
}

struct Script {
    const std::string& file;
    const std::vector<std::string>& arguments;
};

int runScript(lua_State* L) {
    const auto& script = passed<const Script>(L);
    const auto count = static_cast<int>(script.arguments.size());
    luaL_checkstack(L, count + 4, "for the script's arguments");
    lua_createtable(L, count, 1);
    pushText(L, script.file);
    lua_rawseti(L, -2, 0);
    for (lua_Integer at = 0; const std::string& argument : script.arguments) {
        pushText(L, argument);
        lua_rawseti(L, -2, ++at);
    }
    lua_setglobal(L, "arg");
    if (luaL_loadfilex(L, script.file.c_str(), "t") != LUA_OK) return lua_error(L);
    for (const std::string& argument : script.arguments)
        pushText(L, argument);
    lua_call(L, count, 0);
    return 0;
}

constexpr unsigned DeepestShown = 4;

/// As Lua's own print writes it, but a table with what is in it: "{Cancel = true, 5}", named fields first and in the
/// order of their names.
std::string shownForPeople(lua_State* L, int index, unsigned depth = 0) {
    luaL_checkstack(L, 6, "for printing");
    const int before = lua_gettop(L);
    if (!lua_istable(L, index) || luaL_getmetafield(L, index, "__tostring") != LUA_TNIL) {
        std::string text = luaL_tolstring(L, index, nullptr);
        lua_settop(L, before);
        return text;
    }
    if (depth == DeepestShown) return "{...}";
    std::map<std::string, std::string> named;
    for (lua_pushnil(L); lua_next(L, index) != 0; lua_pop(L, 1))
        if (lua_type(L, -2) == LUA_TSTRING) named[lua_tostring(L, -2)] = shownForPeople(L, lua_gettop(L), depth + 1);
    std::string text;
    for (const auto& [name, value] : named)
        text.append(text.empty() ? "" : ", ").append(name).append(" = ").append(value);
    const auto count = static_cast<lua_Integer>(lua_rawlen(L, index));
    for (lua_Integer at = 1; at <= count; ++at) {
        lua_rawgeti(L, index, at);
        text += (text.empty() ? "" : ", ") + shownForPeople(L, lua_gettop(L), depth + 1);
        lua_pop(L, 1);
    }
    return "{" + text + "}";
}

struct Played {
    std::string script;
    std::string name;
};

/// The script's own lines, not those of the functions that it calls.
void onLine(lua_State* L, lua_Debug* frame) {
    lua_getinfo(L, "S", frame);
    Session& session = sessionOf(L);
    if (std::string_view(frame->what) == "main" && session.reached)
        session.reached(static_cast<std::size_t>(frame->currentline));
}

/// As Lua's own print, but it is one of the things that are observed. A table is shown with what is in it.
int printObserved(lua_State* L) {
    std::string text;
    const int count = lua_gettop(L);
    for (int at = 1; at <= count; ++at)
        text += " " + shownForPeople(L, at);
    std::replace_if(
        text.begin(), text.end(), [](unsigned char letter) { return letter < 0x20; }, ' ');
    if (const auto& observer = sessionOf(L).observer) observer->note("prints" + text);
    return 0;
}

int runPlayed(lua_State* L) {
    const auto& played = passed<const Played>(L);
    lua_pushcfunction(L, guarded<printObserved>);
    lua_setglobal(L, "print");
    if (luaL_loadbufferx(L, played.script.data(), played.script.size(), played.name.c_str(), "t") != LUA_OK)
        return lua_error(L);
    lua_sethook(L, onLine, LUA_MASKLINE, 0);
    lua_call(L, 0, 0);
    return 0;
}

/// A statement of a conversation: what has been typed of it so far.
struct Statement {
    std::string text;
    Nesting nesting;
    bool isIncomplete = false;
};

/// Whether the syntax error on top of the stack is that something is missing at the end.
bool endsTooEarly(lua_State* L) {
    return std::string_view(lua_tostring(L, -1)).ends_with("<eof>");
}

/// Loads it as an expression or, failing that, as statements.
bool load(lua_State* L, Statement& statement) {
    const auto loads = [L](const std::string& text) {
        return luaL_loadbufferx(L, text.data(), text.size(), "=stdin", "t") == LUA_OK;
    };
    if (loads("return " + statement.text)) return true;
    lua_pop(L, 1);
    if (loads(statement.text)) return true;
    statement.isIncomplete = endsTooEarly(L);
    return false;
}

/// Ends what runs when whoever typed it has had enough of it. Code that catches errors is ended with its next step:
/// from then on each step fails.
void onStep(lua_State* L, lua_Debug* /*frame*/) {
    constexpr int Seldom = 1000;
    const Interrupts* interrupts = sessionOf(L).interrupts;
    const bool wanted = interrupts && interrupts->wanted();
    if (const int steps = wanted ? 1 : Seldom; lua_gethookcount(L) != steps)
        lua_sethook(L, onStep, LUA_MASKCOUNT, steps);
    if (!wanted) return;
    lua_pushliteral(L, "interrupted");
    lua_error(L);
}

int runStatement(lua_State* L) {
    auto& statement = passed<Statement>(L);
    if (!load(L, statement)) return lua_error(L);
    if (sessionOf(L).interrupts && !lua_gethook(L)) lua_sethook(L, onStep, LUA_MASKCOUNT, 1);
    const int before = lua_gettop(L) - 1;
    lua_call(L, 0, LUA_MULTRET);
    const int given = lua_gettop(L) - before;
    luaL_checkstack(L, 2, "for printing");
    for (int i = 1; i <= given; ++i)
        std::cout << (i > 1 ? "\t" : "") << literalOf(L, before + i);
    if (given > 0) std::cout << '\n';
    return 0;
}

struct Completing {
    std::string_view line;
    Completion found;
};

int runCompletion(lua_State* L) {
    auto& completing = passed<Completing>(L);
    completing.found = completionOf(L, completing.line);
    return 0;
}

/// Calls the function with a pointer to what it works on. False leaves the error's text on the stack.
template <class T>
bool callProtected(lua_State* L, lua_CFunction function, T& subject) {
    lua_settop(L, 0);
    lua_pushcfunction(L, errorText);
    lua_pushcfunction(L, function);
    pushPointer(L, subject);
    return lua_pcall(L, 1, 0, 1) == LUA_OK;
}

std::string errorOf(lua_State* L) {
    const char* text = lua_tostring(L, -1);
    return text ? text : "an error without a text";
}

} // namespace

LuaHost::LuaHost(Components& components) : session_(components), lua_(luaL_newstate()) {
    lua_State* L = lua_.get();
    if (!L) throw Failure(Status::OutOfMemory, "there is no memory for Lua");
    attachSession(L, session_);
    if (!callProtected(L, openEverything, session_)) throw Failure(Status::Failed, errorOf(L));
}

int LuaHost::run(const std::string& file, const std::vector<std::string>& arguments) {
    const Script script{file, arguments};
    const bool succeeded = callProtected(lua_.get(), runScript, script);
    std::cout.flush();
    if (!succeeded) std::cerr << "zilvo: " << errorOf(lua_.get()) << '\n';
    return succeeded ? 0 : 1;
}

bool LuaHost::isWhole(const std::string& lines) {
    lua_State* L = lua_.get();
    const bool loads = luaL_loadbufferx(L, lines.data(), lines.size(), "=transcript", "t") == LUA_OK;
    const bool ends = loads || !endsTooEarly(L);
    lua_pop(L, 1);
    return ends;
}

bool LuaHost::play(Transcript& transcript, const std::string& file, const std::function<void(std::size_t)>& reached) {
    session_.observer = std::make_unique<Observer>();
    Transcript::Statement* running = nullptr;
    const auto finish = [&] {
        auto lines = session_.observer->taken();
        if (running) std::move(lines.begin(), lines.end(), std::back_inserter(running->observed));
    };
    session_.reached = [&](std::size_t line) {
        Transcript::Statement* statement = transcript.at(line);
        if (!statement || statement == running) return;
        finish();
        running = statement;
        running->hasRun = true;
        reached(running->first);
    };
    const Played played{transcript.script(), "@" + file};
    const bool succeeded = callProtected(lua_.get(), runPlayed, played);
    lua_sethook(lua_.get(), nullptr, 0, 0);
    if (!succeeded) std::cerr << "zilvo: " << errorOf(lua_.get()) << '\n';
    finish();
    session_.reached = nullptr;
    std::cout.flush();
    return succeeded;
}

void LuaHost::converse(LineReader& reader) {
    constexpr std::size_t Long = 20000; // bytes of a statement
    lua_State* L = lua_.get();
    const Interrupts* interrupts = reader.interrupts();
    session_.interrupts = interrupts;
    Statement statement;
    for (bool more = true; more;) {
        const Typed typed = reader.read(statement.isIncomplete ? ">> " : "> ");
        more = typed.how != Typed::How::End;
        if (typed.how == Typed::How::Dropped) {
            statement = {};
            continue;
        }
        if (more) {
            statement.text += (statement.isIncomplete ? "\n" : "") + typed.line;
            statement.nesting.read(typed.line);
            // Another try compiles all of it again: a long one is tried only when it can be whole.
            statement.isIncomplete = statement.text.size() > Long && statement.nesting.isOpen();
            if (statement.isIncomplete) continue;
        } else if (!statement.isIncomplete) {
            break;
        }
        statement.isIncomplete = false;
        const bool succeeded = callProtected(L, runStatement, statement);
        std::cout.flush();
        if (interrupts && interrupts->wanted()) { // what it cut short of the output is no loss
            std::cout.clear();
            std::clearerr(stdout);
            std::cout << std::endl;
        }
        if (statement.isIncomplete && more) continue;
        if (!succeeded) std::cerr << errorOf(L) << '\n';
        statement = {};
    }
    session_.interrupts = nullptr;
}

Completion LuaHost::complete(std::string_view line) {
    lua_State* L = lua_.get();
    Completing completing{line, {}};
    const bool collects = lua_gc(L, LUA_GCISRUNNING) != 0;
    lua_gc(L, LUA_GCSTOP); // finalizers are the script's code
    callProtected(L, guarded<runCompletion>, completing);
    if (collects) lua_gc(L, LUA_GCRESTART);
    return completing.found;
}

} // namespace zilvo::console
