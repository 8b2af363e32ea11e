#include "hosts/console/Inspect.h"

#include "zilvo/platform/hosting/HostedControl.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <sstream>

namespace zilvo::console {

using namespace platform;

namespace {

/// The members that every widget has an entry for, whatever its kind; null where the kind has none.
constexpr std::array<StringView, 14> commonMembers = {
    u"Name",    u"Index",       u"Left",     u"Top",     u"Width",     u"Height",    u"Visible",
    u"Enabled", u"ToolTipText", u"TabIndex", u"Caption", u"BackColor", u"ForeColor", u"Font",
};

Json numberJson(Single number) {
    return Json::parse(decimal(number), nullptr, false);
}

Json fontJson(const FontRef& font) {
    if (!font) return nullptr;
    return {{"name", toUtf8(font->get_Name())},
            {"size", numberJson(font->get_Size())},
            {"weight", font->get_Weight()},
            {"italic", font->get_Italic()}};
}

Json valueJson(const Variant& value) {
    switch (value.kind()) {
    case Kind::Boolean:
        return toBoolean(value);
    case Kind::Integer:
        return toInteger(value);
    case Kind::Long:
        return toLong(value);
    case Kind::Single:
        return numberJson(toSingle(value));
    case Kind::String:
        return toUtf8(toString(value));
    case Kind::Colour:
        return toColour(value).value;
    case Kind::Font:
        return fontJson(*value.find<FontRef>());
    case Kind::Empty:
    case Kind::Missing:
    case Kind::BooleanArray:
        break;
    }
    return nullptr;
}

/// A property's value; null when the widget has no such property or cannot give it.
Json propertyJson(Widget& widget, StringView name) {
    Variant value;
    const Status status = invoke(widget, name, Access::Get, {}, &value);
    return succeeded(status) ? valueJson(value) : Json();
}

/// "BorderWidth" is "borderWidth", "GOButtonShape" is "goButtonShape".
std::string lowerCamelCase(StringView name) {
    auto text = toUtf8(name);
    const auto isUpper = [&](std::size_t at) {
        return at < text.size() && std::isupper(static_cast<unsigned char>(text[at])) != 0;
    };
    for (std::size_t at = 0; isUpper(at) && (at == 0 || isUpper(at + 1) || at + 1 == text.size()); ++at)
        text[at] = static_cast<char>(std::tolower(static_cast<unsigned char>(text[at])));
    return text;
}

Json widgetsOf(const Surface& surface);

Json widgetJson(Widget& widget) {
    const auto placed = [&](Single edge) { return widget.isPlaced() ? numberJson(edge) : Json(); };
    const Rectangle& bounds = widget.bounds();
    Json entry = {
        {"name", toUtf8(widget.name())},
        {"index", widget.isArrayElement() ? Json(widget.index()) : Json()},
        {"kind", toUtf8(widget.description().name)},
        {"container", widget.parent() ? Json(shownName(*widget.parent())) : Json()},
        {"left", placed(bounds.left)},
        {"top", placed(bounds.top)},
        {"width", placed(bounds.width)},
        {"height", placed(bounds.height)},
        {"caption", propertyJson(widget, u"Caption")},
        {"toolTip", propertyJson(widget, u"ToolTipText")},
        {"enabled", widget.get_Enabled()},
        {"visible", widget.get_Visible()},
        {"tabIndex", widget.isPlaced() ? Json(widget.get_TabIndex()) : Json()},
        {"backColor", propertyJson(widget, u"BackColor")},
        {"foreColor", propertyJson(widget, u"ForeColor")},
        {"font", propertyJson(widget, u"Font")},
    };
    for (const auto* at = &widget.description(); at; at = at->base)
        for (const MemberDescription& member : at->members) {
            const auto isThis = [&](StringView common) { return sameName(common, member.name); };
            const bool isCommon = std::any_of(std::begin(commonMembers), std::end(commonMembers), isThis);
            if (member.accessor(Access::Get) && !isCommon)
                entry.emplace(lowerCamelCase(member.name), propertyJson(widget, member.name));
        }
    if (const Surface* inner = widget.embeddedSurface()) entry["widgets"] = widgetsOf(*inner);
    return entry;
}

Json widgetsOf(const Surface& surface) {
    Json list = Json::array();
    for (Widget& widget : surface)
        list.push_back(widgetJson(widget));
    return list;
}

const std::string& nameOf(const Json& widget) {
    return widget.at("name").get_ref<const std::string&>();
}

std::string shownName(const Json& widget) {
    if (widget.at("index").is_null()) return nameOf(widget);
    return nameOf(widget) + "(" + widget.at("index").dump() + ")";
}

/// One line: name, kind, place, then what differs from the usual.
void writeWidget(std::ostream& out, const Json& widget) {
    out << shownName(widget) << ": " << widget.at("kind").get_ref<const std::string&>();
    if (!widget.at("left").is_null())
        out << " at " << widget.at("left") << ", " << widget.at("top") << " size " << widget.at("width") << " x "
            << widget.at("height");
    if (widget.at("caption").is_string()) out << " caption " << widget.at("caption");
    if (widget.at("toolTip").is_string() && !widget.at("toolTip").get_ref<const std::string&>().empty())
        out << " tip " << widget.at("toolTip");
    if (!widget.at("enabled").get<bool>()) out << ", disabled";
    if (!widget.at("visible").get<bool>()) out << ", hidden";
    out << '\n';
}

void writeChildren(std::ostream& out, const Json& widgets, const std::optional<std::string>& container,
                   std::size_t depth) {
    for (const Json& widget : widgets) {
        const Json& lies = widget.at("container");
        const bool isChild = container ? lies == *container : lies.is_null();
        if (!isChild) continue;
        out << std::string(2 * depth, ' ');
        writeWidget(out, widget);
        writeChildren(out, widgets, shownName(widget), depth + 1);
        if (widget.contains("widgets")) writeChildren(out, widget.at("widgets"), std::nullopt, depth + 1);
    }
}

} // namespace

Json inspection(Object& object) {
    const auto name = toUtf8(object.description().name);
    HostedControl* control = object.hostedControl();
    if (!control) throw Failure(Status::NoInterface, name + " is no control and has no widgets");
    const Surface& surface = control->surface();
    return {{"class", name},
            {"width", numberJson(surface.area().width)},
            {"height", numberJson(surface.area().height)},
            {"scale", surface.childScale() == ScaleMode::Pixels ? "pixels" : "twips"},
            {"backColor", surface.backColor().value},
            {"foreColor", surface.foreColor().value},
            {"widgets", widgetsOf(surface)}};
}

std::string inspectionText(const Json& inspection) {
    std::ostringstream out;
    out << inspection.at("class").get_ref<const std::string&>() << " size " << inspection.at("width") << " x "
        << inspection.at("height") << " twips, children placed in "
        << inspection.at("scale").get_ref<const std::string&>() << '\n';
    writeChildren(out, inspection.at("widgets"), std::nullopt, 1);
    return out.str();
}

} // namespace zilvo::console
