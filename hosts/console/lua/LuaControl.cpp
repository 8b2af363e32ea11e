#include "hosts/console/lua/LuaControl.h"

#include "hosts/console/Inspect.h"
#include "hosts/console/Snapshot.h"
#include "hosts/console/lua/LuaErrors.h"
#include "hosts/console/lua/LuaEvents.h"
#include "hosts/console/lua/LuaGlobals.h"
#include "hosts/console/lua/LuaParts.h"
#include "hosts/console/lua/LuaUserdata.h"
#include "hosts/console/lua/LuaValues.h"
#include "hosts/console/lua/LuaWidget.h"
#include "zilvo/platform/component/Files.h"

#include <array>
#include <limits>
#include <map>
#include <memory>

namespace zilvo::console {

using namespace platform;

namespace {

template <Part Which>
int part(lua_State* L) {
    pushPart(L, 1, Which);
    return 1;
}

int changes(lua_State* L) {
    const auto& names = hostAt(L, 1).changes();
    lua_createtable(L, static_cast<int>(names.size()), 0);
    for (lua_Integer at = 0; const String& name : names) {
        pushText(L, StringView(name));
        lua_rawseti(L, -2, ++at);
    }
    return 1;
}

int popup(lua_State* L) {
    if (Menu* root = hostAt(L, 1).control().lastPopup())
        pushWidget(L, 1, *root);
    else
        lua_pushnil(L);
    return 1;
}

// Input

int pushActed(lua_State* L, bool acted) {
    lua_pushboolean(L, acted);
    return 1;
}

Point pointAt(lua_State* L, const std::string& what) {
    return {singleAt(L, 2, what + ", x"), singleAt(L, 3, what + ", y")};
}

int press(lua_State* L) {
    ControlHost& host = hostAt(L, 1);
    const input::PointerDown down{pointAt(L, "press"), integerAt(L, 4, "press, button", input::LeftButton),
                                  integerAt(L, 5, "press, shift", 0)};
    return pushActed(L, host.input(down));
}

int release(lua_State* L) {
    ControlHost& host = hostAt(L, 1);
    const input::PointerUp up{pointAt(L, "release"), integerAt(L, 4, "release, button", input::LeftButton)};
    (void)integerAt(L, 5, "release, shift", 0);
    return pushActed(L, host.input(up));
}

int move(lua_State* L) {
    ControlHost& host = hostAt(L, 1);
    return pushActed(L, host.input(input::PointerMove{pointAt(L, "move")}));
}

/// c:key(13) or c:key("a")
int key(lua_State* L) {
    ControlHost& host = hostAt(L, 1);
    if (lua_type(L, 2) != LUA_TSTRING) {
        if (lua_isnoneornil(L, 2)) throw Failure(Status::TypeMismatch, "key: nil is no character");
        return pushActed(L, host.input(input::KeyTyped{integerAt(L, 2, "key", 0)}));
    }
    const auto text = textAt(L, 2, "key");
    if (text.size() != 1)
        throw Failure(Status::InvalidPropertyValue, "key: \"" + toUtf8(text) + "\" is not one character");
    return pushActed(L, host.input(input::KeyTyped{static_cast<Integer>(text.front())}));
}

int keyDown(lua_State* L) {
    ControlHost& host = hostAt(L, 1);
    const auto name = textAt(L, 2, "keydown");
    const auto parsed = parseKey(name);
    if (!parsed) throw Failure(Status::InvalidPropertyValue, "keydown: there is no key named \"" + toUtf8(name) + "\"");
    return pushActed(L, host.input(*parsed));
}

/// Name and index of the child that has the keyboard.
int focus(lua_State* L) {
    const Widget* widget = hostAt(L, 1).control().focus();
    if (!widget) return lua_pushnil(L), 1;
    pushText(L, widget->name());
    if (!widget->isArrayElement()) return 1;
    lua_pushinteger(L, widget->index());
    return 2;
}

// The rest of the host's side

int widget(lua_State* L) {
    lua_settop(L, 3);
    const LuaControl& self = objectAt(L, 1);
    pushWidgetNamed(L, 1, hostAt(L, 1).control().surface(), self.className(), 2);
    return 1;
}

/// "saves Default Boolean True, Height Single 360", in the order of writing.
std::string savedText(const MemoryPropertyBag& bag) {
    std::string text;
    for (const auto& [name, value] : bag.settings())
        text += (text.empty() ? "saves " : ", ") + toUtf8(name) + " " + toUtf8(nameOf(value.kind())) + " " +
                shownValue(value);
    return text.empty() ? "saves nothing" : text;
}

/// c:save([keepsDefaults]) gives two tables: the values, and the names of their kinds.
int save(lua_State* L) {
    if (!lua_isnoneornil(L, 2) && !lua_isboolean(L, 2))
        throw Failure(Status::TypeMismatch, "save: " + shownType(L, 2) + " is no boolean");
    using Defaults = MemoryPropertyBag::Defaults;
    MemoryPropertyBag bag(lua_toboolean(L, 2) ? Defaults::Kept : Defaults::LeftOut);
    hostAt(L, 1).save(bag);
    if (const auto& observer = sessionOf(L).observer) observer->note(*objectAt(L, 1).object, savedText(bag));
    lua_newtable(L);
    lua_newtable(L);
    for (const auto& [name, value] : bag.settings()) {
        pushText(L, StringView(name));
        pushVariant(L, value);
        lua_rawset(L, -4);
        pushText(L, StringView(name));
        pushText(L, nameOf(value.kind()));
        lua_rawset(L, -3);
    }
    return 2;
}

struct NamedAccess {
    StringView name;
    Access access;
};
constexpr std::array accesses = {
    NamedAccess{u"get", Access::Get},
    NamedAccess{u"put", Access::Put},
    NamedAccess{u"putref", Access::PutReference},
    NamedAccess{u"method", Access::Method},
};

Access accessAt(lua_State* L, int index, const std::string& what) {
    const auto given = textAt(L, index, what);
    for (const NamedAccess& entry : accesses)
        if (entry.name == given) return entry.access;
    throw Failure(Status::InvalidPropertyValue,
                  what + ": " + toUtf8(given) + " is none of get, put, putref and method");
}

/// c:invoke(id, "get"|"put"|"putref"|"method", ...)
int invokeById(lua_State* L) {
    Object& object = *objectAt(L, 1).object;
    const auto what = toUtf8(object.description().name) + ":invoke";
    if (lua_type(L, 2) != LUA_TNUMBER) throw Failure(Status::TypeMismatch, what + ": " + shownType(L, 2) + " is no id");
    const MemberId id = toLong(toVariant(L, 2, what), toUtf16(what));
    const Access how = accessAt(L, 3, what);
    if (const MemberDescription* member = object.description().find(id)) return callMember(L, object, *member, how, 4);
    ErrorInfo error;
    throwUnlessOk(object.Invoke(id, how, {}, nullptr, &error), error);
    return 0;
}

/// The live widget tree.
int inspect(lua_State* L) {
    pushJson(L, inspection(*objectAt(L, 1).object));
    return 1;
}

int snapshot(lua_State* L) {
    ControlHost& host = hostAt(L, 1);
    const auto file = toUtf8(textAt(L, 2, "snapshot"));
    writeFile(file, svgOf(host));
    return 0;
}

constexpr luaL_Reg methods[] = {
    {"widget", guarded<widget>},     {"on", guarded<attachHandler>},  {"press", guarded<press>},
    {"release", guarded<release>},   {"move", guarded<move>},         {"key", guarded<key>},
    {"keydown", guarded<keyDown>},   {"focus", guarded<focus>},       {"save", guarded<save>},
    {"invoke", guarded<invokeById>}, {"snapshot", guarded<snapshot>}, {"inspect", guarded<inspect>},
};

/// What is read without a call: each is run with the control as its argument.
constexpr luaL_Reg fields[] = {
    {"surface", guarded<part<Part::Surface>>},
    {"extender", guarded<part<Part::Extender>>},
    {"ambient", guarded<part<Part::Ambient>>},
    {"changes", guarded<changes>},
    {"popup", guarded<popup>},
};

// Published members

/// What reading a method gives: calls it on the control that the script passes.
int callMethod(lua_State* L) {
    Object& object = *objectAt(L, 1).object;
    const auto name = textAt(L, lua_upvalueindex(1), "method");
    if (const auto* member = object.description().find(name)) return callMember(L, object, *member, Access::Method, 2);
    throw Failure(Status::UnknownMember, toUtf8(object.description().name) + " has no method named " + toUtf8(name));
}

const MemberDescription& memberAt(lua_State* L, int index, const Object& object) {
    const auto owner = toUtf8(object.description().name);
    const auto name = textAt(L, index, owner);
    if (const auto* member = object.description().find(name)) return *member;
    throw Failure(Status::UnknownMember, owner + " has no member named " + toUtf8(name));
}

/// Pushes what the field whose name is at `nameIndex` gives; false when there is none.
bool pushField(lua_State* L, int controlIndex, int nameIndex) {
    if (!pushNamed(L, fields, nameIndex)) return false;
    lua_pushvalue(L, controlIndex);
    lua_call(L, 1, 1);
    return true;
}

int get(lua_State* L) {
    if (pushNamed(L, methods, 2) || pushField(L, 1, 2)) return 1;
    Object& object = *objectAt(L, 1).object;
    const MemberDescription& member = memberAt(L, 2, object);
    if (member.kind == MemberKind::Method) {
        pushText(L, member.name);
        lua_pushcclosure(L, guarded<callMethod>, 1);
        return 1;
    }
    return callMember(L, object, member, Access::Get, 3);
}

int set(lua_State* L) {
    Object& object = *objectAt(L, 1).object;
    refuseNamed(L, methods, 2, toUtf8(object.description().name));
    refuseNamed(L, fields, 2, toUtf8(object.description().name));
    const MemberDescription& member = memberAt(L, 2, object);
    return callMember(L, object, member, settingOf(member), 3);
}

int toText(lua_State* L) {
    pushText(L, "control " + objectAt(L, 1).className());
    return 1;
}

constexpr luaL_Reg metamethods[] = {
    {"__index", guarded<get>},
    {"__newindex", guarded<set>},
    {"__tostring", guarded<toText>},
};

// Creating

struct Options {
    std::optional<MemoryPropertyBag> bag;
    std::optional<Single> width;
    std::optional<Single> height;
    std::map<String, Variant> ambient;
};

constexpr const char* Creating = "zilvo.create";
constexpr const char* CreatingAmbient = "zilvo.create, ambient";

/// Runs `read` for each entry of the table at that index, which must have names as its keys: the name is
/// given, the value is on top of the stack.
template <class Read>
void forEachNamed(lua_State* L, int index, const std::string& what, const Read& read) {
    requireTable(L, index, what);
    lua_pushnil(L);
    while (lua_next(L, index) != 0) {
        read(textAt(L, -2, what), lua_gettop(L));
        lua_pop(L, 1);
    }
}

void readBag(lua_State* L, int index, Options& options) {
    options.bag.emplace();
    forEachNamed(L, index, std::string(Creating) + ", bag", [&](const String& name, int value) {
        options.bag->set(name, toVariant(L, value, std::string(Creating) + ", bag, " + toUtf8(name)).value());
    });
}

void readAmbient(lua_State* L, int index, Options& options) {
    forEachNamed(L, index, CreatingAmbient, [&](const String& name, int value) {
        options.ambient[name] = ambientValue(L, value, CreatingAmbient, name);
    });
}

struct OptionReader {
    StringView name;
    void (*read)(lua_State* L, int index, Options& options);
};
constexpr std::array optionReaders = {
    OptionReader{u"bag", readBag},
    OptionReader{u"ambient", readAmbient},
    OptionReader{u"width", [](lua_State* L, int index,
                              Options& options) { options.width = singleAt(L, index, "zilvo.create, width"); }},
    OptionReader{u"height", [](lua_State* L, int index,
                               Options& options) { options.height = singleAt(L, index, "zilvo.create, height"); }},
};

void readOptions(lua_State* L, int index, Options& options) {
    if (lua_isnoneornil(L, index)) return;
    forEachNamed(L, index, Creating, [&](const String& name, int value) {
        for (const OptionReader& option : optionReaders)
            if (option.name == name) return option.read(L, value, options);
        throw Failure(Status::UnknownMember, std::string(Creating) + ": there is no option " + toUtf8(name));
    });
}

/// What happened before the step that fails is observed while the control is still there.
void open(ScriptedControl& host, const Options& options, const Session& session) {
    try {
        host.open(options.bag ? &*options.bag : nullptr, options.width, options.height);
    } catch (const std::exception&) {
        if (session.observer) session.observer->look();
        throw;
    }
}

} // namespace

int createObject(lua_State* L) {
    lua_settop(L, 2);
    Session& session = sessionOf(L);
    const auto className = textAt(L, 1, Creating);
    Options options;
    readOptions(L, 2, options);

    LuaControl control{session.nextNumber(), session.components.create(className), nullptr, {}, {}};
    defineGlobals(L);
    if (session.observer) control.watch = session.observer->created(*control.object);
    if (control.object->hostedControl()) {
        control.host = std::make_unique<ScriptedControl>(control.object, session);
        for (const auto& [name, value] : options.ambient)
            setAmbient(*control.host, CreatingAmbient, name, value);
        open(*control.host, options, session);
    } else if (!lua_isnil(L, 2)) {
        throw Failure(Status::NoInterface, control.className() + " is no control and takes no options");
    }

    pushObject(L, std::move(control));
    return 1;
}

void defineControls(lua_State* L) {
    defineObjects(L, metamethods);
    defineEvents(L);
    defineParts(L);
}

void pushControlField(lua_State* L, int index, std::string_view name) {
    lua_pushlstring(L, name.data(), name.size());
    const auto* control = findUserdata<LuaControl>(L, index);
    if (!control || !control->host || !pushField(L, index, lua_gettop(L))) lua_pushnil(L);
    lua_remove(L, -2);
}

void addControlNames(lua_State* L, int index, MemberNames& names) {
    const auto* control = findUserdata<LuaControl>(L, index);
    if (!control) return;
    names.add(control->object->description());
    for (const EventDescription& event : control->object->description().events)
        names.events.insert(toUtf8(event.name));
    for (const luaL_Reg& field : fields)
        names.fields.insert(field.name);
    for (const luaL_Reg& method : methods)
        names.methods.insert(method.name);
    if (control->host) names.add(control->host->control().surface());
}

} // namespace zilvo::console
