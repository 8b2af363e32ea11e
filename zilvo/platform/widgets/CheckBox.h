#pragma once

#include "zilvo/platform/widgets/MarkedWidget.h"

namespace zilvo::platform {

/// A check box. Every change of Value sends Click, whether the user or the code made it; setting the value that it
/// has sends nothing.
class CheckBox final : public MarkedWidget {
public:
    static constexpr Integer Unchecked = 0;
    static constexpr Integer Checked = 1;
    static constexpr Integer Greyed = 2;

    struct Design {
        platform::Name Name;
        Integer Index = NoIndex;
        Twips Left, Top, Width, Height;
        const char16_t* Caption = u"";
        Integer Value = Unchecked;
        look::MarkSide Mark = look::MarkSide::Left;
        bool Transparent = false; ///< no ground of its own: a neighbour that it overlaps shows
        Colour BackColor = colours::ButtonFace;
        Colour ForeColor = colours::ButtonText;
        FontDesign Font = {};
        bool Enabled = true;
        bool Visible = true;
        Integer TabIndex = 0;
        const char16_t* ToolTipText = u"";
        Integer ZOrder = 0;
    };
    using ClickHandler = Delegate<Integer&>;

    CheckBox(Container& container, const Design& design, ClickHandler click = {});

    /// 0, 1 or 2; anything else fails with InvalidPropertyValue.
    Integer get_Value() const noexcept { return value_; }
    void put_Value(Integer newValue) {
        if (newValue != value_) change(newValue);
    }

    const ClassDescription& description() const noexcept override;
    Role role() const noexcept override { return Role::CheckBox; }
    std::optional<platform::Checked> checked() const noexcept override;
    void userClick() override { put_Value(value_ == Unchecked ? Checked : Unchecked); }
    void paint(Painter& painter) const override;

private:
    void change(Integer newValue);

    Integer value_;
    ClickHandler click_;
};

} // namespace zilvo::platform
