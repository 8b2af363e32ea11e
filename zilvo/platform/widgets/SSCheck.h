#pragma once

#include "zilvo/platform/widgets/MarkedWidget.h"

namespace zilvo::platform {

/// A 3-D check button. The user's click toggles it and sends Index and the new Value (-1 or 0); code never does.
class SSCheck final : public MarkedWidget {
public:
    struct Design {
        platform::Name Name;
        Integer Index = NoIndex;
        Twips Left, Top, Width, Height;
        const char16_t* Caption = u"";
        bool Value = false;
        look::MarkSide Mark = look::MarkSide::Left;
        Colour BackColor = colours::ButtonFace;
        Colour ForeColor = colours::ButtonText;
        FontDesign Font = {};
        bool Enabled = true;
        bool Visible = true;
        Integer TabIndex = 0;
        const char16_t* ToolTipText = u"";
        const char16_t* Spoken = u"";
        Integer ZOrder = 0;
    };
    using ClickHandler = Delegate<Integer&, Integer&>;

    SSCheck(Container& container, const Design& design, ClickHandler click = {});

    bool get_Value() const noexcept { return value_; }
    void put_Value(bool newValue);

    const ClassDescription& description() const noexcept override;
    Role role() const noexcept override { return Role::CheckBox; }
    std::optional<Checked> checked() const noexcept override { return get_Value() ? Checked::Yes : Checked::No; }
    void userClick() override;
    void paint(Painter& painter) const override;

private:
    bool value_;
    ClickHandler click_;
};

} // namespace zilvo::platform
