#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/platform/widgets/CommandButton.h"
#include "zilvo/platform/widgets/SSPanel.h"

namespace zilvo {

/// The player sees a START and a STOP button side by side; a click on the one that is enabled hands over to the other.
/// The host gets StartButtonWasClicked and StopButtonWasClicked after the buttons have changed over, makes the pair
/// ready to start again and chooses the tool tips, which are saved.
class StartStopButtons final : public Control {
public:
    static const ObjectDescription Description;
    explicit StartStopButtons(ComponentModule& module);

    /// Enables START, as the default button, and disables STOP. A loaded instance begins so, a new one with both
    /// enabled.
    void Reset();
    /// The same as Reset.
    void SetupForStarting();
    /// A new instance has a tool tip of its own, which is not saved: one that is loaded without any has none.
    String get_StartButtonToolTip();
    void put_StartButtonToolTip(const String& NewTooltipValue);
    /// As StartButtonToolTip.
    String get_StopButtonToolTip();
    void put_StopButtonToolTip(const String& NewTooltipValue);

    /// START is disabled and STOP enabled by then.
    Event<> StartButtonWasClicked{*this};
    /// STOP is disabled and START enabled by then.
    Event<> StopButtonWasClicked{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void ReadProperties(const PropertyBag& PropBag) override;
    void WriteProperties(PropertyBag& PropBag) override;

    void StartButton_Click();
    void StopButton_Click();

    void DisableStartButton();
    void DisableStopButton();
    void EnableStartButton();
    void EnableStopButton();

    /// What is saved: the tool tips that were given or loaded, not those that the buttons are designed with.
    String startToolTip;
    String stopToolTip;

    // clang-format off
    SSPanel panelStartStop{userControl, {
        .Name = u"panelStartStop", .Left = 0, .Top = 0, .Width = 2730, .Height = 975,
        .BackColor = colours::LightGrey, .TabIndex = 0}};

    SSPanel panelStart{panelStartStop, {
        .Name = u"panelStart", .Left = 120, .Top = 120, .Width = 1240, .Height = 735,
        .BackColor = colours::LightGrey, .TabIndex = 1}};

    CommandButton StartButton{panelStart, {
        .Name = u"StartButton", .Left = 120, .Top = 120, .Width = 1000, .Height = 495, .Caption = u"START",
        .BackColor = {0x00E0E0E0}, .Font = {.Name = u"Comic Sans MS", .Size = 12, .Weight = 700},
        .Default = true, .TabIndex = 2, .ToolTipText = u"Click Start to Begin Operation"},
        calls<&StartStopButtons::StartButton_Click>(this)};

    SSPanel panelStop{panelStartStop, {
        .Name = u"panelStop", .Left = 1360, .Top = 120, .Width = 1240, .Height = 735,
        .BackColor = colours::LightGrey, .TabIndex = 3}};

    CommandButton StopButton{panelStop, {
        .Name = u"StopButton", .Left = 120, .Top = 120, .Width = 1000, .Height = 495, .Caption = u"STOP",
        .BackColor = {0x00E0E0E0}, .Font = {.Name = u"Comic Sans MS", .Size = 12, .Weight = 700},
        .TabIndex = 4, .ToolTipText = u"Click Stop to End Operation"},
        calls<&StartStopButtons::StopButton_Click>(this)};
    // clang-format on
};

} // namespace zilvo
