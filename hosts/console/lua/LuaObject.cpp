#include "hosts/console/lua/LuaObject.h"

#include "hosts/console/lua/LuaEvents.h"
#include "hosts/console/lua/LuaUserdata.h"
#include "hosts/console/lua/LuaValues.h"

namespace zilvo::console {

using namespace platform;

namespace {

/// The place in Lua's registry of the table that finds an object's userdata by its number, without keeping it alive.
constexpr char Objects = 0;

/// About what an object takes of the memory that Lua's collector does not see: it is to work as if it did.
constexpr int KilobytesOfAnObject = 4;

} // namespace

/// Hears an event before any handler of the script does.
class ScriptedControl::ObservedEvent final : public EventSink {
public:
    ObservedEvent(const ScriptedControl& host, const EventDescription& event) : host_(host), event_(event) {
        connection_ = connect(host.object(), event.name, *this);
    }
    void Event(Long /*number*/, std::span<Variant> arguments) override {
        std::string text;
        for (std::size_t at = 0; at < arguments.size(); ++at)
            text += (at > 0 ? ", " : "") + shownValue(arguments[at], event_.argument[at].type.enumeration);
        host_.note(toUtf8(event_.name) + "(" + text + ")");
    }

private:
    const ScriptedControl& host_;
    const EventDescription& event_;
    Connection connection_;
};

ScriptedControl::ScriptedControl(Ref<Object> object, Session& session)
    : ControlHost(std::move(object)), session_(session) {
    if (!session_.observer) return;
    session_.observer->watchExtender(extenderObject());
    for (const EventDescription& event : this->object().description().events)
        observed_.push_back(std::make_unique<ObservedEvent>(*this, event));
}

ScriptedControl::~ScriptedControl() = default;

void ScriptedControl::PropertyChanged(StringView name) {
    ControlHost::PropertyChanged(name);
    note("PropertyChanged " + toUtf8(name));
}

void ScriptedControl::SizeChanged(Single width, Single height) {
    ControlHost::SizeChanged(width, height);
    note("size " + shownValue(width) + " x " + shownValue(height));
}

void ScriptedControl::Beep() {
    ControlHost::Beep();
    ++session_.beeps;
    note("beep");
}

bool ScriptedControl::ShowPopup(Menu& root, Point at) {
    note("pop-up " + toUtf8(root.name()));
    return ControlHost::ShowPopup(root, at);
}

void ScriptedControl::ViewChanged() noexcept {
    ControlHost::ViewChanged();
    if (session_.observer) session_.observer->viewChanged(object());
}

void defineObjects(lua_State* L, std::span<const luaL_Reg> metamethods) {
    defineUserdata<LuaControl>(L, metamethods);
    lua_newtable(L);
    lua_createtable(L, 0, 1);
    lua_pushliteral(L, "v");
    lua_setfield(L, -2, "__mode");
    lua_setmetatable(L, -2);
    lua_rawsetp(L, LUA_REGISTRYINDEX, &Objects);
}

void pushObject(lua_State* L, LuaControl control) {
    const lua_Integer number = control.number;
    pushUserdata(L, std::move(control), 1);
    lua_newtable(L);
    lua_setiuservalue(L, -2, 1);
    lua_rawgetp(L, LUA_REGISTRYINDEX, &Objects);
    lua_pushvalue(L, -2);
    lua_rawseti(L, -2, number);
    lua_pop(L, 1);
    if (lua_gc(L, LUA_GCISRUNNING)) lua_gc(L, LUA_GCSTEP, KilobytesOfAnObject);
}

void pushObjectNumbered(lua_State* L, lua_Integer number) {
    lua_rawgetp(L, LUA_REGISTRYINDEX, &Objects);
    lua_rawgeti(L, -1, number);
    lua_remove(L, -2);
}

LuaControl& objectAt(lua_State* L, int index) {
    if (auto* control = findUserdata<LuaControl>(L, index)) return *control;
    if (luaL_testudata(L, index, LuaControl::TypeName))
        throw Failure(Status::UnexpectedCall, "the control has been let go of");
    throw Failure(Status::TypeMismatch, shownType(L, index) + " is no control: call with ':'");
}

ControlHost& hostAt(lua_State* L, int index) {
    const LuaControl& control = objectAt(L, index);
    if (!control.host) throw Failure(Status::NoInterface, control.className() + " is no control");
    return *control.host;
}

int callMember(lua_State* L, Object& object, const MemberDescription& member, Access how, int first) {
    const int count = lua_gettop(L) - first + 1;
    const std::span<const ArgumentDescription> declared =
        how == Access::Get ? std::span<const ArgumentDescription>() : member.arguments();
    std::vector<Variant> arguments(static_cast<std::size_t>(count));
    const auto what = toUtf8(object.description().name) + "." + toUtf8(member.name);
    // A wrong number of arguments, or the wrong kind of call, is for the object to refuse.
    const bool fits = arguments.size() == declared.size() && member.accessor(how);
    const auto placeOf = [&](std::size_t i) { return first + static_cast<int>(i); };
    for (std::size_t i = 0; fits && i < arguments.size(); ++i)
        arguments[i] = toVariant(L, placeOf(i), what + ", " + toUtf8(declared[i].name), declared[i].type.kind);

    Variant result;
    ErrorInfo error;
    const std::vector<Variant> given = arguments;
    const Status status = object.Invoke(member.id, how, arguments, &result, &error);
    for (std::size_t i = 0; fits && i < arguments.size(); ++i)
        if (declared[i].byReference) writeBack(L, placeOf(i), arguments[i]);
    throwUnlessOk(status, error);

    luaL_checkstack(L, count + 2, "for results");
    const int before = lua_gettop(L);
    if (how == Access::Get || (how == Access::Method && member.type.kind != Kind::Empty)) pushVariant(L, result);
    if (how != Access::Method) return lua_gettop(L) - before;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (!declared[i].byReference) continue;
        if (arguments[i].findArray() || equalByValue(arguments[i], given[i]))
            lua_pushvalue(L, placeOf(i)); // the very table, array or value that was passed
        else
            pushVariant(L, arguments[i]);
    }
    return lua_gettop(L) - before;
}

bool pushNamed(lua_State* L, std::span<const luaL_Reg> functions, int nameIndex) {
    if (lua_type(L, nameIndex) != LUA_TSTRING) return false;
    const std::string_view name = lua_tostring(L, nameIndex);
    for (const luaL_Reg& entry : functions) {
        if (name != entry.name) continue;
        lua_pushcfunction(L, entry.func);
        return true;
    }
    return false;
}

void refuseNamed(lua_State* L, std::span<const luaL_Reg> functions, int nameIndex, const std::string& owner) {
    if (!pushNamed(L, functions, nameIndex)) return;
    throw Failure(Status::ReadOnlyProperty,
                  owner + "." + lua_tostring(L, nameIndex) + " belongs to the host and cannot be set");
}

} // namespace zilvo::console
