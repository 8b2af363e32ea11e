#pragma once

#include "zilvo/platform/widgets/MarkedWidget.h"

namespace zilvo::platform {

/// A 3-D option button; those of one container form an exclusive group. Every click of the user selects it and
/// sends Index and the new Value (-1), also on the selected one; code never sends anything.
class SSOption final : public MarkedWidget {
public:
    struct Design {
        platform::Name Name;
        Integer Index = NoIndex;
        Twips Left, Top, Width, Height;
        const char16_t* Caption = u"";
        bool Value = false;
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
    using ClickHandler = Delegate<Integer&, Integer&>;

    SSOption(Container& container, const Design& design, ClickHandler click = {});

    bool get_Value() const noexcept { return container().selectedSSOption == this; }
    void put_Value(bool newValue);

    const ClassDescription& description() const noexcept override;
    Role role() const noexcept override { return Role::RadioButton; }
    std::optional<Checked> checked() const noexcept override { return get_Value() ? Checked::Yes : Checked::No; }
    bool isTabStop() const override;
    void userClick() override;
    bool isInGroupWith(const Widget& other) const noexcept override;
    void paint(Painter& painter) const override;

private:
    ClickHandler click_;
};

} // namespace zilvo::platform
