#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/platform/widgets/CommandButton.h"
#include "zilvo/platform/widgets/SSPanel.h"

namespace zilvo {

/// The player sees one Switch Cards button on a raised panel.
/// The host gets SwitchCardsButtonWasPressed for every click.
/// Nothing is saved.
class SwitchCardsButton final : public Control {
public:
    static const ObjectDescription Description;
    explicit SwitchCardsButton(ComponentModule& module);

    Event<> SwitchCardsButtonWasPressed{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void commandSwitch_Click();

    // clang-format off
    SSPanel panelSwitch{userControl, {
        .Name = u"panelSwitch", .Left = 0, .Top = 0, .Width = 1780, .Height = 700, .Caption = u"Switch-Cards Button",
        .BackColor = {0x00A8B090}, .Font = {.Name = u"Comic Sans MS", .Size = 9.75F},
        .TabIndex = 0, .ToolTipText = u"Use Alt-V+S to hide this button"}};

    CommandButton commandSwitch{panelSwitch, {
        .Name = u"commandSwitch", .Left = 60, .Top = 40, .Width = 1660, .Height = 600, .Caption = u"Switch Cards",
        .BackColor = {0x00C0E0FF}, .Font = {.Name = u"Comic Sans MS", .Size = 12},
        .TabIndex = 1, .ToolTipText = u"   Click here to switch your 2nd-Cards..."},
        calls<&SwitchCardsButton::commandSwitch_Click>(this)};
    // clang-format on
};

} // namespace zilvo
