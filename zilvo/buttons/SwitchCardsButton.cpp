#include "zilvo/buttons/SwitchCardsButton.h"

namespace zilvo {

namespace {

constexpr std::array events = {
    event<1, &SwitchCardsButton::SwitchCardsButtonWasPressed>(u"SwitchCardsButtonWasPressed"),
};

} // namespace

constinit const ObjectDescription SwitchCardsButton::Description{u"SwitchCardsButton", {}, events};

SwitchCardsButton::SwitchCardsButton(ComponentModule& module)
    : Control(module, {.Width = 1785, .Height = 720, .ScaleMode = ScaleMode::Twips}) {}

void SwitchCardsButton::commandSwitch_Click() {
    SwitchCardsButtonWasPressed.raise();
}

} // namespace zilvo
