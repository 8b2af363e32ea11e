#include "hosts/console/Observer.h"

#include "hosts/console/Describe.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace zilvo::console {

using namespace platform;

namespace {

/// "0x00C0C0C0": with capital digits, as colours are written in the sources.
std::string shownColour(Colour colour) {
    auto text = hexadecimal(colour.value);
    std::transform(text.begin() + 2, text.end(), text.begin() + 2,
                   [](unsigned char digit) { return static_cast<char>(std::toupper(digit)); });
    return text;
}

std::string inQuotes(StringView text) {
    return Json(toUtf8(text)).dump();
}

/// "Arial 8.25 bold italic"; the weight as a number where it is neither normal nor bold.
std::string shownFont(const FontRef& font) {
    if (!font) return "none";
    std::string text = "\"" + toUtf8(font->get_Name()) + " " + decimal(font->get_Size());
    if (const Integer weight = font->get_Weight(); weight == 700)
        text += " bold";
    else if (weight != 400)
        text += " weight " + std::to_string(weight);
    if (font->get_Italic()) text += " italic";
    if (font->get_Underline()) text += " underline";
    if (font->get_Strikethrough()) text += " strikethrough";
    if (font->get_Charset() != 0) text += " character set " + std::to_string(font->get_Charset());
    return text + "\"";
}

std::string shownLong(Long number, const EnumerationDescription* enumeration) {
    if (enumeration)
        for (const EnumerationMember& member : enumeration->members)
            if (member.value == number) return toUtf8(member.name);
    return std::to_string(number);
}

/// "CommandButton", or "CommandButton in panelCmdOK".
std::string kindOf(const Widget& widget) {
    auto kind = toUtf8(widget.description().name);
    if (const Widget* container = widget.parent()) kind += " in " + shownName(*container);
    return kind;
}

/// What most widgets have need not be said when one is written down whole.
bool isUsual(const MemberDescription& member, const std::string& value) {
    if (member.name == u"Visible" || member.name == u"Enabled") return value == "True";
    return value == "False" || value == "0" || value == "\"\"";
}

const Widget* focusedOn(const Surface& surface) {
    for (Widget& widget : surface) {
        if (widget.isFocused()) return &widget;
        if (const Surface* inner = widget.embeddedSurface())
            if (const Widget* focused = focusedOn(*inner)) return focused;
    }
    return nullptr;
}

} // namespace

std::string shownValue(const Variant& value, const EnumerationDescription* enumeration) {
    switch (value.kind()) {
    case Kind::Boolean:
        return toBoolean(value) ? "True" : "False";
    case Kind::Integer:
        return std::to_string(toInteger(value));
    case Kind::Long:
        return shownLong(toLong(value), enumeration);
    case Kind::Single:
        return decimal(toSingle(value));
    case Kind::String:
        return inQuotes(toString(value));
    case Kind::Colour:
        return shownColour(toColour(value));
    case Kind::Font:
        return shownFont(*value.find<FontRef>());
    case Kind::BooleanArray:
        return "an array";
    case Kind::Empty:
    case Kind::Missing:
        break;
    }
    return "nothing";
}

struct Observer::Part {
    std::string label;
    std::string kind; ///< of a widget
    Described* members;
    bool isPublished; ///< an object's own members, which run its code
    std::vector<const MemberDescription*> read;
    std::vector<std::string> values; ///< as many as are read
};

/// One object with its parts and how they were when they were last looked at.
class Observer::Watched {
public:
    Watched(Object& watched, std::string ownName) : object(watched), name(std::move(ownName)) {
        add({toUtf8(watched.description().name), {}, &watched, true, {}, {}});
        if (HostedControl* control = watched.hostedControl()) {
            add({"surface", {}, &control->surface().members(), false, {}, {}});
            addWidgets(control->surface(), {});
        }
    }

    /// Takes the part's readable members, but for those that say what another line says.
    void add(Part part, std::array<StringView, 2> leftOut = {u"Name", u"Index"}) {
        for (const ClassDescription* at = &part.members->description(); at; at = at->base)
            for (const MemberDescription& member : at->members)
                if (member.accessor(Access::Get) && std::count(leftOut.begin(), leftOut.end(), member.name) == 0)
                    part.read.push_back(&member);
        for (const MemberDescription* member : part.read)
            part.values.push_back(valueOf(part, *member));
        parts.push_back(std::move(part));
    }

    std::string focus() const {
        HostedControl* control = object.hostedControl();
        const Widget* focused = control ? focusedOn(control->surface()) : nullptr;
        return focused ? shownName(*focused) : "none";
    }

    static std::string valueOf(const Part& part, const MemberDescription& member) {
        Variant value;
        const Status status = invoke(*part.members, member.name, Access::Get, {}, &value);
        return succeeded(status) ? shownValue(value, member.type.enumeration) : std::string("fails: ") + nameOf(status);
    }

    Object& object;
    std::string name; ///< "DeckButtons 2"
    std::vector<Part> parts;
    std::string lastFocus = "none";

private:
    void addWidgets(const Surface& surface, const std::string& owner) {
        for (Widget& widget : surface) {
            const auto label = owner + shownName(widget);
            add({label, kindOf(widget), &widget, false, {}, {}});
            if (Surface* inner = widget.embeddedSurface()) {
                add({label, {}, widget.embeddedMembers(), true, {}, {}});
                add({label + ".surface", {}, &inner->members(), false, {}, {}});
                addWidgets(*inner, label + ".");
            }
        }
    }
};

Observer::Observer() = default;
Observer::~Observer() = default;

Observer::Watch Observer::created(Object& object) {
    look();
    const auto className = toUtf8(object.description().name);
    Known& known = known_[className];
    const auto name = className + (known.created++ > 0 ? " " + std::to_string(known.created) : "");
    const Watched& watched = *watched_.emplace_back(std::make_unique<Watched>(object, name));
    write("created " + name);
    newest_ = name;
    for (std::size_t at = 0; at < watched.parts.size(); ++at) {
        const Part& part = watched.parts[at];
        if (known.created == 1) {
            known.values.push_back(part.values);
            writeWhole(part);
        } else {
            writeDifferences(watched, part, known.values[at]);
        }
    }
    return {&object, {this}};
}

/// "cmdOK: CommandButton in panelCmdOK, Left 240, Top 240"
void Observer::writeWhole(const Part& part) {
    std::string text = part.kind;
    for (std::size_t at = 0; at < part.read.size(); ++at) {
        if (isUsual(*part.read[at], part.values[at])) continue;
        text += (text.empty() ? "" : ", ") + toUtf8(part.read[at]->name) + " " + part.values[at];
    }
    if (!text.empty()) write(part.label + ": " + text);
}

void Observer::writeDifferences(const Watched& watched, const Part& part, const std::vector<std::string>& before) {
    for (std::size_t at = 0; at < part.read.size(); ++at)
        if (part.values[at] != before[at])
            writeChange(prefixOf(watched) + part.label + ":",
                        toUtf8(part.read[at]->name) + " " + before[at] + " -> " + part.values[at]);
}

void Observer::watchExtender(Described& extender) {
    watched_.back()->add({"extender", {}, &extender, false, {}, {}}, {u"Width", u"Height"}); // the surface's
}

void Observer::forget(const Object& object) noexcept {
    std::erase_if(watched_, [&](const auto& watched) { return &watched->object == &object; });
}

void Observer::viewChanged(const Object& object) {
    if (Watched* watched = find(object)) look(*watched, Members::OfWidgets);
}

void Observer::note(const Object& object, const std::string& line) {
    look();
    const Watched* watched = find(object);
    write((watched ? prefixOf(*watched) : "") + line);
}

void Observer::note(const std::string& line) {
    look();
    write(line);
}

Observer::Handling::~Handling() {
    if (!observer_) return;
    observer_->look();
    --observer_->depth_;
    observer_->open_.clear();
}

std::vector<std::string> Observer::taken() {
    look();
    open_.clear();
    return std::exchange(lines_, {});
}

Observer::Watched* Observer::find(const Object& object) noexcept {
    const auto found = std::find_if(watched_.begin(), watched_.end(),
                                    [&](const auto& watched) { return &watched->object == &object; });
    return found == watched_.end() ? nullptr : found->get();
}

void Observer::look(Watched& watched, Members members) {
    if (looking_) return; // reading a member has led here
    looking_ = true;
    if (auto focus = watched.focus(); focus != watched.lastFocus)
        writeChange(prefixOf(watched) + "focus", std::exchange(watched.lastFocus, focus) + " -> " + focus);
    for (Part& part : watched.parts) {
        if (part.isPublished && members == Members::OfWidgets) continue;
        std::vector<std::string> before;
        before.reserve(part.read.size());
        for (std::size_t at = 0; at < part.read.size(); ++at)
            before.push_back(std::exchange(part.values[at], Watched::valueOf(part, *part.read[at])));
        writeDifferences(watched, part, before);
    }
    looking_ = false;
}

void Observer::look() {
    for (const auto& watched : watched_)
        look(*watched, Members::All);
}

/// What a script has created last needs no name.
std::string Observer::prefixOf(const Watched& watched) const {
    return watched.name == newest_ ? "" : "[" + watched.name + "] ";
}

void Observer::write(const std::string& line) {
    lines_.push_back(std::string(std::size_t{depth_} * 2, ' ') + line);
    open_.clear();
}

/// Changes of one thing that come one after the other share a line.
void Observer::writeChange(const std::string& label, const std::string& change) {
    if (label == open_) {
        lines_.back() += ", " + change;
        return;
    }
    write(label + " " + change);
    open_ = label;
}

} // namespace zilvo::console
