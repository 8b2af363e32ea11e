#include "zilvo/platform/hosting/Accessibility.h"

#include "zilvo/platform/values/Conversions.h"
#include "zilvo/platform/widgets/CommandButton.h"
#include "zilvo/platform/widgets/Label.h"
#include "zilvo/platform/widgets/Menu.h"

#include <algorithm>

namespace zilvo::platform::accessible {

namespace {

constexpr bool isUpper(char16_t unit) noexcept {
    return unit >= u'A' && unit <= u'Z';
}
constexpr bool isLower(char16_t unit) noexcept {
    return unit >= u'a' && unit <= u'z';
}
constexpr bool isDigit(char16_t unit) noexcept {
    return unit >= u'0' && unit <= u'9';
}

/// Captions are spaced for the eye: each run of spaces and line ends is one space, and none is at the ends.
String inOneLine(StringView text) {
    String line;
    for (const char16_t unit : text) {
        const bool isSpace = unit <= u' ';
        if (!isSpace) line += unit;
        if (isSpace && !line.empty() && line.back() != u' ') line += u' ';
    }
    if (!line.empty() && line.back() == u' ') line.pop_back();
    return line;
}

String shownTextOf(const Widget& widget) {
    return inOneLine(captionOf(widget.shownText()).text);
}

String toolTipOf(const Widget& widget) {
    return inOneLine(widget.get_ToolTipText());
}

/// "commandVerticalOK" is "Vertical OK", "ribCard" with index 1 is "Card 1": a small word in front says the kind.
String readableName(const Widget& widget) {
    StringView name = widget.name();
    const auto kind = std::find_if_not(name.begin(), name.end(), isLower);
    if (kind != name.end()) name.remove_prefix(static_cast<std::size_t>(kind - name.begin()));
    String words;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool endsCapitals =
            i > 0 && i + 1 < name.size() && isUpper(name[i - 1]) && isUpper(name[i]) && isLower(name[i + 1]);
        const bool begins = i > 0 && ((isUpper(name[i]) && !isUpper(name[i - 1])) || endsCapitals ||
                                      (isDigit(name[i]) && !isDigit(name[i - 1])));
        if (begins) words += u' ';
        words += name[i];
    }
    if (widget.isArrayElement()) words += u' ' + toString(Variant(widget.index()));
    return words;
}

/// The label that stands just before it in Tab order; null for none.
const Widget* labelOf(const Widget& widget) {
    for (const Widget& other : widget.surface())
        if (other.role() == Role::Label && &other.container() == &widget.container() &&
            other.get_TabIndex() + 1 == widget.get_TabIndex())
            return &other;
    return nullptr;
}

bool isField(const Widget& widget) {
    const auto* label = dynamic_cast<const Label*>(&widget);
    return label && label->isField();
}

bool isSpinButton(const Widget& widget) {
    return widget.role() == Role::SpinButton;
}

/// The only one of its kind in the container; null for none or several.
template <class IsKind>
Widget* onlyOneIn(Container& container, IsKind isKind) {
    Widget* only = nullptr;
    for (Widget& widget : container.surface()) {
        if (&widget.container() != &container || !isKind(widget)) continue;
        if (only) return nullptr;
        only = &widget;
    }
    return only;
}

/// The part of the area that lies in one of that size.
Rectangle clipped(const Rectangle& area, const Rectangle& to) {
    const Single left = std::clamp(area.left, Single{0}, to.width);
    const Single top = std::clamp(area.top, Single{0}, to.height);
    return {left, top, std::clamp(area.right(), Single{0}, to.width) - left,
            std::clamp(area.bottom(), Single{0}, to.height) - top};
}

void collectChildren(const Container& container, const Surface& surface, std::vector<Widget*>& children) {
    for (Widget* widget : surface.inTabOrder()) {
        if (&widget->container() != &container) continue;
        if (Surface* inner = widget->embeddedSurface())
            collectChildren(*inner, *inner, children);
        else if (widget->role() != Role::None)
            children.push_back(widget);
    }
    if (&container != &surface) return;
    for (Widget& widget : surface)
        if (!widget.isPlaced() && !widget.parent()) children.push_back(&widget);
}

} // namespace

String nameOf(const Widget& widget) {
    if (!widget.spokenText().empty()) return String(widget.spokenText());
    if (widget.role() == Role::Separator) return {};
    String name = shownTextOf(widget);
    if (!name.empty() || widget.role() == Role::Label) return name;
    if (widget.role() == Role::Group && !widget.isClickable()) return {}; // what lies in it speaks for itself
    if (const Widget* label = labelOf(widget)) name = shownTextOf(*label);
    if (name.empty()) name = toolTipOf(widget);
    return name.empty() ? readableName(widget) : name;
}

String descriptionOf(const Widget& widget) {
    String description = toolTipOf(widget);
    return description == nameOf(widget) ? String() : description;
}

String valueOf(const Widget& widget) {
    if (!isSpinButton(widget) || onlyOneIn(widget.container(), isSpinButton) != &widget) return {};
    const Widget* field = onlyOneIn(widget.container(), isField);
    return field ? shownTextOf(*field) : String();
}

Widget* steppedBy(const Widget& widget) {
    if (onlyOneIn(widget.container(), isField) != &widget) return nullptr;
    return onlyOneIn(widget.container(), isSpinButton);
}

std::optional<GroupPlace> groupPlaceOf(const Widget& widget) {
    std::optional<GroupPlace> place;
    std::size_t size = 0;
    for (const Widget* other : widget.surface().inTabOrder()) {
        if (!widget.isInGroupWith(*other) || !other->get_Visible()) continue;
        ++size;
        if (other == &widget) place = {size, 0};
    }
    if (place) place->size = size;
    return place;
}

Rectangle boundsOf(const Widget& widget) {
    if (!widget.isPlaced()) return {};
    Rectangle bounds = widget.bounds();
    const Widget* outermost = &widget;
    for (const Widget* outer = widget.outer(); outer; outer = outer->outer()) {
        bounds = clipped(bounds, outer->bounds());
        bounds.left += outer->bounds().left;
        bounds.top += outer->bounds().top;
        outermost = outer;
    }
    return clipped(bounds, outermost->surface().area());
}

State stateOf(const Widget& widget) {
    State state{.shown = widget.isPlaced(),
                .enabled = widget.surface().isEnabled(),
                .focusable = widget.takesFocus(),
                .focused = widget.isFocused(),
                .pressed = widget.isPressed(),
                .isDefault = widget.surface().defaultButton == &widget && widget.surface().displaysDefault(),
                .checked = widget.checked()};
    for (const Widget* at = &widget; at; at = at->outer()) {
        state.shown = state.shown && at->get_Visible();
        state.enabled = state.enabled && at->get_Enabled();
    }
    return state;
}

String accessKeyOf(const Widget& widget) {
    const char16_t letter = widget.isClickable() ? widget.accessKey() : u'\0';
    if (!letter) return {};
    return (widget.isPlaced() ? u"Alt+" : u"") + String{letter}; // an open menu takes the letter alone
}

std::vector<input::Action> actionsOf(const Widget& widget) {
    if (isSpinButton(widget)) return {input::Action::SpinUp, input::Action::SpinDown};
    if (!widget.isClickable() || widget.role() == Role::Group) return {}; // a panel is pressed at a point
    return {input::Action::Click};
}

Widget* parentOf(const Widget& widget) {
    Widget* outer = widget.outer();
    return outer && outer->embeddedSurface() ? parentOf(*outer) : outer;
}

std::vector<Widget*> childrenOf(const Surface& surface) {
    std::vector<Widget*> children;
    collectChildren(surface, surface, children);
    return children;
}

std::vector<Widget*> childrenOf(const Widget& widget) {
    std::vector<Widget*> children;
    if (const auto* menu = dynamic_cast<const Menu*>(&widget)) {
        const auto items = menu->items();
        children.assign(items.begin(), items.end());
    } else if (const auto* container = dynamic_cast<const Container*>(&widget)) {
        collectChildren(*container, widget.surface(), children);
    }
    return children;
}

} // namespace zilvo::platform::accessible
