#include "zilvo/seats/SpreadSeatButtons.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    method<&SpreadSeatButtons::AvailableSeatsAre>(0x60030001, u"AvailableSeatsAre", u"TableSeat"),
    property<&SpreadSeatButtons::get_NumberOfSeatsAllowed, &SpreadSeatButtons::put_NumberOfSeatsAllowed>(
        0x68030000, u"NumberOfSeatsAllowed", u"NumberOfSeats"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<1, &SpreadSeatButtons::TellMeWhichSeatsAreAvailable>(u"TellMeWhichSeatsAreAvailable"),
    event<2, &SpreadSeatButtons::SeatSpreadToWas>(
        u"SeatSpreadToWas", EventArgument(u"SelectedSeat", &descriptionOf(SeatSelectionPossibilities{}))),
};

} // namespace

constinit const ObjectDescription SpreadSeatButtons::Description{u"SpreadSeatButtons", members, events};

SpreadSeatButtons::SpreadSeatButtons(ComponentModule& module)
    : Control(module, {.Width = 1830, .Height = 2775, .ScaleMode = ScaleMode::Twips}) {}

void SpreadSeatButtons::Initialize() {
    put_NumberOfSeatsAllowed(SeatSelectionPossibilities::Seat7WasSelected);
}

void SpreadSeatButtons::AmbientChanged(StringView /*PropertyName*/) {
    UseAmbientColors();
}

void SpreadSeatButtons::AvailableSeatsAre(BooleanArray& TableSeat) {
    const auto alive = hold();
    SpreadSeatBoxes.Call(SeatCheckBoxesInterface::AvailableSeatsAre, Variant::to(TableSeat));
}

SeatSelectionPossibilities SpreadSeatButtons::get_NumberOfSeatsAllowed() {
    return convert<SeatSelectionPossibilities>(SpreadSeatBoxes.Get(SeatCheckBoxesInterface::NumberOfSeatsAllowed));
}

void SpreadSeatButtons::put_NumberOfSeatsAllowed(SeatSelectionPossibilities NumberOfSeats) {
    SpreadSeatBoxes.Put(SeatCheckBoxesInterface::NumberOfSeatsAllowed, toVariant(NumberOfSeats));
}

void SpreadSeatButtons::commandSpreadToSeats_Click() {
    if (SpreadSeatBoxes.get_Visible()) TellMeWhichSeatsAreAvailable.raise();
}

void SpreadSeatButtons::SpreadSeatBoxes_SeatSpreadToWas(Long& SelectedSeat) {
    SeatSpreadToWas.raise(SelectedSeat);
}

void SpreadSeatButtons::UseAmbientColors() {
    userControl.put_BackColor(userControl.get_Ambient().get_BackColor());
    userControl.put_ForeColor(userControl.get_Ambient().get_ForeColor());
}

} // namespace zilvo
