#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/framework/Enumerations.h"
#include "zilvo/platform/widgets/CheckBox.h"
#include "zilvo/platform/widgets/ControlArray.h"
#include "zilvo/platform/widgets/OptionButton.h"
#include "zilvo/platform/widgets/SSFrame.h"

namespace zilvo {

/// The player sees the table's seats as ten numbered check boxes in the shape of the table's arc, in a "Spread To"
/// frame, the player's own seat covered by a numbered marker.
/// The host says which seats are free and gets SeatSpreadToWas for every tick (k) and untick (-k). Nothing is saved.
class SeatCheckBoxes final : public Control {
public:
    static const ObjectDescription Description;
    explicit SeatCheckBoxes(ComponentModule& module);

    /// Element k says whether seat k is free; the upper bound is the number of seats. Element 0 is never read.
    /// The boxes of these seats are shown and unticked, a ticked one with its event. A table of eight to ten seats has
    /// one drawback: a loaded control is laid out for seven, so that boxes 9 and 10 are shown and enabled below the
    /// frame's edge, where neither the player's pointer nor his eye reaches them; Tab does, and a new control, which
    /// keeps the taller frame, shows all ten. An array with more elements than ten fails with MissingElement.
    void AvailableSeatsAre(BooleanArray& TableSeat);
    /// Places the marker over the player's own seat; a value that is no seat hides it.
    void MySeatIS(SeatSpreadPossibilities MySeatISValue);
    /// The number of seats: 7 at first, then as AvailableSeatsAre says. Setting it neither shows nor hides a seat.
    SeatSelectionPossibilities get_NumberOfSeatsAllowed();
    void put_NumberOfSeatsAllowed(SeatSelectionPossibilities NumberOfSeats);

    /// Carries k when box k was ticked and -k when it was unticked, by the player or by AvailableSeatsAre.
    Event<Long> SeatSpreadToWas{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void Initialize() override;
    void ReadProperties(const PropertyBag& PropBag) override;

    void checkSeatSelected_Click(Integer& Index);

    void ArrangeTheSeatBoxes();
    void UseAmbientColors();

    Long storedNumberOfSeatsAllowed = 0;

    // clang-format off
    OptionButton buttonSeatOwner{userControl, {
        .Name = u"buttonSeatOwner", .Left = 720, .Top = 480, .Width = 380, .Height = 240, .Caption = u"?", .Value = true,
        .Font = {.Name = u"Comic Sans MS", .Size = 8.25F, .Weight = 700}, .Visible = false, .TabIndex = 11, .ZOrder = 1}};

    SSFrame frameSeatSpread{userControl, {
        .Name = u"frameSeatSpread", .Left = 0, .Top = 0, .Width = 1780, .Height = 1700, .Caption = u"Spread To",
        .Font = {.Name = u"Comic Sans MS", .Size = 9.75F}, .TabIndex = 0}};

    static CheckBox::Design seatBox(Integer Index, const char16_t* Caption, Single Left, Single Top, Single Width,
                                    look::MarkSide Mark, Integer TabIndex) {
        return {.Name = u"checkSeatSelected", .Index = Index, .Left = Left, .Top = Top, .Width = Width, .Height = 195,
                .Caption = Caption, .Mark = Mark, .Transparent = true, .Enabled = false, .TabIndex = TabIndex};
    }
    ControlArray<CheckBox, 10> checkSeatSelected{frameSeatSpread, {
        seatBox( 1, u"1",  1300,  360, 375, look::MarkSide::Right, 10),
        seatBox( 2, u"2",  1200,  620, 375, look::MarkSide::Right,  1),
        seatBox( 3, u"3",  1100,  880, 375, look::MarkSide::Right,  2),
        seatBox( 4, u"4",   660, 1100, 375, look::MarkSide::Right,  3),
        seatBox( 5, u"5",   310,  880, 375, look::MarkSide::Left,   4),
        seatBox( 6, u"6",   210,  620, 375, look::MarkSide::Left,   5),
        seatBox( 7, u"7",   110,  360, 375, look::MarkSide::Left,   6),
        seatBox( 8, u"8",  1000, 1140, 375, look::MarkSide::Right,  8),
        seatBox( 9, u"9",   150, 1400, 375, look::MarkSide::Left,   7),
        seatBox(10, u"10", 1100, 1400, 495, look::MarkSide::Right,  9)},
        calls<&SeatCheckBoxes::checkSeatSelected_Click>(this)};
    // clang-format on
};

} // namespace zilvo
