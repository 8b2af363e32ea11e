#pragma once

#include "zilvo/platform/widgets/Widget.h"

namespace zilvo::platform {

/// A 3-D picture button that latches; those of one container form a group of which at most one is pressed. The
/// user's click presses it or, when it is pressed, raises it, and sends Index and the new Value (-1 or 0); code
/// never sends anything.
class SSRibbon final : public Widget {
public:
    struct Design {
        platform::Name Name;
        Integer Index = NoIndex;
        Twips Left, Top, Width, Height;
        /// Shared by all instances; must outlive them. Null for none.
        const Bitmap* PictureUp = nullptr;
        const Bitmap* PictureDown = nullptr;
        Colour BackColor = colours::ButtonFace;
        bool Value = false;
        bool Outline = false;
        bool Enabled = true;
        bool Visible = true;
        Integer TabIndex = 0;
        const char16_t* ToolTipText = u"";
        const char16_t* Spoken = u"";
        Integer ZOrder = 0;
    };
    using ClickHandler = Delegate<Integer&, Integer&>;

    SSRibbon(Container& container, const Design& design, ClickHandler click = {});

    /// Whether it is pressed. Setting it follows the group rule.
    bool get_Value() const noexcept { return container().pressedRibbon == this; }
    void put_Value(bool newValue);
    /// A dark line around the button; no influence on the latch.
    bool get_Outline() const noexcept { return outline_; }
    void put_Outline(bool newOutline);
    Colour get_BackColor() const noexcept { return backColor_; }
    void put_BackColor(Colour newBackColor);

    const ClassDescription& description() const noexcept override;
    Role role() const noexcept override { return Role::ToggleButton; }
    std::optional<Checked> checked() const noexcept override { return get_Value() ? Checked::Yes : Checked::No; }
    bool takesFocus() const noexcept override { return true; }
    bool isClickable() const noexcept override { return true; }
    void userClick() override;
    void paint(Painter& painter) const override;

private:
    const Bitmap* pictureUp_;
    const Bitmap* pictureDown_;
    Colour backColor_;
    bool outline_;
    ClickHandler click_;
};

} // namespace zilvo::platform
