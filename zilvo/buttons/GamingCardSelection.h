#pragma once

#include "zilvo/buttons/Pictures.h"
#include "zilvo/framework/Control.h"
#include "zilvo/framework/Enumerations.h"
#include "zilvo/platform/widgets/CommandButton.h"
#include "zilvo/platform/widgets/ControlArray.h"
#include "zilvo/platform/widgets/SSCheck.h"
#include "zilvo/platform/widgets/SSPanel.h"
#include "zilvo/platform/widgets/SSRibbon.h"

namespace zilvo {

/// The player sees three picture buttons for where dealt cards go (discard tray, table, shoe) and two close boxes.
/// The host gets the event of the button that was pressed and presses one from code; the close boxes hide the control,
/// and "Load Cards" with its LoadCardsRequested stays hidden. Nothing is saved.
class GamingCardSelection final : public Control {
public:
    static const ObjectDescription Description;
    explicit GamingCardSelection(ComponentModule& module);

    /// Presses the button without an event. What is no button fails with MissingElement, what is no Integer with
    /// Overflow.
    void SelectThisButton(GameCardButtonPossibilities& ButtonToSelect);

    /// The player pressed the shoe's button. A second click releases it and raises nothing.
    Event<> CardsToShoeClicked{*this};
    /// The same for the discard tray's button.
    Event<> CardsToDiscardTrayClicked{*this};
    /// The same for the table's button.
    Event<> CardsToTableClicked{*this};
    /// A click on Load Cards, which stays hidden.
    Event<> LoadCardsRequested{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void chkXButton_Click();
    void cmdLoadCards_Click();
    void GamingCardButtons_Click(Integer& Index, Integer& Value);

    // clang-format off
    static SSCheck::Design closeBox(Integer Index, Single Left, Integer TabIndex, const char16_t* Spoken) {
        return {.Name = u"chkXButton", .Index = Index, .Left = Left, .Top = 15, .Width = 195, .Height = 195,
                .TabIndex = TabIndex, .Spoken = Spoken, .ZOrder = 1};
    }
    ControlArray<SSCheck, 2> chkXButton{userControl, {
        closeBox(1,   15, 5, u"Close, on the left"),
        closeBox(0, 1935, 4, u"Close, on the right")},
        calls<&GamingCardSelection::chkXButton_Click>(this)};

    CommandButton cmdLoadCards{userControl, {
        .Name = u"cmdLoadCards", .Left = 480, .Top = 735, .Width = 1215, .Height = 495, .Caption = u"Load Cards",
        .Font = {.Name = u"Comic Sans MS", .Size = 9.75F, .Weight = 700, .Italic = true},
        .Visible = false, .TabIndex = 6},
        calls<&GamingCardSelection::cmdLoadCards_Click>(this)};

    SSPanel SSPanel1{userControl, {
        .Name = u"SSPanel1", .Left = 105, .Top = 0, .Width = 1950, .Height = 735,
        .BackColor = {0x00A8B090}, .TabIndex = 0}};

    static SSRibbon::Design cardButton(Integer Index, Single Left, const Bitmap& Up, const Bitmap& Down,
                                      const char16_t* Spoken) {
        return {.Name = u"GamingCardButtons", .Index = Index, .Left = Left, .Top = 120, .Width = 510, .Height = 510,
                .PictureUp = &Up, .PictureDown = &Down, .BackColor = {0x00A8B090}, .TabIndex = Index, .Spoken = Spoken};
    }
    /// The indexes are the destinations.
    ControlArray<SSRibbon, 3> GamingCardButtons{SSPanel1, {
        cardButton(1,  120, discardTrayPicture(Ground::White), discardTrayPicture(Ground::Yellow), u"Discard tray"),
        cardButton(2,  720, tablePicture(Ground::White), tablePicture(Ground::Yellow), u"Table"),
        cardButton(3, 1320, shoePicture(Ground::White), shoePicture(Ground::Yellow), u"Shoe")},
        calls<&GamingCardSelection::GamingCardButtons_Click>(this)};
    // clang-format on
};

} // namespace zilvo
