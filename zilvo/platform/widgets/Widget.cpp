#include "zilvo/platform/widgets/Widget.h"

#include "zilvo/platform/widgets/Surface.h"

#include <cmath>

namespace zilvo::platform {

namespace {

constexpr std::array members = {
    property<&Widget::get_Name>(-800, u"Name"),
    property<&Widget::get_Index>(-801, u"Index"),
    property<&Widget::get_Left, &Widget::put_Left>(-802, u"Left", u"newLeft"),
    property<&Widget::get_Top, &Widget::put_Top>(-803, u"Top", u"newTop"),
    property<&Widget::get_Width, &Widget::put_Width>(-804, u"Width", u"newWidth"),
    property<&Widget::get_Height, &Widget::put_Height>(-805, u"Height", u"newHeight"),
    property<&Widget::get_Visible, &Widget::put_Visible>(-806, u"Visible", u"newVisible"),
    property<&Widget::get_Enabled, &Widget::put_Enabled>(-807, u"Enabled", u"newEnabled"),
    property<&Widget::get_ToolTipText, &Widget::put_ToolTipText>(-808, u"ToolTipText", u"newToolTipText"),
    property<&Widget::get_TabIndex, &Widget::put_TabIndex>(-809, u"TabIndex", u"newTabIndex"),
};
static_assert(idsAndNamesAreUnique(members));

} // namespace

const ClassDescription Widget::commonMembers{.name = u"Widget", .members = members};

Widget::Widget(Container& container, const Placement& place)
    : container_(container),
      name_(place.name),
      spoken_(place.spoken),
      bounds_(place.bounds),
      toolTipText_(place.toolTipText),
      index_(place.index),
      tabIndex_(place.tabIndex),
      zOrder_(place.zOrder),
      visible_(place.visible),
      enabled_(place.enabled) {
    surface().add(*this);
}

std::string shownName(const Widget& widget) {
    auto name = toUtf8(widget.name());
    if (widget.isArrayElement()) name += "(" + std::to_string(widget.index()) + ")";
    return name;
}

std::string describe(const Widget& widget, const char* member) {
    return shownName(widget) + "." + member;
}

Widget* Widget::outer() const noexcept {
    Widget* within = parent();
    return within ? within : surface().embeddingWidget();
}

Integer Widget::get_Index() const {
    if (!isArrayElement())
        throw Failure(Status::UnknownMember, describe(*this, "Index") + ": the widget is no element of an array");
    return index_;
}

void Widget::place(Single Rectangle::*edge, Single value) {
    const Single twips = value * unit();
    if (bounds_.*edge == twips) return;
    const bool isSize = edge == &Rectangle::width || edge == &Rectangle::height;
    const char* member = edge == &Rectangle::left    ? "Left"
                         : edge == &Rectangle::top   ? "Top"
                         : edge == &Rectangle::width ? "Width"
                                                     : "Height";
    if (!std::isfinite(twips) || (isSize && twips < 0))
        throw Failure(Status::InvalidPropertyValue, describe(*this, member) + " cannot be " + describe(Variant(value)));
    bounds_.*edge = twips;
    const HeldSurface held(surface());
    changed(Aspect::Place);
    if (isSize) sizeChanged();
}

void Widget::followSize(Single width, Single height) noexcept {
    bounds_.width = width;
    bounds_.height = height;
    changed(Aspect::Place);
}

void Widget::put_Left(Single newLeft) {
    place(&Rectangle::left, newLeft);
}

void Widget::put_Top(Single newTop) {
    place(&Rectangle::top, newTop);
}

void Widget::put_Width(Single newWidth) {
    place(&Rectangle::width, newWidth);
}

void Widget::put_Height(Single newHeight) {
    place(&Rectangle::height, newHeight);
}

void Widget::bringToFront() noexcept {
    Long front = zOrder_;
    for (const Widget& other : surface())
        if (&other != this && &other.container() == &container_ && other.zOrder_ >= front) front = other.zOrder_ + 1;
    if (front == zOrder_) return;
    zOrder_ = front;
    changed(Aspect::Look);
}

void Widget::show(bool newVisible) {
    visible_ = newVisible;
    changed(Aspect::Visible);
}

void Widget::enable(bool newEnabled) {
    enabled_ = newEnabled;
    changed(Aspect::Enabled);
}

void Widget::put_ToolTipText(StringView newToolTipText) {
    toolTipText_.set(newToolTipText);
    changed(Aspect::ToolTip);
}

void Widget::put_TabIndex(Integer newTabIndex) {
    if (newTabIndex < 0)
        throw Failure(Status::InvalidPropertyValue,
                      describe(*this, "TabIndex") + " cannot be " + describe(Variant(newTabIndex)));
    tabIndex_ = newTabIndex;
}

bool Widget::acceptsInput() const {
    if (!visible_ || !enabled_) return false;
    if (const Widget* outer = parent()) return outer->acceptsInput();
    return surface().acceptsInput();
}

bool Widget::isGreyed() const {
    return !enabled_ || !surface().isEnabled();
}

bool Widget::leadsGroup() const {
    bool passed = false;
    for (const Widget& other : surface()) {
        passed = passed || &other == this;
        if (&other == this || !isInGroupWith(other) || !other.acceptsInput()) continue;
        if (other.tabIndex_ < tabIndex_ || (other.tabIndex_ == tabIndex_ && !passed)) return false;
    }
    return true;
}

void Widget::moveFocus(Widget* from, Widget* to) noexcept {
    if (from) from->focused_ = false;
    if (to) to->focused_ = true;
    for (const Widget* widget : {from, to})
        if (widget) widget->changed(Aspect::Focus);
}

void Widget::setPressed(bool pressed) noexcept {
    if (pressed_ == pressed) return;
    pressed_ = pressed;
    changed(Aspect::Pressed);
}

void Widget::changed(Aspect aspect) const noexcept {
    surface().widgetChanged(*this, aspect);
}

} // namespace zilvo::platform
