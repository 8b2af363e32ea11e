#pragma once

#include "zilvo/framework/EmbeddedControl.h"
#include "zilvo/framework/Enumerations.h"
#include "zilvo/platform/widgets/CommandButton.h"
#include "zilvo/platform/widgets/SSPanel.h"
#include "zilvo/seats/SeatCheckBoxesInterface.h"

namespace zilvo {

/// The player sees the seat check boxes on a raised panel, with a Done button in the open middle of their arc.
/// The host speaks to the boxes through this control's own seat members and gets SeatSpreadToWas from them, and
/// DoneButtonWasClicked. Whether the Done button is shown is saved.
class paneledSeatBoxes final : public Control {
public:
    static const ObjectDescription Description;
    explicit paneledSeatBoxes(ComponentModule& module);

    /// As in SeatCheckBoxes.
    void AvailableSeatsAre(BooleanArray& TableSeat);
    bool get_DoneButtonIsVisible();
    void put_DoneButtonIsVisible(bool Visibility);
    /// As in SeatCheckBoxes.
    void MySeatIS(SeatSpreadPossibilities MySeatISValue);
    /// As in SeatCheckBoxes.
    SeatSelectionPossibilities get_NumberOfSeatsAllowed();
    void put_NumberOfSeatsAllowed(SeatSelectionPossibilities NumberOfSeats);

    /// The boxes stay as they are.
    Event<> DoneButtonWasClicked{*this};
    /// As in SeatCheckBoxes.
    Event<Long> SeatSpreadToWas{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void ReadProperties(const PropertyBag& PropBag) override;
    void WriteProperties(PropertyBag& PropBag) override;

    void commandDoneButton_Click();
    void SpreadSeatBoxes_SeatSpreadToWas(Long& SelectedSeat);

    // clang-format off
    SSPanel panelSpreadTO{userControl, {
        .Name = u"panelSpreadTO", .Left = 0, .Top = 0, .Width = 2080, .Height = 1635,
        .BackColor = colours::LightGrey, .TabIndex = 0}};

    CommandButton commandDoneButton{panelSpreadTO, {
        .Name = u"commandDoneButton", .Left = 700, .Top = 480, .Width = 735, .Height = 255, .Caption = u"Done",
        .TabIndex = 2, .ZOrder = 1},
        calls<&paneledSeatBoxes::commandDoneButton_Click>(this)};

    EmbeddedControl SpreadSeatBoxes{*this, panelSpreadTO, {
        .Name = u"SpreadSeatBoxes", .Class = SeatCheckBoxesInterface::ClassName,
        .Left = 150, .Top = 120, .Width = 1800, .Height = 1400, .TabIndex = 1},
        {handles<SeatCheckBoxesInterface::SeatSpreadToWas, &paneledSeatBoxes::SpreadSeatBoxes_SeatSpreadToWas>(this)}};
    // clang-format on
};

} // namespace zilvo
