#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/platform/widgets/ControlArray.h"
#include "zilvo/platform/widgets/OptionButton.h"
#include "zilvo/platform/widgets/SSPanel.h"

namespace zilvo {

/// The player sees a row of seven option buttons on a long panel, seat 1 at its right end.
/// The host enables the seats that may be picked, selects one itself if it likes, and gets PlayerSeatSelected for
/// every pick. Nothing is saved.
class PlayerButtons final : public Control {
public:
    static const ObjectDescription Description;
    explicit PlayerButtons(ComponentModule& module);

    /// Selects that seat's button, which raises PlayerSeatSelected unless it is selected already. What is no seat means
    /// seat 1.
    void SelectButton(Integer& WhichButton);
    /// Element k enables or disables button k, up to the array's upper bound; one beyond 7 fails with
    /// MissingElement.
    void SetupTheRadioButtons(BooleanArray& RadioButton);

    /// Carries the seat that became selected, by the player or by SelectButton.
    Event<Integer> PlayerSeatSelected{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void optPlayerSeatSelector_Click(Integer& Index);

    // clang-format off
    SSPanel panelPlayerSeatButtons{userControl, {
        .Name = u"panelPlayerSeatButtons", .Left = 0, .Top = 20, .Width = 11700, .Height = 615,
        .BackColor = colours::LightGrey, .TabIndex = 0}};

    /// The Tab order is the seat order.
    static OptionButton::Design seatButton(Integer Index, const char16_t* Caption, Single Left, Single Height,
                                           const FontDesign& Font) {
        return {.Name = u"optPlayerSeatSelector", .Index = Index, .Left = Left, .Top = 200, .Width = 1000,
                .Height = Height, .Caption = Caption, .BackColor = colours::LightGrey, .ForeColor = {0x0000FFFF},
                .Font = Font, .TabIndex = Index};
    }
    static constexpr FontDesign Large{.Name = u"MS Sans Serif", .Size = 9.75F, .Weight = 700};
    static constexpr FontDesign Default{};
    ControlArray<OptionButton, 7> optPlayerSeatSelector{panelPlayerSeatButtons, {
        seatButton(1, u"Seat &1", 10270, 240, Large),
        seatButton(2, u"Seat &2",  8400, 240, Large),
        seatButton(3, u"Seat &3",  6750, 195, Default),
        seatButton(4, u"Seat &4",  5030, 195, Default),
        seatButton(5, u"Seat &5",  3400, 195, Default),
        seatButton(6, u"Seat &6",  1820, 195, Default),
        seatButton(7, u"Seat &7",   250, 195, Default)},
        calls<&PlayerButtons::optPlayerSeatSelector_Click>(this)};
    // clang-format on
};

} // namespace zilvo
