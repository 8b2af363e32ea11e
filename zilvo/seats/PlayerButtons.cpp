#include "zilvo/seats/PlayerButtons.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    method<&PlayerButtons::SelectButton>(0x60030001, u"SelectButton", u"WhichButton"),
    method<&PlayerButtons::SetupTheRadioButtons>(0x60030002, u"SetupTheRadioButtons", u"RadioButton"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<1, &PlayerButtons::PlayerSeatSelected>(u"PlayerSeatSelected", u"Index"),
};

constexpr Integer FirstSeat = 1;
constexpr Integer LastSeat = 7;

} // namespace

constinit const ObjectDescription PlayerButtons::Description{u"PlayerButtons", members, events};

PlayerButtons::PlayerButtons(ComponentModule& module)
    : Control(module, {.Width = 11730, .Height = 660, .ScaleMode = ScaleMode::Twips}) {}

void PlayerButtons::SelectButton(Integer& WhichButton) {
    const bool isSeat = WhichButton >= FirstSeat && WhichButton <= LastSeat;
    optPlayerSeatSelector.Item(isSeat ? WhichButton : FirstSeat).put_Value(true);
}

void PlayerButtons::SetupTheRadioButtons(BooleanArray& RadioButton) {
    const Integer bound = narrow(RadioButton.UpperBound(), u"RadioButton's upper bound");
    for (Integer k = FirstSeat; k <= bound; ++k) {
        OptionButton& button = optPlayerSeatSelector.Item(k);
        button.put_Enabled(isTrue(RadioButton.At(k)));
    }
}

void PlayerButtons::optPlayerSeatSelector_Click(Integer& Index) {
    PlayerSeatSelected.raise(Index);
}

} // namespace zilvo
