#pragma once

#include "zilvo/framework/EmbeddedControl.h"
#include "zilvo/framework/Enumerations.h"
#include "zilvo/platform/widgets/SSPanel.h"

namespace zilvo {

/// The player sees a GO button on two raised panels, one within the other.
/// The host chooses the button's form through this control. WasClicked is published but never raised.
/// Nothing is saved.
class paneledGOButton final : public Control {
public:
    static const ObjectDescription Description;
    explicit paneledGOButton(ComponentModule& module);

    GOButtonShapePossibilities get_GOButtonShape();
    /// Fails as in GOButton.
    void put_GOButtonShape(GOButtonShapePossibilities newButtonShape);

    /// Never raised.
    Event<> WasClicked{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    // clang-format off
    SSPanel outerPanelGO{userControl, {
        .Name = u"panelGO", .Index = 2, .Left = 0, .Top = 0, .Width = 1500, .Height = 1000,
        .BackColor = colours::LightGrey}};

    SSPanel innerPanelGO{outerPanelGO, {
        .Name = u"panelGO", .Index = 1, .Left = 120, .Top = 120, .Width = 1260, .Height = 780,
        .BackColor = colours::LightGrey}};

    EmbeddedControl GOButton{*this, userControl, {
        .Name = u"GOButton", .Class = u"GOButton", .Left = 260, .Top = 135, .Width = 990, .Height = 735}};
    // clang-format on
};

} // namespace zilvo
