#pragma once

#include "zilvo/platform/widgets/Widget.h"

#include <vector>

namespace zilvo::platform {

/// An item of a design-time menu: the root of a pop-up, an item that opens a submenu, or an item to choose. The
/// caption "-" makes a separator. Choosing an item sends Click; nothing done in code does.
class Menu final : public Widget {
public:
    struct Design {
        platform::Name Name;
        Integer Index = NoIndex;
        const char16_t* Caption = u"";
        bool Checked = false;
        bool Enabled = true;
        bool Visible = true;
    };
    using ClickHandler = Delegate<Integer&>;

    /// A root.
    Menu(Surface& surface, const Design& design);
    /// An item of `parent`.
    Menu(Menu& parent, const Design& design, ClickHandler click = {});

    String get_Caption() const { return String(caption_.view()); }
    void put_Caption(StringView newCaption);
    bool get_Checked() const noexcept { return checked_; }
    void put_Checked(bool newChecked);

    bool isSeparator() const noexcept { return caption_.view() == u"-"; }
    /// Whether other items belong to this one.
    bool opensSubmenu() const noexcept;
    /// The items of this menu that are shown, in order.
    std::vector<Menu*> items() const;

    const ClassDescription& description() const noexcept override;
    Role role() const noexcept override;
    StringView shownText() const noexcept override { return caption_.view(); }
    /// Only a ticked item says so: which others may be ticked is not known.
    std::optional<Checked> checked() const noexcept override;
    Menu* parent() const noexcept override { return parent_; }
    bool isPlaced() const noexcept override { return false; }
    char16_t accessKey() const noexcept override { return accessKeyOf(caption_.view()); }
    bool isClickable() const noexcept override { return parent_ && !isSeparator() && !opensSubmenu(); }
    void userClick() override;
    /// Menus are drawn as pop-ups, not on the surface.
    void paint(Painter&) const override {}

private:
    Menu* parent_;
    Text caption_;
    ClickHandler click_;
    bool checked_;
};

} // namespace zilvo::platform
