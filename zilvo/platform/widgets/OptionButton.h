#pragma once

#include "zilvo/platform/widgets/MarkedWidget.h"

namespace zilvo::platform {

/// A radio button; those of one container form an exclusive group. Becoming the selected one sends Click, whether
/// the user or the code selected it and also while it is disabled or hidden; selecting the selected one again and
/// clearing send nothing.
class OptionButton final : public MarkedWidget {
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
        Integer ZOrder = 0;
    };
    using ClickHandler = Delegate<Integer&>;

    OptionButton(Container& container, const Design& design, ClickHandler click = {});

    bool get_Value() const noexcept { return container().selectedOption == this; }
    void put_Value(bool newValue);

    const ClassDescription& description() const noexcept override;
    Role role() const noexcept override { return Role::RadioButton; }
    std::optional<Checked> checked() const noexcept override { return get_Value() ? Checked::Yes : Checked::No; }
    bool isTabStop() const override;
    void userClick() override { select(); }
    bool isInGroupWith(const Widget& other) const noexcept override;
    void paint(Painter& painter) const override;

private:
    void select();

    ClickHandler click_;
};

} // namespace zilvo::platform
