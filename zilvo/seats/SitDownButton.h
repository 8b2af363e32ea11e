#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/framework/Enumerations.h"
#include "zilvo/platform/widgets/CommandButton.h"
#include "zilvo/platform/widgets/ControlArray.h"
#include "zilvo/platform/widgets/SSFrame.h"
#include "zilvo/platform/widgets/SSOption.h"
#include "zilvo/platform/widgets/SSPanel.h"

namespace zilvo {

/// The player sees a large Sit Down button that opens and closes a frame of ten numbered seats; a click on a seat
/// takes it and closes the frame.
/// The host is asked for the free seats when the frame opens and gets SeatSelectedWas. Nothing is saved.
class SitDownButton final : public Control {
public:
    static const ObjectDescription Description;
    explicit SitDownButton(ComponentModule& module);

    /// Element k says whether seat k is free; the upper bound is the number of seats. Element 0 is never read. A table
    /// of eight to ten seats needs a new control: a loaded one hides seats 8 to 10, enabled or not. An array with more
    /// elements than ten fails with MissingElement.
    void AvailableSeatsAre(BooleanArray& TableSeat);
    /// The number of seats: 7 at first, then as AvailableSeatsAre says. Setting it neither shows nor hides a seat.
    SeatSelectionPossibilities get_NumberOfSeatsAllowed();
    void put_NumberOfSeatsAllowed(SeatSelectionPossibilities NumberOfSeats);

    /// A click on the large button, after the frame has opened or closed.
    Event<> SitdownButtonWasClicked{*this};
    /// The frame has opened: the host answers with AvailableSeatsAre.
    Event<> TellMeWhichSeatsAreAvailable{*this};
    /// Carries the seat that the player took, after the frame has closed.
    Event<Long> SeatSelectedWas{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void Initialize() override;
    void ReadProperties(const PropertyBag& PropBag) override;
    void AmbientChanged(StringView PropertyName) override;

    void cmdSitDown_Click();
    void optSeatSelected_Click(Integer& Index, Integer& Value);

    void ToggleTheSeatSelector();
    void ArrangeTheSeatOptions();
    void UseAmbientColors();

    Long storedNumberOfSeatsAllowed = 0;

    // clang-format off
    SSPanel panelSitdown{userControl, {
        .Name = u"panelSitdown", .Left = 80, .Top = 0, .Width = 1160, .Height = 920, .Caption = u"Sitdown Button",
        .BackColor = {0x00A8B090}, .ForeColor = colours::ButtonText, .Font = {.Name = u"Comic Sans MS", .Size = 9.75F},
        .TabIndex = 11, .ToolTipText = u"Use Alt-V+S to hide this button", .ZOrder = 1}};

    CommandButton cmdSitDown{panelSitdown, {
        .Name = u"cmdSitDown", .Left = 40, .Top = 40, .Width = 1060, .Height = 820, .Caption = u" Sit Down",
        .BackColor = colours::LightGrey, .Font = {.Name = u"Comic Sans MS", .Size = 12},
        .TabIndex = 12, .ToolTipText = u"   Click here to select a Seat  "},
        calls<&SitDownButton::cmdSitDown_Click>(this)};

    SSFrame frameSeatSelector{userControl, {
        .Name = u"frameSeatSelector", .Left = 0, .Top = 900, .Width = 1260, .Height = 1700, .Caption = u"Select Seat",
        .Font = {.Name = u"Comic Sans MS", .Size = 9.75F}, .TabIndex = 0}};

    /// The Tab order is the seat order.
    static SSOption::Design seatOption(Integer Index, const char16_t* Caption, Single Left, Single Top, Single Width,
                                       look::MarkSide Mark, const char16_t* ToolTipText) {
        return {.Name = u"optSeatSelected", .Index = Index, .Left = Left, .Top = Top, .Width = Width, .Height = 180,
                .Caption = Caption, .Mark = Mark, .Transparent = true, .Font = {.Name = u"Comic Sans MS", .Size = 9},
                .TabIndex = Index, .ToolTipText = ToolTipText};
    }
    ControlArray<SSOption, 10> optSeatSelected{frameSeatSelector, {
        seatOption( 1, u"&1",  730,  360, 375, look::MarkSide::Right, u"Sit-down at Seat 1"),
        seatOption( 2, u"&2",  730,  620, 375, look::MarkSide::Right, u"Sit-down at Seat 2"),
        seatOption( 3, u"&3",  730,  880, 375, look::MarkSide::Right, u"Sit-down at Seat 3"),
        seatOption( 4, u"&4",  380, 1140, 375, look::MarkSide::Right, u"Sit-down at Seat 4"),
        seatOption( 5, u"&5",  150,  880, 375, look::MarkSide::Left,  u"Sit-down at Seat 5"),
        seatOption( 6, u"&6",  150,  620, 375, look::MarkSide::Left,  u"Sit-down at Seat 6"),
        seatOption( 7, u"&7",  150,  360, 375, look::MarkSide::Left,  u"Sit-down at Seat 7"),
        seatOption( 8, u"&8",  730, 1140, 375, look::MarkSide::Right, u"Sit-down at Seat 8"),
        seatOption( 9, u"&9",  150, 1400, 375, look::MarkSide::Left,  u"Sit-down at Seat 9"),
        seatOption(10, u"1&0", 630, 1400, 495, look::MarkSide::Right, u"Sit-down at Seat 10")},
        calls<&SitDownButton::optSeatSelected_Click>(this)};
    // clang-format on
};

} // namespace zilvo
