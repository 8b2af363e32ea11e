#include "zilvo/seats/SeatCheckBoxes.h"

#include "zilvo/seats/SeatCheckBoxesInterface.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    method<&SeatCheckBoxes::AvailableSeatsAre>(SeatCheckBoxesInterface::AvailableSeatsAre, u"AvailableSeatsAre",
                                               u"TableSeat"),
    method<&SeatCheckBoxes::MySeatIS>(SeatCheckBoxesInterface::MySeatIS, u"MySeatIS", u"MySeatISValue"),
    property<&SeatCheckBoxes::get_NumberOfSeatsAllowed, &SeatCheckBoxes::put_NumberOfSeatsAllowed>(
        SeatCheckBoxesInterface::NumberOfSeatsAllowed, u"NumberOfSeatsAllowed", u"NumberOfSeats"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<SeatCheckBoxesInterface::SeatSpreadToWas, &SeatCheckBoxes::SeatSpreadToWas>(
        u"SeatSpreadToWas", EventArgument(u"SelectedSeat", &descriptionOf(SeatSelectionPossibilities{}))),
};

constexpr Integer MostSeats = 10;

} // namespace

constinit const ObjectDescription SeatCheckBoxes::Description{SeatCheckBoxesInterface::ClassName, members, events};

SeatCheckBoxes::SeatCheckBoxes(ComponentModule& module)
    : Control(module, {.Width = 1800, .Height = 1740, .ScaleMode = ScaleMode::Twips}) {}

void SeatCheckBoxes::Initialize() {
    put_NumberOfSeatsAllowed(SeatSelectionPossibilities::Seat7WasSelected);
}

void SeatCheckBoxes::ReadProperties(const PropertyBag& /*PropBag*/) {
    ArrangeTheSeatBoxes();
}

void SeatCheckBoxes::AvailableSeatsAre(BooleanArray& TableSeat) {
    const auto alive = hold();
    storedNumberOfSeatsAllowed = TableSeat.UpperBound();
    const Integer bound = narrow(storedNumberOfSeatsAllowed, u"TableSeat's upper bound");
    for (Integer k = 1; k <= bound; ++k) {
        CheckBox& box = checkSeatSelected.Item(k);
        box.put_Value(CheckBox::Unchecked); // a box that was ticked reports -k now
        box.put_Enabled(isTrue(TableSeat.At(k)));
        box.put_Visible(true);
    }
}

void SeatCheckBoxes::MySeatIS(SeatSpreadPossibilities MySeatISValue) {
    const auto k = static_cast<Long>(MySeatISValue);
    Single shift = 0;
    switch (k) {
    case 1:
    case 2:
    case 3:
    case 4:
    case 8:
    case 10:
        shift = 40;
        break; // the square is on the right
    case 5:
    case 6:
    case 7:
    case 9:
        break;
    default:
        buttonSeatOwner.put_Visible(false);
        return;
    }
    CheckBox& box = checkSeatSelected.Item(narrow(k));
    const Integer left = roundToInteger(box.get_Left() + shift);
    const Integer top = roundToInteger(box.get_Top());
    buttonSeatOwner.put_Caption(toString(Variant(k)));
    buttonSeatOwner.put_Left(left);
    buttonSeatOwner.put_Top(top);
    buttonSeatOwner.put_Visible(true);
}

SeatSelectionPossibilities SeatCheckBoxes::get_NumberOfSeatsAllowed() {
    return static_cast<SeatSelectionPossibilities>(storedNumberOfSeatsAllowed);
}

void SeatCheckBoxes::put_NumberOfSeatsAllowed(SeatSelectionPossibilities NumberOfSeats) {
    storedNumberOfSeatsAllowed = static_cast<Long>(NumberOfSeats);
}

void SeatCheckBoxes::checkSeatSelected_Click(Integer& Index) {
    Long k = Index;
    if (checkSeatSelected.Item(Index).get_Value() == CheckBox::Unchecked) k = -k;
    SeatSpreadToWas.raise(k);
}

void SeatCheckBoxes::ArrangeTheSeatBoxes() {
    frameSeatSpread.put_Height(1400);
    userControl.put_Height(2385);
    const Integer n = narrow(static_cast<Long>(get_NumberOfSeatsAllowed()));
    Integer k = 1;
    for (; k <= n; ++k) // more than ten fail at the missing box
        checkSeatSelected.Item(k).put_Visible(true);
    for (; k <= MostSeats; ++k)
        checkSeatSelected.Item(k).put_Visible(false);
    UseAmbientColors();
}

void SeatCheckBoxes::UseAmbientColors() {
    userControl.put_BackColor(userControl.get_Ambient().get_BackColor());
    userControl.put_ForeColor(userControl.get_Ambient().get_ForeColor());
}

} // namespace zilvo
