#include "zilvo/seats/SitDownButton.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    method<&SitDownButton::AvailableSeatsAre>(0x60030001, u"AvailableSeatsAre", u"TableSeat"),
    property<&SitDownButton::get_NumberOfSeatsAllowed, &SitDownButton::put_NumberOfSeatsAllowed>(
        0x68030000, u"NumberOfSeatsAllowed", u"NumberOfSeats"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<1, &SitDownButton::SitdownButtonWasClicked>(u"SitdownButtonWasClicked"),
    event<2, &SitDownButton::TellMeWhichSeatsAreAvailable>(u"TellMeWhichSeatsAreAvailable"),
    event<3, &SitDownButton::SeatSelectedWas>(
        u"SeatSelectedWas", EventArgument(u"SelectedSeat", &descriptionOf(SeatSelectionPossibilities{}))),
};

constexpr Integer MostSeats = 10;

} // namespace

constinit const ObjectDescription SitDownButton::Description{u"SitDownButton", members, events};

SitDownButton::SitDownButton(ComponentModule& module)
    : Control(module, {.Width = 1320, .Height = 2625, .ScaleMode = ScaleMode::Twips}) {}

void SitDownButton::Initialize() {
    put_NumberOfSeatsAllowed(SeatSelectionPossibilities::Seat7WasSelected);
    frameSeatSelector.put_Visible(false);
}

void SitDownButton::ReadProperties(const PropertyBag& /*PropBag*/) {
    ArrangeTheSeatOptions();
}

void SitDownButton::AmbientChanged(StringView /*PropertyName*/) {
    UseAmbientColors();
}

void SitDownButton::AvailableSeatsAre(BooleanArray& TableSeat) {
    storedNumberOfSeatsAllowed = TableSeat.UpperBound();
    const Integer bound = narrow(storedNumberOfSeatsAllowed, u"TableSeat's upper bound");
    for (Integer k = 1; k <= bound; ++k) {
        SSOption& option = optSeatSelected.Item(k);
        option.put_Value(false);
        option.put_Enabled(isTrue(TableSeat.At(k)));
    }
}

SeatSelectionPossibilities SitDownButton::get_NumberOfSeatsAllowed() {
    return static_cast<SeatSelectionPossibilities>(storedNumberOfSeatsAllowed);
}

void SitDownButton::put_NumberOfSeatsAllowed(SeatSelectionPossibilities NumberOfSeats) {
    storedNumberOfSeatsAllowed = static_cast<Long>(NumberOfSeats);
}

void SitDownButton::cmdSitDown_Click() {
    ToggleTheSeatSelector();
    SitdownButtonWasClicked.raise();
    if (frameSeatSelector.get_Visible()) TellMeWhichSeatsAreAvailable.raise();
}

void SitDownButton::optSeatSelected_Click(Integer& Index, Integer& /*Value*/) {
    ToggleTheSeatSelector();
    Long k = Index;
    SeatSelectedWas.raise(k);
}

void SitDownButton::ToggleTheSeatSelector() {
    frameSeatSelector.put_Visible(!frameSeatSelector.get_Visible());
}

void SitDownButton::ArrangeTheSeatOptions() {
    if (!userControl.get_Ambient().get_UserMode()) frameSeatSelector.put_Visible(false);
    frameSeatSelector.put_Height(1400);
    userControl.put_Height(2385);
    const Integer n = narrow(static_cast<Long>(get_NumberOfSeatsAllowed()));
    for (Integer k = 1; k <= n; ++k) // what is no count of seats fails at the missing option, here or below
        optSeatSelected.Item(k).put_Visible(true);
    for (Integer k = narrow(n + 1); k <= MostSeats; ++k)
        optSeatSelected.Item(k).put_Visible(false);
    UseAmbientColors();
}

void SitDownButton::UseAmbientColors() {
    userControl.put_BackColor(userControl.get_Ambient().get_BackColor());
    userControl.put_ForeColor(userControl.get_Ambient().get_ForeColor());
}

} // namespace zilvo
