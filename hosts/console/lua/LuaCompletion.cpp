#include "hosts/console/lua/LuaCompletion.h"

#include "hosts/console/lua/LuaControl.h"
#include "hosts/console/lua/LuaHostTable.h"
#include "hosts/console/lua/LuaParts.h"
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

bool isText(std::string_view token) {
    return token.front() == '"' || token.front() == '\'';
}

bool isOpenText(std::string_view token) {
    return isText(token) && tokenLength(token) > token.size();
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

/// One step to something: by a name, or to a widget: c:widget("cmdOK").
struct Step {
    std::string_view name;
    bool toWidget;
    friend bool operator==(const Step&, const Step&) = default;
};
using Path = std::vector<Step>;

/// Takes a step from the end: a name, or :widget("optDecks", 2) with whatever index.
std::optional<Step> takeStep(Tokens& tokens) {
    if (tokens.empty()) return std::nullopt;
    if (!take(tokens, ")")) {
        const auto name = tokens.back();
        tokens.pop_back();
        return isName(name) ? std::optional(Step{name, false}) : std::nullopt;
    }
    if (tokens.size() > 2 && tokens.end()[-2] == ",") tokens.resize(tokens.size() - 2);
    if (tokens.empty() || !isText(tokens.back())) return std::nullopt;
    const auto text = tokens.back();
    tokens.pop_back();
    const bool isWhole = take(tokens, "(") && take(tokens, "widget") && take(tokens, ":");
    return isWhole ? std::optional(Step{text.substr(1, text.size() - 2), true}) : std::nullopt;
}

/// Takes the steps at the end; none when something else leads to them.
Path takePath(Tokens& tokens) {
    Path path;
    do {
        const auto step = takeStep(tokens);
        if (!step) return {};
        path.insert(path.begin(), *step);
    } while (path.front().toWidget || take(tokens, "."));
    return tokens.empty() || tokens.back() != ":" ? path : Path();
}

/// Pushes what a step leads to from what is at that index; nil for nothing.
void pushStep(lua_State* L, int index, const Step& step) {
    if (step.toWidget) return pushFirstWidget(L, index, toUtf16(step.name));
    if (!lua_istable(L, index)) return pushControlField(L, index, step.name);
    lua_pushlstring(L, step.name.data(), step.name.size());
    lua_rawget(L, index);
}

/// Pushes what the path leads to from the globals on; nil for nothing.
void pushPath(lua_State* L, const Path& path) {
    lua_pushglobaltable(L);
    const int index = lua_gettop(L);
    for (const Step& step : path) {
        pushStep(L, index, step);
        lua_replace(L, index);
        lua_settop(L, index);
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

MemberNames namesOf(lua_State* L, const Path& path) {
    pushPath(L, path);
    const int index = lua_gettop(L);
    MemberNames names;
    addEntryNames(L, index, names);
    addControlNames(L, index, names);
    addPartNames(L, index, names);
    addWidgetNames(L, index, names);
    if (path == Path{{"zilvo", false}}) addHostTableNames(names);
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
    if (takePath(before) == Path{{"zilvo", false}, {"create", false}}) return classNames(sessionOf(L));
    const bool isWidget = take(tokens, "widget");
    if ((!isWidget && !take(tokens, "on")) || !take(tokens, ":")) return {};
    const Path path = takePath(tokens);
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
        const Path path = takePath(*tokens);
        if (path.empty()) return {};
        const MemberNames names = namesOf(L, path);
        return isField ? among(names.fields, begun, "") : among(names.methods, begun, "(");
    }
    auto names = namesOf(L, {}).fields;
    names.insert(keywords.begin(), keywords.end());
    return among(names, begun, "");
}

} // namespace zilvo::console
