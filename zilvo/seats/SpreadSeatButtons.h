#pragma once

#include "zilvo/framework/EmbeddedControl.h"
#include "zilvo/framework/Enumerations.h"
#include "zilvo/platform/widgets/CommandButton.h"
#include "zilvo/platform/widgets/SSPanel.h"
#include "zilvo/seats/SeatCheckBoxesInterface.h"

namespace zilvo {

/// The player sees a Spread Seats button on a panel, above the seat check boxes.
/// The host is asked for the free seats (TellMeWhichSeatsAreAvailable) at every click of the button, answers with
/// AvailableSeatsAre, and gets SeatSpreadToWas from the boxes. Nothing is saved.
class SpreadSeatButtons final : public Control {
public:
    static const ObjectDescription Description;
    explicit SpreadSeatButtons(ComponentModule& module);

    /// As in SeatCheckBoxes.
    void AvailableSeatsAre(BooleanArray& TableSeat);
    /// As in SeatCheckBoxes.
    SeatSelectionPossibilities get_NumberOfSeatsAllowed();
    void put_NumberOfSeatsAllowed(SeatSelectionPossibilities NumberOfSeats);

    /// The button was clicked: the host answers with AvailableSeatsAre.
    Event<> TellMeWhichSeatsAreAvailable{*this};
    /// As in SeatCheckBoxes.
    Event<Long> SeatSpreadToWas{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void Initialize() override;
    void AmbientChanged(StringView PropertyName) override;

    void commandSpreadToSeats_Click();
    void SpreadSeatBoxes_SeatSpreadToWas(Long& SelectedSeat);

    void UseAmbientColors();

    // clang-format off
    EmbeddedControl SpreadSeatBoxes{*this, userControl, {
        .Name = u"SpreadSeatBoxes", .Class = SeatCheckBoxesInterface::ClassName,
        .Left = 0, .Top = 915, .Width = 1815, .Height = 1695, .TabIndex = 2, .ZOrder = 1},
        {handles<SeatCheckBoxesInterface::SeatSpreadToWas, &SpreadSeatButtons::SpreadSeatBoxes_SeatSpreadToWas>(this)}};

    SSPanel panelSpreadSeatButton{userControl, {
        .Name = u"panelSpreadSeatButton", .Left = 335, .Top = 0, .Width = 1140, .Height = 920,
        .Caption = u"Sitdown Button", .BackColor = {0x00A8B090}, .ForeColor = colours::ButtonText,
        .Font = {.Name = u"Comic Sans MS", .Size = 9.75F}, .TabIndex = 0,
        .ToolTipText = u"Use Alt-V+S to hide this button"}};

    CommandButton commandSpreadToSeats{panelSpreadSeatButton, {
        .Name = u"commandSpreadToSeats", .Left = 40, .Top = 60, .Width = 1050, .Height = 820,
        .Caption = u"Spread    Seats", .BackColor = colours::LightGrey, .Font = {.Name = u"Comic Sans MS", .Size = 12},
        .TabIndex = 1, .ToolTipText = u"   Click here to select a Seat  "},
        calls<&SpreadSeatButtons::commandSpreadToSeats_Click>(this)};
    // clang-format on
};

} // namespace zilvo
