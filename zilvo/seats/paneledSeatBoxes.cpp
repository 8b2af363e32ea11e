#include "zilvo/seats/paneledSeatBoxes.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    method<&paneledSeatBoxes::AvailableSeatsAre>(0x60030002, u"AvailableSeatsAre", u"TableSeat"),
    property<&paneledSeatBoxes::get_DoneButtonIsVisible, &paneledSeatBoxes::put_DoneButtonIsVisible>(
        0x68030001, u"DoneButtonIsVisible", u"Visibility"),
    method<&paneledSeatBoxes::MySeatIS>(0x60030004, u"MySeatIS", u"MySeatISValue"),
    property<&paneledSeatBoxes::get_NumberOfSeatsAllowed, &paneledSeatBoxes::put_NumberOfSeatsAllowed>(
        0x68030000, u"NumberOfSeatsAllowed", u"NumberOfSeats"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<1, &paneledSeatBoxes::DoneButtonWasClicked>(u"DoneButtonWasClicked"),
    event<2, &paneledSeatBoxes::SeatSpreadToWas>(
        u"SeatSpreadToWas", EventArgument(u"SelectedSeat", &descriptionOf(SeatSelectionPossibilities{}))),
};

} // namespace

constinit const ObjectDescription paneledSeatBoxes::Description{u"paneledSeatBoxes", members, events};

paneledSeatBoxes::paneledSeatBoxes(ComponentModule& module)
    : Control(module, {.Width = 2085, .Height = 1635, .ScaleMode = ScaleMode::Twips}) {}

void paneledSeatBoxes::ReadProperties(const PropertyBag& PropBag) {
    put_DoneButtonIsVisible(PropBag.ReadProperty<bool>(u"DoneButtonIsVisible", true));
}

void paneledSeatBoxes::WriteProperties(PropertyBag& PropBag) {
    PropBag.WriteProperty(u"DoneButtonIsVisible", get_DoneButtonIsVisible(), true);
}

void paneledSeatBoxes::AvailableSeatsAre(BooleanArray& TableSeat) {
    const auto alive = hold();
    SpreadSeatBoxes.Call(SeatCheckBoxesInterface::AvailableSeatsAre, Variant::to(TableSeat));
}

bool paneledSeatBoxes::get_DoneButtonIsVisible() {
    return commandDoneButton.get_Visible();
}

void paneledSeatBoxes::put_DoneButtonIsVisible(bool Visibility) {
    commandDoneButton.put_Visible(Visibility);
}

void paneledSeatBoxes::MySeatIS(SeatSpreadPossibilities MySeatISValue) {
    SpreadSeatBoxes.Call(SeatCheckBoxesInterface::MySeatIS, toVariant(MySeatISValue));
}

SeatSelectionPossibilities paneledSeatBoxes::get_NumberOfSeatsAllowed() {
    return convert<SeatSelectionPossibilities>(SpreadSeatBoxes.Get(SeatCheckBoxesInterface::NumberOfSeatsAllowed));
}

void paneledSeatBoxes::put_NumberOfSeatsAllowed(SeatSelectionPossibilities NumberOfSeats) {
    SpreadSeatBoxes.Put(SeatCheckBoxesInterface::NumberOfSeatsAllowed, toVariant(NumberOfSeats));
}

void paneledSeatBoxes::commandDoneButton_Click() {
    DoneButtonWasClicked.raise();
}

void paneledSeatBoxes::SpreadSeatBoxes_SeatSpreadToWas(Long& SelectedSeat) {
    SeatSpreadToWas.raise(SelectedSeat);
}

} // namespace zilvo
