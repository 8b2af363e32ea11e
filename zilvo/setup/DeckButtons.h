#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/framework/Enumerations.h"
#include "zilvo/platform/widgets/ControlArray.h"
#include "zilvo/platform/widgets/Menu.h"
#include "zilvo/platform/widgets/OptionButton.h"
#include "zilvo/platform/widgets/SSPanel.h"

namespace zilvo {

/// The player sees the deck counts as option buttons on a captioned panel; the right button pops up a menu of casinos,
/// each of which selects the count that is usual there.
/// The host sets and reads NumberOfDecks, chooses a wide or narrow arrangement, and gets NumberOfDecksChanged whenever
/// another count becomes selected. Nothing is saved.
class DeckButtons final : public Control {
public:
    static const ObjectDescription Description;
    explicit DeckButtons(ComponentModule& module);

    /// The count selected last, 1 at first. Resetting the buttons does not change it.
    Integer get_NumberOfDecks();
    /// 0 resets the buttons; a count that there is no button for beeps and changes nothing.
    void put_NumberOfDecks(Integer NewNumberOfDecks);
    /// WideObject, at first: all ten counts, 7, 9, 10 and 12 greyed. NarrowObject: the other six in two rows.
    ObjectWidthPossibilities get_ObjectWidth();
    /// WideObject makes the control 8115 twips wide, NarrowObject leaves its width to the host. What is neither is
    /// stored, but arranges nothing.
    void put_ObjectWidth(ObjectWidthPossibilities NewObjectWidth);
    /// Deselects the buttons, except 7 and 9, without an event.
    void ResetButtons();

    /// Carries the count that became selected, by the player, by the menu or through NumberOfDecks.
    Event<Integer> NumberOfDecksChanged{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void Initialize() override;
    void Resize() override;
    void MouseDown(Integer Button, Integer Shift, Single X, Single Y) override;

    void optDeckCount_Click(Integer& Index);
    void panelDeckCount_MouseDown(Integer& Button, Integer& Shift, Single& X, Single& Y);
    void menuCasinoDefaults_Click(Integer& Index);

    void SelectTheDeckButton();
    void ArrangeTheDeckButtons();
    void place(Integer Index, Single Left, Single Top);

    Integer storedNumberOfDecks = 0;
    Long storedObjectWidth = 0;
    Integer lastCasinoChecked = 0; ///< index of the item with the check mark, 0 for none

    // clang-format off
    SSPanel panelDeckCount{userControl, {
        .Name = u"panelDeckCount", .Left = 0, .Top = 0, .Width = 8100, .Height = 930, .Caption = u"# of Decks",
        .CaptionDown = Alignment::Near, .BackColor = colours::LightGrey,
        .Font = {.Name = u"Arial", .Size = 9.75F, .Weight = 700}, .TabIndex = 0,
        .ToolTipText = u"Number of Decks in Play.  Greater than 2 decks denotes a \"Shoe\" game."},
        calls<&DeckButtons::panelDeckCount_MouseDown>(this)};

    static OptionButton::Design deckCount(Integer Index, const char16_t* Caption, Single Left, Single Top, bool Enabled,
                                          Integer TabIndex, const char16_t* ToolTipText) {
        return {.Name = u"optDeckCount", .Index = Index, .Left = Left, .Top = Top, .Width = 1050, .Height = 255,
                .Caption = Caption, .BackColor = colours::LightGrey,
                .Font = {.Name = u"Arial", .Size = 8.25F, .Weight = 700}, .Enabled = Enabled,
                .TabIndex = TabIndex, .ToolTipText = ToolTipText};
    }
    ControlArray<OptionButton, 10> optDeckCount{panelDeckCount, {
        deckCount( 1, u"&1 Deck",   120, 300, true,  1, u"Single-Deck - Handheld"),
        deckCount( 2, u"&2 Decks", 1320, 300, true,  2, u"Double-Deck - Handheld"),
        deckCount( 4, u"&4 Decks", 2640, 300, true,  3, u"4-Deck Shoe"),
        deckCount( 5, u"5 Decks",  3960, 300, true,  4, u"5-Deck (QuickDraw) Game."),
        deckCount( 6, u"&6 Decks", 5250, 300, true,  5, u"6-Deck Shoe"),
        deckCount( 8, u"&8 Decks", 6600, 300, true,  6, u"8-Deck Shoe"),
        deckCount(10, u"10 Decks", 3960, 600, false, 7, u"10-Deck Shoe - BAC Only"),
        deckCount(12, u"12 Decks", 5250, 600, false, 8, u"The old 6-Deck Dual-Shoe Game."),
        deckCount( 7, u"7 Decks",  1320, 600, false, 9, u"10-Deck Shoe - BAC Only"),
        deckCount( 9, u"&9 Decks", 2640, 600, false, 10, u"10-Deck Shoe - BAC Only")},
        calls<&DeckButtons::optDeckCount_Click>(this)};

    Menu menuDefaultMenu{userControl, {.Name = u"menuDefaultMenu", .Caption = u"DeckButton Defaults Menu"}};
    Menu menuLikelyDefaults{menuDefaultMenu, {.Name = u"menuLikelyDefaults", .Caption = u"Defaults (likely)"}};

    static Menu::Design casino(Integer Index, const char16_t* Caption) {
        return {.Name = u"menuCasinoDefaults", .Index = Index, .Caption = Caption};
    }
    ControlArray<Menu, 17> menuCasinoDefaults{menuLikelyDefaults, {
        casino( 0, u"Reset &Deck Buttons"),     casino( 1, u"-"),
        casino(10, u"&Atlantic City"),          casino(11, u"-"),
        casino(20, u"Las &Vegas Strip"),        casino(21, u"-"),
        casino(25, u"Las Vegas (Do&wntown)"),   casino(26, u"-"),
        casino(30, u"&Reno"),                   casino(31, u"-"),
        casino(40, u"Lake &Tahoe"),             casino(41, u"-"),
        casino(50, u"&Laughlin"),               casino(51, u"-"),
        casino(60, u"River&Boats"),             casino(61, u"-"),
        casino(70, u"&Cruise Ships")},
        calls<&DeckButtons::menuCasinoDefaults_Click>(this)};
    // clang-format on
};

} // namespace zilvo
