#include "hosts/console/lua/LuaWidget.h"

#include "hosts/console/lua/LuaErrors.h"
#include "hosts/console/lua/LuaObject.h"
#include "hosts/console/lua/LuaUserdata.h"
#include "hosts/console/lua/LuaValues.h"

#include <limits>

namespace zilvo::console {

using namespace platform;

namespace {

/// A widget of a living control; the control's userdata is its user value.
struct LuaWidget {
    static constexpr const char* TypeName = "zilvo widget";
    Widget* widget;
};

/// The function's first argument, with its control's userdata on top of the stack.
struct Self {
    explicit Self(lua_State* L) : handle(findUserdata<LuaWidget>(L, 1)) {
        if (!handle) throw Failure(Status::TypeMismatch, shownType(L, 1) + " is no widget: call with ':'");
        lua_getiuservalue(L, 1, 1);
        controlIndex = lua_gettop(L);
        host = &hostAt(L, controlIndex); // the widget dies with its control
    }

    Widget& widget() const noexcept { return *handle->widget; }
    std::string name() const { return shownName(widget()); }

    LuaWidget* handle;
    ControlHost* host = nullptr;
    int controlIndex = 0;
};

int pushActed(lua_State* L, bool acted) {
    lua_pushboolean(L, acted);
    return 1;
}

int click(lua_State* L) {
    const Self self(L);
    return pushActed(L, self.host->input(input::Act{self.widget()}));
}

int spin(lua_State* L) {
    const auto way = textAt(L, 2, "spin");
    const Self self(L);
    if (way != u"up" && way != u"down")
        throw Failure(Status::InvalidPropertyValue, self.name() + ".spin: " + toUtf8(way) + " is neither up nor down");
    const auto action = way == u"up" ? input::Action::SpinUp : input::Action::SpinDown;
    return pushActed(L, self.host->input(input::Act{self.widget(), action}));
}

int innerWidget(lua_State* L) {
    lua_settop(L, 3);
    const Self self(L);
    const Surface* inner = self.widget().embeddedSurface();
    if (!inner) throw Failure(Status::UnknownMember, self.name() + " embeds no control and has no widgets");
    pushWidgetNamed(L, self.controlIndex, *inner, self.name(), 2);
    return 1;
}

constexpr luaL_Reg methods[] = {
    {"click", guarded<click>},
    {"spin", guarded<spin>},
    {"widget", guarded<innerWidget>},
};

/// Whose member it is: the widget's own, or that of the control that it embeds.
Described& ownerOf(Widget& widget, StringView name) {
    Described* embedded = widget.embeddedMembers();
    return embedded && !widget.description().find(name) ? *embedded : widget;
}

int get(lua_State* L) {
    if (pushNamed(L, methods, 2)) return 1;
    const auto name = textAt(L, 2, "widget");
    const Self self(L);
    pushProperty(L, ownerOf(self.widget(), name), self.name(), name);
    return 1;
}

int set(lua_State* L) {
    const auto name = textAt(L, 2, "widget");
    const Self self(L);
    refuseNamed(L, methods, 2, self.name());
    setProperty(L, ownerOf(self.widget(), name), self.name(), name, 3);
    return 0;
}

int equals(lua_State* L) {
    const auto* one = findUserdata<LuaWidget>(L, 1);
    const auto* other = findUserdata<LuaWidget>(L, 2);
    lua_pushboolean(L, one && other && one->widget == other->widget);
    return 1;
}

int toText(lua_State* L) {
    const Self self(L);
    pushText(L, toUtf8(self.widget().description().name) + " " + self.name());
    return 1;
}

constexpr luaL_Reg metamethods[] = {
    {"__index", guarded<get>},
    {"__newindex", guarded<set>},
    {"__eq", guarded<equals>},
    {"__tostring", guarded<toText>},
};

/// The index of a control array at that place of the stack; NoIndex for nil. What no Integer holds is no
/// element.
Integer elementAt(lua_State* L, int index, const std::string& what) {
    if (lua_isnoneornil(L, index)) return NoIndex;
    int isWhole = 0;
    const lua_Integer number = lua_tointegerx(L, index, &isWhole);
    if (lua_type(L, index) != LUA_TNUMBER || !isWhole)
        throw Failure(Status::TypeMismatch, what + ": " + shownType(L, index) + " is no index of a control array");
    if (number < 0 || number > std::numeric_limits<Integer>::max())
        throw Failure(Status::MissingElement, what + "(" + std::to_string(number) + ") does not exist");
    return static_cast<Integer>(number);
}

/// Null when there is none.
Widget* firstNamed(const Surface& surface, StringView name) {
    for (Widget& widget : surface)
        if (sameName(widget.name(), name)) return &widget;
    return nullptr;
}

/// The widget at that index, with its control's userdata pushed; null for anything else, and once its control is gone.
Widget* livingAt(lua_State* L, int index) {
    const auto* handle = findUserdata<LuaWidget>(L, index);
    if (!handle) return nullptr;
    lua_getiuservalue(L, index, 1);
    return findUserdata<LuaControl>(L, -1) ? handle->widget : nullptr;
}

} // namespace

void defineWidgets(lua_State* L) {
    defineUserdata<LuaWidget>(L, metamethods);
}

void pushWidget(lua_State* L, int controlIndex, Widget& widget) {
    pushUserdata(L, LuaWidget{&widget}, 1);
    lua_pushvalue(L, controlIndex);
    lua_setiuservalue(L, -2, 1);
}

void pushWidgetNamed(lua_State* L, int controlIndex, const Surface& surface, const std::string& owner, int nameIndex) {
    const auto name = textAt(L, nameIndex, owner + ".widget");
    const auto shown = owner + "." + toUtf8(name);
    if (!firstNamed(surface, name))
        throw Failure(Status::UnknownMember, owner + " has no widget named " + toUtf8(name));
    const Integer index = elementAt(L, nameIndex + 1, shown);
    Widget* widget = surface.find(name, index);
    if (!widget && index == NoIndex)
        throw Failure(Status::MissingElement, shown + " is a control array: name the element by its index");
    if (!widget) throw Failure(Status::MissingElement, shown + "(" + std::to_string(index) + ") does not exist");
    pushWidget(L, controlIndex, *widget);
}

void pushFirstWidget(lua_State* L, int index, StringView name) {
    const Surface* surface = nullptr;
    int controlIndex = index;
    if (const auto* control = findUserdata<LuaControl>(L, index)) {
        if (control->host) surface = &control->host->control().surface();
    } else if (Widget* widget = livingAt(L, index)) {
        surface = widget->embeddedSurface();
        controlIndex = lua_gettop(L);
    }
    if (Widget* found = surface ? firstNamed(*surface, name) : nullptr)
        pushWidget(L, controlIndex, *found);
    else
        lua_pushnil(L);
}

void addWidgetNames(lua_State* L, int index, MemberNames& names) {
    Widget* widget = livingAt(L, index);
    if (!widget) return;
    names.add(widget->description());
    for (const luaL_Reg& method : methods)
        names.methods.insert(method.name);
    if (const Described* embedded = widget->embeddedMembers()) names.add(embedded->description());
    if (const Surface* inner = widget->embeddedSurface()) names.add(*inner);
}

} // namespace zilvo::console
