#include "hosts/console/lua/LuaLiteral.h"

#include "hosts/console/lua/LuaValues.h"
#include "hosts/console/lua/LuaWords.h"

#include <lauxlib.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <tuple>
#include <vector>

namespace zilvo::console {

using namespace platform;

namespace {

constexpr std::size_t MostLevels = 4;
constexpr std::size_t MostEntries = 100; ///< of a table with a key, and again without
constexpr std::size_t MostInAll = 1000;  ///< entries, and then those of the tables begun
constexpr std::size_t MostInLine = 100;  ///< bytes

/// Text of a terminal's control codes, or of no UTF-8, is written by its bytes.
std::string quoted(std::string_view text) {
    const bool isUtf8 = toUtf8(toUtf16(text)) == text;
    std::string written = "\"";
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        if (letter == '"' || letter == '\\')
            written += {'\\', letter};
        else if (letter == '\n')
            written += "\\n";
        else if (letter == '\t')
            written += "\\t";
        else if (byte < 0x20 || byte == 0x7F || (byte >= 0x80 && !isUtf8)) {
            std::array<char, 5> hexadecimal{};
            std::snprintf(hexadecimal.data(), hexadecimal.size(), "\\x%02X", unsigned{byte});
            written += hexadecimal.data();
        } else
            written += letter;
    }
    return written + "\"";
}

/// The key of an entry: numbers come first, then names and other texts, then what is neither.
struct Key {
    enum class Rank : std::uint8_t { Number, Text, Other } rank;
    lua_Number number;
    std::string text;

    bool operator<(const Key& other) const {
        return std::tie(rank, number, text) < std::tie(other.rank, other.number, other.text);
    }
};

class Writer {
public:
    explicit Writer(lua_State* L) : L_(L) {}

    std::string write(int index) {
        luaL_checkstack(L_, 8, "for a value");
        index = lua_absindex(L_, index);
        switch (lua_type(L_, index)) {
        case LUA_TSTRING:
            return quoted(textOf(index));
        case LUA_TNUMBER:
            return number(index);
        case LUA_TTABLE:
            if (luaL_getmetafield(L_, index, "__tostring") == LUA_TNIL) return table(index);
            lua_pop(L_, 1);
            return shown(index);
        case LUA_TUSERDATA:
            return userdata(index);
        default:
            return shown(index);
        }
    }

private:
    struct Open {
        const void* table;
        std::string way; ///< from the outermost table
    };

    std::string_view textOf(int index) const {
        std::size_t length = 0;
        const char* text = lua_tolstring(L_, index, &length);
        return {text, length};
    }

    std::string shown(int index) const {
        std::string text = luaL_tolstring(L_, index, nullptr);
        lua_pop(L_, 1);
        return text;
    }

    std::string number(int index) const {
        const lua_Number value = lua_tonumber(L_, index);
        if (std::isnan(value)) return "0/0";
        if (std::isinf(value)) return value < 0 ? "-math.huge" : "math.huge";
        return shown(index);
    }

    std::string userdata(int index) {
        const int before = lua_gettop(L_);
        const auto maker = pushParts(L_, index);
        if (!maker) return shown(index);
        std::string parts;
        for (int at = before + 1, end = lua_gettop(L_); at <= end; ++at)
            parts += (parts.empty() ? "" : ", ") + write(at);
        lua_settop(L_, before);
        return *maker + "(" + parts + ")";
    }

    std::string table(int index) {
        const void* self = lua_topointer(L_, index);
        for (const Open& open : open_)
            if (open.table == self) return open.way.empty() ? "<cycle>" : "<cycle " + open.way + ">";
        if (open_.size() == MostLevels || entries_ > MostInAll) return "{...}";
        open_.push_back({self, way_});
        std::vector<std::string> entries;
        const auto count = static_cast<lua_Integer>(lua_rawlen(L_, index));
        addKeyed(index, count, entries);
        addListed(index, count, entries);
        open_.pop_back();
        return braced(entries);
    }

    /// The entries whose keys come first; `listed` of them are the table's list.
    void addKeyed(int index, lua_Integer listed, std::vector<std::string>& entries) {
        std::map<Key, std::string> first;
        std::size_t more = 0;
        for (lua_pushnil(L_); lua_next(L_, index) != 0; lua_pop(L_, 1)) {
            const int key = lua_gettop(L_) - 1;
            if (lua_isinteger(L_, key) && lua_tointeger(L_, key) >= 1 && lua_tointeger(L_, key) <= listed) continue;
            const Key found = keyAt(key);
            if (first.size() == MostEntries) {
                ++more;
                if (std::prev(first.end())->first < found) continue;
                first.erase(std::prev(first.end()));
            }
            first[found] = entry(found.text.front() == '[' ? found.text : "." + found.text);
        }
        for (const auto& [key, value] : first)
            entries.push_back(key.text + " = " + value);
        addMore(more, entries);
    }

    void addListed(int index, lua_Integer count, std::vector<std::string>& entries) {
        const auto most = std::min(count, static_cast<lua_Integer>(MostEntries));
        for (lua_Integer at = 1; at <= most; ++at) {
            lua_rawgeti(L_, index, at);
            const std::string text = entry("[" + std::to_string(at) + "]");
            lua_pop(L_, 1);
            const bool sharesLine = at > 1 && entries.back().size() + text.size() < MostInLine && isPlain(text);
            if (sharesLine && isPlain(entries.back()))
                entries.back() += ", " + text;
            else
                entries.push_back(text);
        }
        addMore(static_cast<std::size_t>(count - most), entries);
    }

    static bool isPlain(const std::string& text) { return text.find('{') == std::string::npos; }

    static void addMore(std::size_t count, std::vector<std::string>& entries) {
        if (count > 0) entries.push_back("... " + std::to_string(count) + " more");
    }

    Key keyAt(int index) {
        switch (lua_type(L_, index)) {
        case LUA_TNUMBER:
            return {Key::Rank::Number, lua_tonumber(L_, index), "[" + number(index) + "]"};
        case LUA_TSTRING: {
            const auto text = textOf(index);
            return {Key::Rank::Text, 0, isName(text) ? std::string(text) : "[" + quoted(text) + "]"};
        }
        default:
            return {Key::Rank::Other, 0, "[" + shown(index) + "]"};
        }
    }

    /// The value on top of the stack, which `step` leads to.
    std::string entry(const std::string& step) {
        ++entries_;
        const auto before = way_.size();
        way_ += step;
        std::string text = write(-1);
        way_.resize(before);
        return text;
    }

    std::string braced(const std::vector<std::string>& entries) const {
        std::string line;
        for (const std::string& text : entries)
            line += (line.empty() ? "" : ", ") + text;
        if (line.size() <= MostInLine && line.find('\n') == std::string::npos) return "{" + line + "}";
        const std::string margin = "\n" + std::string(2 * open_.size(), ' ');
        std::string lines = "{";
        for (const std::string& text : entries)
            lines.append(margin).append("  ").append(text).append(",");
        return lines + margin + "}";
    }

    lua_State* L_;
    std::vector<Open> open_;
    std::string way_;
    std::size_t entries_ = 0;
};

} // namespace

std::string literalOf(lua_State* L, int index) {
    return Writer(L).write(index);
}

} // namespace zilvo::console
