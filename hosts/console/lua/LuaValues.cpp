#include "hosts/console/lua/LuaValues.h"

#include "hosts/console/lua/LuaErrors.h"
#include "hosts/console/lua/LuaUserdata.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <map>

namespace zilvo::console {

using namespace platform;

namespace {

/// A font object, shared with whatever shows it.
struct LuaFont {
    static constexpr const char* TypeName = "zilvo font";
    FontRef font;
};

/// An array with a lower bound of its own, passed to members as it is.
struct LuaArray {
    static constexpr const char* TypeName = "zilvo array";
    BooleanArray array;
};

/// A value of a stated kind.
struct LuaValue {
    static constexpr const char* TypeName = "zilvo value";
    Variant value;
};

[[noreturn]] void mismatch(const std::string& what, const std::string& why) {
    throw Failure(Status::TypeMismatch, what + ": " + why);
}

template <class T>
T& required(lua_State* L, int index, const std::string& what) {
    if (T* value = findUserdata<T>(L, index)) return *value;
    mismatch(what, shownType(L, index) + " is no " + T::TypeName);
}

// Numbers

std::string shownNumber(lua_Number number) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.14g", number);
    return text.data();
}

Variant numberToVariant(lua_State* L, int index, const std::string& what, Kind wanted) {
    if (lua_isinteger(L, index)) {
        const lua_Integer number = lua_tointeger(L, index);
        if (number >= std::numeric_limits<Long>::min() && number <= std::numeric_limits<Long>::max())
            return static_cast<Long>(number);
        if (wanted == Kind::Colour && number > 0 && number <= std::numeric_limits<std::uint32_t>::max())
            return Colour{static_cast<std::uint32_t>(number)};
        throw Failure(Status::Overflow, what + ": " + std::to_string(number) + " is out of the range of Long");
    }
    const lua_Number number = lua_tonumber(L, index);
    // A whole number goes whole where one is wanted: a Single does not hold every Long.
    const auto whole = static_cast<lua_Number>(std::numeric_limits<Long>::max());
    if ((wanted == Kind::Integer || wanted == Kind::Long) && std::abs(number) <= whole && number == std::floor(number))
        return static_cast<Long>(number);
    if (!(std::abs(number) <= static_cast<lua_Number>(std::numeric_limits<Single>::max())))
        throw Failure(Status::Overflow, what + ": " + shownNumber(number) + " is out of the range of Single");
    return static_cast<Single>(number);
}

// Arrays

/// The lower bound and size of a table whose keys are 0 to n or 1 to n and whose values are Booleans.
struct List {
    lua_Integer lower;
    lua_Integer size;
};

List listAt(lua_State* L, int index, const std::string& what) {
    luaL_checkstack(L, 4, "for a table");
    List list{lua_rawgeti(L, index, 0) == LUA_TNIL ? 1 : 0, 0};
    lua_pop(L, 1);
    lua_Integer highest = list.lower - 1;
    lua_pushnil(L);
    while (lua_next(L, index) != 0) {
        if (!lua_isinteger(L, -2)) mismatch(what, "a table with " + shownType(L, -2) + " as a key is no array");
        const lua_Integer key = lua_tointeger(L, -2);
        if (key < list.lower) mismatch(what, "a table with the key " + std::to_string(key) + " is no array");
        if (!lua_isboolean(L, -1))
            mismatch(what, "element " + std::to_string(key) + " is " + shownType(L, -1) + ", not a boolean");
        highest = std::max(highest, key);
        ++list.size;
        lua_pop(L, 1);
    }
    if (highest - list.lower + 1 != list.size)
        mismatch(what, "a table that has a key " + std::to_string(highest) + " and not all before it is no array");
    return list;
}

std::vector<Boolean> elementsAt(lua_State* L, int index, const List& list) {
    std::vector<Boolean> elements;
    elements.reserve(static_cast<std::size_t>(list.size));
    for (lua_Integer i = 0; i < list.size; ++i) {
        lua_rawgeti(L, index, list.lower + i);
        elements.push_back(asBoolean(lua_toboolean(L, -1) != 0));
        lua_pop(L, 1);
    }
    return elements;
}

BooleanArray arrayFromTable(lua_State* L, int index, const std::string& what) {
    const List list = listAt(L, index, what);
    return {static_cast<Long>(list.lower), elementsAt(L, index, list)};
}

/// An array without elements has no bounds.
lua_Integer lowerOf(const BooleanArray& array) {
    return array.hasElements() ? array.LowerBound() : 1;
}

void fillTable(lua_State* L, int table, const BooleanArray& array) {
    const lua_Integer lower = lowerOf(array);
    for (lua_Integer i = 0; i < static_cast<lua_Integer>(array.size()); ++i) {
        lua_pushboolean(L, isTrue(array.At(static_cast<Long>(lower + i))));
        lua_rawseti(L, table, lower + i);
    }
}

void pushArray(lua_State* L, const BooleanArray& array) {
    if (const lua_Integer lower = lowerOf(array); lower == 0 || lower == 1) {
        lua_createtable(L, static_cast<int>(array.size()), 0);
        fillTable(L, lua_gettop(L), array);
    } else {
        pushUserdata(L, LuaArray{array});
    }
}

LuaArray& arraySelf(lua_State* L) {
    return required<LuaArray>(L, 1, "array");
}

Long arrayIndexAt(lua_State* L, int index) {
    int isWhole = 0;
    const lua_Integer number = lua_tointegerx(L, index, &isWhole);
    if (lua_type(L, index) != LUA_TNUMBER || !isWhole)
        mismatch("array", shownType(L, index) + " is no index of an array");
    if (number < std::numeric_limits<Long>::min() || number > std::numeric_limits<Long>::max())
        throw Failure(Status::SubscriptOutOfRange, "there is no element " + std::to_string(number) + " in an array");
    return static_cast<Long>(number);
}

int arrayGet(lua_State* L) {
    const BooleanArray& array = arraySelf(L).array;
    if (lua_type(L, 2) == LUA_TSTRING) {
        const auto name = textAt(L, 2, "array");
        if (name == u"lower")
            lua_pushinteger(L, array.LowerBound());
        else if (name == u"upper")
            lua_pushinteger(L, array.UpperBound());
        else
            throw Failure(Status::UnknownMember, "an array has no member named " + toUtf8(name));
        return 1;
    }
    lua_pushboolean(L, isTrue(array.At(arrayIndexAt(L, 2))));
    return 1;
}

int arraySet(lua_State* L) {
    BooleanArray& array = arraySelf(L).array;
    if (lua_type(L, 2) == LUA_TSTRING)
        throw Failure(Status::UnknownMember, "an array has no member " + toUtf8(textAt(L, 2, "array")) + " to set");
    Boolean& element = array.At(arrayIndexAt(L, 2));
    if (!lua_isboolean(L, 3)) mismatch("array", shownType(L, 3) + " is no boolean");
    element = asBoolean(lua_toboolean(L, 3) != 0);
    return 0;
}

int arrayLength(lua_State* L) {
    lua_pushinteger(L, static_cast<lua_Integer>(arraySelf(L).array.size()));
    return 1;
}

int arrayEquals(lua_State* L) {
    const auto* one = findUserdata<LuaArray>(L, 1);
    const auto* other = findUserdata<LuaArray>(L, 2);
    lua_pushboolean(L, one && other && one->array == other->array);
    return 1;
}

int arrayToString(lua_State* L) {
    pushText(L, describe(Variant::to(arraySelf(L).array)));
    return 1;
}

/// The step of pairs(): the element after the index given, from the lower bound on.
int arrayNext(lua_State* L) {
    const BooleanArray& array = arraySelf(L).array;
    if (!array.hasElements()) return lua_pushnil(L), 1;
    const lua_Integer next = lua_isnil(L, 2) ? array.LowerBound() : lua_Integer{arrayIndexAt(L, 2)} + 1;
    if (next > array.UpperBound()) return lua_pushnil(L), 1;
    lua_pushinteger(L, next);
    lua_pushboolean(L, isTrue(array.At(static_cast<Long>(next))));
    return 2;
}

int arrayPairs(lua_State* L) {
    (void)arraySelf(L);
    lua_pushcfunction(L, guarded<arrayNext>);
    lua_pushvalue(L, 1);
    lua_pushnil(L);
    return 3;
}

constexpr luaL_Reg arrayMetamethods[] = {
    {"__index", guarded<arrayGet>}, {"__newindex", guarded<arraySet>},      {"__len", guarded<arrayLength>},
    {"__eq", guarded<arrayEquals>}, {"__tostring", guarded<arrayToString>}, {"__pairs", guarded<arrayPairs>},
};

int makeArray(lua_State* L) {
    const std::string what = "zilvo.array";
    int isWhole = 0;
    const lua_Integer lower = lua_tointegerx(L, 1, &isWhole);
    if (lua_type(L, 1) != LUA_TNUMBER || !isWhole) mismatch(what, shownType(L, 1) + " is no lower bound");
    if (lower < std::numeric_limits<Long>::min() || lower > std::numeric_limits<Long>::max())
        throw Failure(Status::Overflow, what + ": the lower bound " + std::to_string(lower) + " overflows");
    requireTable(L, 2, what);
    const List list = listAt(L, 2, what);
    if (list.lower != 1) mismatch(what, "the elements are listed from 1 on, not from 0");
    pushUserdata(L, LuaArray{BooleanArray(static_cast<Long>(lower), elementsAt(L, 2, list))});
    return 1;
}

// Fonts

int fontGet(lua_State* L) {
    const FontRef font = required<LuaFont>(L, 1, "font").font;
    pushProperty(L, *font, "Font", textAt(L, 2, "Font"));
    return 1;
}

int fontSet(lua_State* L) {
    const FontRef font = required<LuaFont>(L, 1, "font").font;
    setProperty(L, *font, "Font", textAt(L, 2, "Font"), 3);
    return 0;
}

int fontEquals(lua_State* L) {
    const auto* one = findUserdata<LuaFont>(L, 1);
    const auto* other = findUserdata<LuaFont>(L, 2);
    lua_pushboolean(L, one && other && one->font == other->font);
    return 1;
}

int fontToString(lua_State* L) {
    const FontRef font = required<LuaFont>(L, 1, "font").font;
    pushText(L, "font " + toUtf8(font->get_Name()) + " " + toUtf8(toString(font->get_Size())));
    return 1;
}

constexpr luaL_Reg fontMetamethods[] = {
    {"__index", guarded<fontGet>},
    {"__newindex", guarded<fontSet>},
    {"__eq", guarded<fontEquals>},
    {"__tostring", guarded<fontToString>},
};

int makeFont(lua_State* L) {
    const FontRef font = StdFont::make({});
    if (!lua_isnoneornil(L, 1)) {
        requireTable(L, 1, "zilvo.Font");
        // A weight and a boldness that disagree are set one after the other: in the font's order, not the
        // table's.
        std::map<MemberId, String> given;
        lua_pushnil(L);
        while (lua_next(L, 1) != 0) {
            const auto name = textAt(L, -2, "zilvo.Font");
            const auto* member = font->description().find(name);
            if (!member) throw Failure(Status::UnknownMember, "zilvo.Font: a font has no member named " + toUtf8(name));
            given.insert_or_assign(member->id, name);
            lua_pop(L, 1);
        }
        for (const auto& [id, name] : given) {
            pushText(L, StringView(name));
            lua_rawget(L, 1);
            setProperty(L, *font, "zilvo.Font", name, lua_gettop(L));
            lua_pop(L, 1);
        }
    }
    pushUserdata(L, LuaFont{font});
    return 1;
}

// Values of a stated kind

int valueGet(lua_State* L) {
    const Variant& value = required<LuaValue>(L, 1, "value").value;
    const auto name = textAt(L, 2, "value");
    if (name == u"kind")
        pushText(L, nameOf(value.kind()));
    else if (name == u"value")
        pushVariant(L, value);
    else
        throw Failure(Status::UnknownMember, "a value has no member named " + toUtf8(name));
    return 1;
}

int valueSet(lua_State* L) {
    throw Failure(Status::ReadOnlyProperty,
                  "a value of a kind cannot be changed, so its " + toUtf8(textAt(L, 2, "value")) + " cannot be set");
}

int valueEquals(lua_State* L) {
    const auto* one = findUserdata<LuaValue>(L, 1);
    const auto* other = findUserdata<LuaValue>(L, 2);
    lua_pushboolean(L,
                    one && other && one->value.kind() == other->value.kind() && equalByValue(one->value, other->value));
    return 1;
}

int valueToString(lua_State* L) {
    pushText(L, describe(required<LuaValue>(L, 1, "value").value));
    return 1;
}

constexpr luaL_Reg valueMetamethods[] = {
    {"__index", guarded<valueGet>},
    {"__newindex", guarded<valueSet>},
    {"__eq", guarded<valueEquals>},
    {"__tostring", guarded<valueToString>},
};

/// zilvo.Integer(v) and its like.
template <class T>
int makeValue(lua_State* L) {
    const auto kind = nameOf(detail::typeOf<T>().kind);
    const auto what = "zilvo." + toUtf8(kind);
    luaL_checkstack(L, 2, "for a value");
    if (lua_type(L, 1) == LUA_TNUMBER) {
        // A whole number keeps all its digits, which a Single would not, and a Single holds larger ones than
        // a Long.
        int isWhole = 0;
        const lua_Integer number = lua_tointegerx(L, 1, &isWhole);
        if (std::is_same_v<T, Single>)
            lua_pushnumber(L, lua_tonumber(L, 1));
        else if (isWhole)
            lua_pushinteger(L, number);
        else
            lua_pushvalue(L, 1);
        lua_replace(L, 1);
    }
    pushUserdata(L, LuaValue{Variant(convert<T>(toVariant(L, 1, what), toUtf16(what)))});
    return 1;
}

constexpr luaL_Reg valueFunctions[] = {
    {"Boolean", guarded<makeValue<bool>>},  {"Integer", guarded<makeValue<Integer>>},
    {"Long", guarded<makeValue<Long>>},     {"Single", guarded<makeValue<Single>>},
    {"String", guarded<makeValue<String>>}, {"Font", guarded<makeFont>},
    {"array", guarded<makeArray>},
};

const MemberDescription& memberOf(const Described& object, const std::string& label, const String& name) {
    if (const auto* member = object.description().find(name)) return *member;
    throw Failure(Status::UnknownMember, label + " has no member named " + toUtf8(name));
}

void accessProperty(Described& object, const std::string& label, const MemberDescription& member, Access how,
                    std::span<Variant> arguments, Variant& result) {
    ErrorInfo error;
    const Status status = atTheEdge(
        &error, [&] { return label + "." + toUtf8(member.name); },
        [&] { access(object, member, how, arguments, &result); });
    throwUnlessOk(status, error);
}

} // namespace

void defineValues(lua_State* L) {
    defineUserdata<LuaFont>(L, fontMetamethods);
    defineUserdata<LuaArray>(L, arrayMetamethods);
    defineUserdata<LuaValue>(L, valueMetamethods);
}

void registerValueFunctions(lua_State* L) {
    for (const luaL_Reg& entry : valueFunctions) {
        lua_pushcfunction(L, entry.func);
        lua_setfield(L, -2, entry.name);
    }
}

Access settingOf(const MemberDescription& member) noexcept {
    const bool onlyByReference = !member.accessor(Access::Put) && member.accessor(Access::PutReference);
    return onlyByReference ? Access::PutReference : Access::Put;
}

Variant toVariant(lua_State* L, int index, const std::string& what, Kind wanted) {
    index = lua_absindex(L, index);
    switch (lua_type(L, index)) {
    case LUA_TBOOLEAN:
        return asBoolean(lua_toboolean(L, index) != 0);
    case LUA_TNUMBER:
        return numberToVariant(L, index, what, wanted);
    case LUA_TSTRING:
        return textAt(L, index, what);
    case LUA_TTABLE:
        return arrayFromTable(L, index, what);
    case LUA_TUSERDATA:
        if (const auto* value = findUserdata<LuaValue>(L, index)) return value->value;
        if (const auto* font = findUserdata<LuaFont>(L, index)) return font->font;
        if (auto* array = findUserdata<LuaArray>(L, index)) return Variant::to(array->array);
        break;
    default:
        break;
    }
    mismatch(what, shownType(L, index) + " has no kind that a member could take");
}

void writeBack(lua_State* L, int index, Variant& value) {
    if (!lua_istable(L, index)) return;
    if (const BooleanArray* array = value.findArray()) fillTable(L, lua_absindex(L, index), *array);
}

void pushVariant(lua_State* L, const Variant& value) {
    switch (value.kind()) {
    case Kind::Boolean:
        return lua_pushboolean(L, toBoolean(value));
    case Kind::Integer:
    case Kind::Long:
        return lua_pushinteger(L, toLong(value));
    case Kind::Single:
        return lua_pushnumber(L, static_cast<lua_Number>(toSingle(value)));
    case Kind::String:
        return pushText(L, StringView(*value.find<String>()));
    case Kind::Colour:
        return lua_pushinteger(L, lua_Integer{toColour(value).value});
    case Kind::BooleanArray:
        return pushArray(L, *value.find<BooleanArray>());
    case Kind::Font:
        if (const FontRef& font = *value.find<FontRef>()) {
            pushUserdata(L, LuaFont{font});
            return;
        }
        break;
    case Kind::Empty:
    case Kind::Missing:
        break;
    }
    lua_pushnil(L);
}

void pushText(lua_State* L, const std::string& text) {
    lua_pushlstring(L, text.data(), text.size());
}

void pushText(lua_State* L, StringView text) {
    pushText(L, toUtf8(text));
}

void pushJson(lua_State* L, const Json& json) {
    luaL_checkstack(L, 4, "for a table");
    if (json.is_object()) {
        lua_createtable(L, 0, static_cast<int>(json.size()));
        for (const auto& [key, value] : json.items()) {
            pushJson(L, value);
            lua_setfield(L, -2, key.c_str());
        }
    } else if (json.is_array()) {
        lua_createtable(L, static_cast<int>(json.size()), 0);
        for (lua_Integer at = 0; const Json& value : json) {
            pushJson(L, value);
            lua_rawseti(L, -2, ++at);
        }
    } else if (json.is_string()) {
        pushText(L, json.get_ref<const std::string&>());
    } else if (json.is_boolean()) {
        lua_pushboolean(L, json.get<bool>());
    } else if (json.is_number_integer()) {
        lua_pushinteger(L, json.get<lua_Integer>());
    } else if (json.is_number()) {
        lua_pushnumber(L, json.get<lua_Number>());
    } else {
        lua_pushnil(L);
    }
}

std::optional<std::string> pushParts(lua_State* L, int index) {
    if (const auto* value = findUserdata<LuaValue>(L, index)) {
        pushVariant(L, value->value);
        return "zilvo." + toUtf8(nameOf(value->value.kind()));
    }
    if (const auto* array = findUserdata<LuaArray>(L, index)) {
        const lua_Integer lower = lowerOf(array->array);
        lua_pushinteger(L, lower);
        lua_newtable(L);
        for (lua_Integer at = 1; at <= static_cast<lua_Integer>(array->array.size()); ++at) {
            lua_pushboolean(L, isTrue(array->array.At(static_cast<Long>(lower + at - 1))));
            lua_rawseti(L, -2, at);
        }
        return "zilvo.array";
    }
    if (const auto* font = findUserdata<LuaFont>(L, index)) {
        const FontRef usual = StdFont::make({});
        lua_newtable(L);
        for (const MemberDescription& member : font->font->description().members) {
            Variant own;
            Variant common;
            access(*font->font, member, Access::Get, {}, &own);
            access(*usual, member, Access::Get, {}, &common);
            if (equalByValue(own, common)) continue;
            pushText(L, member.name);
            pushVariant(L, own);
            lua_rawset(L, -3);
        }
        return "zilvo.Font";
    }
    return std::nullopt;
}

std::string shownType(lua_State* L, int index) {
    switch (lua_type(L, index)) {
    case LUA_TNONE:
    case LUA_TNIL:
        return "nil";
    case LUA_TUSERDATA:
        if (luaL_getmetafield(L, index, "__name") == LUA_TSTRING) {
            std::string name = std::string("a ") + lua_tostring(L, -1);
            lua_pop(L, 1);
            return name;
        }
        return "a userdata";
    default:
        return std::string("a Lua ") + luaL_typename(L, index);
    }
}

String textAt(lua_State* L, int index, const std::string& what) {
    if (lua_type(L, index) != LUA_TSTRING) mismatch(what, shownType(L, index) + " is no string");
    std::size_t length = 0;
    const char* text = lua_tolstring(L, index, &length);
    return toUtf16({text, length});
}

Single singleAt(lua_State* L, int index, const std::string& what) {
    if (lua_type(L, index) != LUA_TNUMBER) mismatch(what, shownType(L, index) + " is no number");
    return toSingle(numberToVariant(L, index, what, Kind::Single));
}

Integer integerAt(lua_State* L, int index, const std::string& what, Integer absent) {
    if (lua_isnoneornil(L, index)) return absent;
    if (lua_type(L, index) != LUA_TNUMBER) mismatch(what, shownType(L, index) + " is no number");
    return toInteger(numberToVariant(L, index, what, Kind::Integer), toUtf16(what));
}

void requireTable(lua_State* L, int index, const std::string& what) {
    if (!lua_istable(L, index)) mismatch(what, shownType(L, index) + " is no table");
}

void pushProperty(lua_State* L, Described& object, const std::string& label, const String& name) {
    Variant result;
    accessProperty(object, label, memberOf(object, label, name), Access::Get, {}, result);
    pushVariant(L, result);
}

void setProperty(lua_State* L, Described& object, const std::string& label, const String& name, int valueIndex) {
    const MemberDescription& member = memberOf(object, label, name);
    Variant value = toVariant(L, valueIndex, label + "." + toUtf8(member.name), member.type.kind);
    Variant ignored;
    accessProperty(object, label, member, settingOf(member), {&value, 1}, ignored);
}

} // namespace zilvo::console
