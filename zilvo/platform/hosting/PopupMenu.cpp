#include "zilvo/platform/hosting/PopupMenu.h"

#include "zilvo/platform/painting/FontMetrics.h"
#include "zilvo/platform/painting/TextLayout.h"
#include "zilvo/platform/widgets/Look.h"
#include "zilvo/platform/widgets/Surface.h"

#include <algorithm>

namespace zilvo::platform {

namespace {

constexpr Single Pixel = TwipsPerPixel;
constexpr Single Border = 3 * Pixel;
constexpr Single ItemHeight = 19 * Pixel;
constexpr Single SeparatorHeight = 9 * Pixel;
constexpr Single CheckWidth = 20 * Pixel; ///< left of the text, for the check mark
constexpr Single ArrowWidth = 20 * Pixel; ///< right of it, for the submenu's arrow
constexpr FontLook MenuFont{u"MS Sans Serif", 8.25F, 400, false, false, false};

Single heightOf(const Menu& item) noexcept {
    return item.isSeparator() ? SeparatorHeight : ItemHeight;
}

bool canHighlight(const Menu& item) noexcept {
    return item.get_Enabled() && !item.isSeparator();
}

} // namespace

Menu* PopupMenu::highlighted() const noexcept {
    return panels_.empty() ? nullptr : panels_.back().highlighted;
}

void PopupMenu::open(Menu& root, Point corner, const Rectangle& room) {
    lastRoot_ = &root;
    pressed_ = false;
    room_ = room;
    panels_.assign(1, panelFor(root, {corner.x, corner.y, 0, 0}));
}

/// To the right of the area and down from its upper edge, or to the left and up from its lower one.
PopupMenu::Panel PopupMenu::panelFor(Menu& menu, const Rectangle& beside) const {
    Rectangle area{beside.right(), beside.top, 0, 2 * Border};
    for (const Menu* item : menu.items()) {
        const Single text = textWidth(captionOf(item->get_Caption()).text, MenuFont);
        area.width = std::max(area.width, text + CheckWidth + ArrowWidth + 2 * Border);
        area.height += heightOf(*item);
    }
    const Single toTheLeft = beside.left - area.width;
    const Single upwards = beside.bottom() - area.height;
    if (area.right() > room_.right() && toTheLeft >= room_.left) area.left = toTheLeft;
    if (area.bottom() > room_.bottom() && upwards >= room_.top) area.top = upwards;
    return {&menu, area};
}

Rectangle PopupMenu::areaOf(const Panel& panel, const Menu& wanted) const {
    const Rectangle inner = panel.area.inset(Border);
    Rectangle area{inner.left, inner.top, inner.width, 0};
    for (const Menu* item : panel.menu->items()) {
        area.height = heightOf(*item);
        if (item == &wanted) break;
        area.top += area.height;
    }
    return area;
}

PopupMenu::Place PopupMenu::placeAt(Point at) const {
    for (std::size_t i = panels_.size(); i-- > 0;) {
        if (!panels_[i].area.contains(at)) continue;
        for (Menu* item : panels_[i].menu->items())
            if (areaOf(panels_[i], *item).contains(at)) return {i, item};
        return {i, nullptr};
    }
    return {panels_.size(), nullptr};
}

void PopupMenu::highlight(std::size_t panel, Menu* item) {
    panels_.resize(panel + 1, panels_.front());
    panels_[panel].highlighted = item && canHighlight(*item) ? item : nullptr;
}

void PopupMenu::openSubmenu() {
    Menu* item = highlighted();
    if (!item || !item->opensSubmenu()) return;
    const Rectangle area = areaOf(panels_.back(), *item);
    panels_.push_back(panelFor(*item, {area.left, area.top - Border, area.width, area.height + 2 * Border}));
}

Menu* PopupMenu::choose() {
    Menu* item = highlighted();
    if (!item) return nullptr;
    if (item->opensSubmenu()) {
        openSubmenu();
        return nullptr;
    }
    close();
    return item;
}

void PopupMenu::pointerMove(Point at) {
    const Place place = placeAt(at);
    if (place.panel == panels_.size()) return;
    highlight(place.panel, place.item);
    openSubmenu();
}

Menu* PopupMenu::pointerDown(Point at) {
    pressed_ = placeAt(at).panel < panels_.size();
    if (pressed_)
        pointerMove(at);
    else
        close();
    return nullptr;
}

Menu* PopupMenu::pointerUp(Point at) {
    if (!std::exchange(pressed_, false)) return nullptr;
    const Place place = placeAt(at);
    if (place.panel + 1 != panels_.size() || !place.item || place.item != highlighted()) return nullptr;
    return choose();
}

void PopupMenu::step(int by) {
    const auto items = panels_.back().menu->items();
    const auto count = static_cast<int>(items.size());
    const auto at = std::find(items.begin(), items.end(), panels_.back().highlighted);
    int position = at != items.end() ? static_cast<int>(at - items.begin()) : by > 0 ? -1 : count;
    for (int tries = 0; tries < count; ++tries) {
        position = (position + by + count) % count;
        if (!canHighlight(*items[static_cast<std::size_t>(position)])) continue;
        highlight(panels_.size() - 1, items[static_cast<std::size_t>(position)]);
        return;
    }
}

Menu* PopupMenu::key(input::Key key) {
    using input::Key;
    switch (key) {
    case Key::Up:
        step(-1);
        break;
    case Key::Down:
        step(1);
        break;
    case Key::Right: {
        const auto depth = panels_.size();
        openSubmenu();
        if (panels_.size() > depth) step(1);
        break;
    }
    case Key::Left:
        if (panels_.size() > 1) panels_.pop_back();
        break;
    case Key::Escape:
        panels_.pop_back();
        break;
    case Key::Enter: {
        const auto depth = panels_.size();
        Menu* chosen = choose();
        if (panels_.size() > depth) step(1);
        return chosen;
    }
    default:
        break;
    }
    return nullptr;
}

Menu* PopupMenu::accessKey(char16_t letter) {
    const char16_t wanted = accessKeyOf(String{u'&', letter});
    for (Menu* item : panels_.back().menu->items()) {
        if (item->accessKey() != wanted || !canHighlight(*item)) continue;
        highlight(panels_.size() - 1, item);
        return key(input::Key::Enter);
    }
    return nullptr;
}

bool PopupMenu::canChoose(const Menu& item) {
    if (!item.isClickable()) return false;
    for (const Menu* at = &item; at; at = at->parent())
        if (!at->get_Enabled() || (at->parent() && !at->get_Visible())) return false;
    return item.surface().acceptsInput();
}

void PopupMenu::paint(Painter& painter) const {
    for (const Panel& panel : panels_) {
        look::buttonFace(painter, panel.area, colours::Menu, false, false);
        for (const Menu* item : panel.menu->items()) {
            const Rectangle area = areaOf(panel, *item);
            if (item->isSeparator()) {
                const Single middle = area.top + area.height / 2 - Pixel;
                look::sunken(painter, {area.left, middle, area.width, 2 * Pixel});
                continue;
            }
            const bool marked = item == panel.highlighted;
            if (marked) painter.rectangle(area, {.fill = colours::Highlight, .stroke = std::nullopt});
            const Colour colour = marked ? colours::HighlightText : colours::MenuText;
            if (item->get_Checked())
                painter.mark(Mark::Tick, {area.left + 3 * Pixel, area.top + 3 * Pixel, 13 * Pixel, 13 * Pixel}, colour);
            const auto caption = item->get_Caption();
            paintCaption(painter, {area.left + CheckWidth, area.top, area.width - CheckWidth, area.height},
                         {.designed = caption,
                          .font = MenuFont,
                          .colour = colour,
                          .across = Alignment::Near,
                          .greyed = !item->get_Enabled(),
                          .wraps = false});
            if (!item->opensSubmenu()) continue;
            const Single middle = area.top + area.height / 2;
            painter.mark(Mark::RightArrow, {area.right() - 10 * Pixel, middle - 4 * Pixel, 4 * Pixel, 8 * Pixel},
                         colour);
        }
    }
}

} // namespace zilvo::platform
