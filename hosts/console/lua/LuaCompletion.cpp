#include "hosts/console/lua/LuaCompletion.h"

#include "hosts/console/lua/LuaControl.h"
#include "hosts/console/lua/LuaHostTable.h"
#include "hosts/console/lua/LuaSession.h"
#include "hosts/console/lua/LuaWidget.h"
#include "hosts/console/lua/LuaWords.h"
#include "hosts/console/lua/Nesting.h"

#include <lauxlib.h>

namespace zilvo::console {

using namespace platform;

namespace {

/// Words, texts in quotes and signs.
using Tokens = std::vector<std::string_view>;

bool isOpenText(std::string_view token) {
    return (token.front() == '"' || token.front() == '\'') && tokenLength(token) > token.size();
}

/// Null for a line that ends in a comment.
std::optional<Tokens> tokensOf(std::string_view line) {
    Tokens tokens;
    while (!line.empty()) {
        if (line.starts_with(Comment)) return std::nullopt;
        const auto token = line.substr(0, line.starts_with("..") ? 2 : tokenLength(line));
        if (token != " " && token != "\t") tokens.push_back(token);
        line.remove_prefix(token.size());
    }
    return tokens;
}

/// Takes the last one, if it is the one.
bool take(Tokens& tokens, std::string_view wanted) {
    if (tokens.empty() || tokens.back() != wanted) return false;
    tokens.pop_back();
    return true;
}

/// Takes the names at the end that have full stops between them; none when something else leads to them.
Tokens takePath(Tokens& tokens) {
    Tokens path;
    do {
        if (tokens.empty() || !isName(tokens.back())) return {};
        path.insert(path.begin(), tokens.back());
        tokens.pop_back();
    } while (take(tokens, "."));
    return tokens.empty() || tokens.back() != ":" ? path : Tokens();
}

/// Pushes what the names lead to from the globals on, through tables alone; nil for nothing.
void pushPath(lua_State* L, const Tokens& path) {
    lua_pushglobaltable(L);
    for (const std::string_view name : path) {
        if (lua_istable(L, -1)) {
            lua_pushlstring(L, name.data(), name.size());
            lua_rawget(L, -2);
        } else {
            lua_pushnil(L);
        }
        lua_remove(L, -2);
    }
}

void addEntryNames(lua_State* L, int table, MemberNames& names) {
    if (!lua_istable(L, table)) return;
    for (lua_pushnil(L); lua_next(L, table) != 0; lua_pop(L, 1)) {
        if (lua_type(L, -2) != LUA_TSTRING || !isName(lua_tostring(L, -2))) continue;
        names.fields.insert(lua_tostring(L, -2));
        if (lua_isfunction(L, -1)) names.methods.insert(lua_tostring(L, -2));
    }
}

MemberNames namesOf(lua_State* L, const Tokens& path) {
    pushPath(L, path);
    const int index = lua_gettop(L);
    MemberNames names;
    addEntryNames(L, index, names);
    addControlNames(L, index, names);
    addWidgetNames(L, index, names);
    if (path == Tokens{"zilvo"}) addHostTableNames(names);
    return names;
}

std::set<std::string> classNames(const Session& session) {
    std::set<std::string> names;
    for (const KnownComponent& component : session.components.known())
        for (const ClassEntry& entry : component.description().classes) {
            names.insert(toUtf8(entry.identity.name));
            names.insert(toUtf8(progIdOf(component.description().library, entry.identity)));
        }
    return names;
}

/// What a text in quotes can be that the tokens lead to.
std::set<std::string> textsBehind(lua_State* L, Tokens tokens) {
    take(tokens, "(");
    Tokens before = tokens;
    if (takePath(before) == Tokens{"zilvo", "create"}) return classNames(sessionOf(L));
    const bool isWidget = take(tokens, "widget");
    if ((!isWidget && !take(tokens, "on")) || !take(tokens, ":")) return {};
    const Tokens path = takePath(tokens);
    if (path.empty()) return {};
    const MemberNames names = namesOf(L, path);
    return isWidget ? names.widgets : names.events;
}

Completion among(const std::set<std::string>& names, std::string_view begun, std::string_view ending) {
    Completion found{.begun = begun.size(), .words = {}, .ending = std::string(ending)};
    for (const std::string& name : names)
        if (name.starts_with(begun)) found.words.push_back(name);
    return found;
}

} // namespace

Completion completionOf(lua_State* L, std::string_view line) {
    auto tokens = tokensOf(line);
    if (!tokens) return {};
    if (tokens->empty()) return {.begun = 0, .words = {"    "}, .ending = {}}; // Tab indents, also what is pasted
    std::string_view begun;
    if (isOpenText(tokens->back())) {
        const auto quote = tokens->back().substr(0, 1);
        begun = tokens->back().substr(1);
        tokens->pop_back();
        return among(textsBehind(L, *tokens), begun, quote);
    }
    if (isOfWord(line.back())) {
        begun = tokens->back();
        tokens->pop_back();
    }
    const bool isField = take(*tokens, ".");
    if (isField || take(*tokens, ":")) {
        const Tokens path = takePath(*tokens);
        if (path.empty()) return {};
        const MemberNames names = namesOf(L, path);
        return isField ? among(names.fields, begun, "") : among(names.methods, begun, "(");
    }
    auto names = namesOf(L, {}).fields;
    names.insert(keywords.begin(), keywords.end());
    return among(names, begun, "");
}

} // namespace zilvo::console
