#include "zilvo/buttons/StartStopButtons.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    method<&StartStopButtons::Reset>(0x60030006, u"Reset"),
    method<&StartStopButtons::SetupForStarting>(0x60030007, u"SetupForStarting"),
    property<&StartStopButtons::get_StartButtonToolTip, &StartStopButtons::put_StartButtonToolTip>(
        0x68030001, u"StartButtonToolTip", u"NewTooltipValue"),
    property<&StartStopButtons::get_StopButtonToolTip, &StartStopButtons::put_StopButtonToolTip>(
        0x68030000, u"StopButtonToolTip", u"NewTooltipValue"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<1, &StartStopButtons::StartButtonWasClicked>(u"StartButtonWasClicked"),
    event<2, &StartStopButtons::StopButtonWasClicked>(u"StopButtonWasClicked"),
};

} // namespace

constinit const ObjectDescription StartStopButtons::Description{u"StartStopButtons", members, events};

StartStopButtons::StartStopButtons(ComponentModule& module)
    : Control(module, {.Width = 2730, .Height = 975, .ScaleMode = ScaleMode::Pixels}) {}

void StartStopButtons::ReadProperties(const PropertyBag& PropBag) {
    stopToolTip = PropBag.ReadProperty<String>(u"StopButtonToolTip", stopToolTip);
    startToolTip = PropBag.ReadProperty<String>(u"StartButtonToolTip", startToolTip);
    StartButton.put_ToolTipText(startToolTip);
    StopButton.put_ToolTipText(stopToolTip);
    Reset();
}

void StartStopButtons::WriteProperties(PropertyBag& PropBag) {
    PropBag.WriteProperty(u"StartButtonToolTip", startToolTip);
    PropBag.WriteProperty(u"StopButtonToolTip", stopToolTip);
}

void StartStopButtons::Reset() {
    DisableStopButton();
    EnableStartButton();
}

void StartStopButtons::SetupForStarting() {
    Reset();
}

String StartStopButtons::get_StartButtonToolTip() {
    return StartButton.get_ToolTipText();
}

void StartStopButtons::put_StartButtonToolTip(const String& NewTooltipValue) {
    startToolTip = NewTooltipValue;
    StartButton.put_ToolTipText(startToolTip);
    userControl.PropertyChanged(u"StartButtonToolTip");
}

String StartStopButtons::get_StopButtonToolTip() {
    return StopButton.get_ToolTipText();
}

void StartStopButtons::put_StopButtonToolTip(const String& NewTooltipValue) {
    stopToolTip = NewTooltipValue;
    StopButton.put_ToolTipText(stopToolTip);
    userControl.PropertyChanged(u"StopButtonToolTip");
}

void StartStopButtons::StartButton_Click() {
    DisableStartButton();
    EnableStopButton();
    StartButtonWasClicked.raise();
}

void StartStopButtons::StopButton_Click() {
    DisableStopButton();
    EnableStartButton();
    StopButtonWasClicked.raise();
}

void StartStopButtons::DisableStartButton() {
    StartButton.put_Enabled(false);
}

void StartStopButtons::DisableStopButton() {
    StopButton.put_Enabled(false);
}

void StartStopButtons::EnableStartButton() {
    StartButton.put_Enabled(true);
    StartButton.put_Default(true);
}

void StartStopButtons::EnableStopButton() {
    StopButton.put_Enabled(true);
    StopButton.put_Default(true);
}

} // namespace zilvo
