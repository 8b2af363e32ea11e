#include "zilvo/platform/widgets/Menu.h"

#include "zilvo/platform/widgets/Surface.h"

namespace zilvo::platform {

namespace {

constexpr std::array members = {
    property<&Menu::get_Caption, &Menu::put_Caption>(1, u"Caption", u"newCaption"),
    property<&Menu::get_Checked, &Menu::put_Checked>(2, u"Checked", u"newChecked"),
};
static_assert(idsAndNamesAreUnique(members));

} // namespace

Menu::Menu(Surface& surface, const Design& design)
    : Widget(surface, placementOf(design)), parent_(nullptr), caption_(design.Caption), checked_(design.Checked) {}

Menu::Menu(Menu& parent, const Design& design, ClickHandler click)
    : Widget(parent.container(), placementOf(design)),
      parent_(&parent),
      caption_(design.Caption),
      click_(click),
      checked_(design.Checked) {}

void Menu::put_Caption(StringView newCaption) {
    caption_.set(newCaption);
    changed(Aspect::Caption);
}

void Menu::put_Checked(bool newChecked) {
    if (checked_ == newChecked) return;
    if (newChecked && !isClickable())
        throw Failure(Status::InvalidPropertyValue,
                      platform::describe(*this, "Checked") + " cannot be True on a root, a submenu or a separator");
    checked_ = newChecked;
    changed(Aspect::Value);
}

bool Menu::opensSubmenu() const noexcept {
    for (const Widget& widget : surface())
        if (widget.parent() == this) return true;
    return false;
}

std::vector<Menu*> Menu::items() const {
    std::vector<Menu*> found;
    for (Widget& widget : surface())
        if (widget.parent() == this && widget.get_Visible()) found.push_back(static_cast<Menu*>(&widget));
    return found;
}

void Menu::userClick() {
    Integer index = this->index();
    click_(index);
}

Role Menu::role() const noexcept {
    if (isSeparator()) return Role::Separator;
    return !parent_ || opensSubmenu() ? Role::Menu : Role::MenuItem;
}

std::optional<Checked> Menu::checked() const noexcept {
    if (!checked_) return std::nullopt;
    return Checked::Yes;
}

const ClassDescription& Menu::description() const noexcept {
    static constexpr ClassDescription description{.name = u"Menu", .members = members, .base = &commonMembers};
    return description;
}

} // namespace zilvo::platform
