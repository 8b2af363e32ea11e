#include "zilvo/setup/DeckButtons.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    property<&DeckButtons::get_NumberOfDecks, &DeckButtons::put_NumberOfDecks>(0x68030001, u"NumberOfDecks",
                                                                               u"NewNumberOfDecks"),
    property<&DeckButtons::get_ObjectWidth, &DeckButtons::put_ObjectWidth>(0x68030000, u"ObjectWidth",
                                                                           u"NewObjectWidth"),
    method<&DeckButtons::ResetButtons>(0x60030006, u"ResetButtons"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<1, &DeckButtons::NumberOfDecksChanged>(u"NumberOfDecksChanged", u"theNumberOfDecks"),
};

// Twips, in the panel.
constexpr Single UpperRow = 275;
constexpr Single LowerRow = 560;

} // namespace

constinit const ObjectDescription DeckButtons::Description{u"DeckButtons", members, events};

DeckButtons::DeckButtons(ComponentModule& module)
    : Control(module, {.Width = 8115, .Height = 930, .ScaleMode = ScaleMode::Pixels}) {}

void DeckButtons::Initialize() {
    put_ObjectWidth(ObjectWidthPossibilities::WideObject);
    put_NumberOfDecks(1);
}

void DeckButtons::Resize() {
    panelDeckCount.put_Height(userControl.get_ScaleHeight());
    panelDeckCount.put_Width(userControl.get_ScaleWidth());
}

void DeckButtons::MouseDown(Integer Button, Integer /*Shift*/, Single /*X*/, Single /*Y*/) {
    if ((Button & input::RightButton) != 0) userControl.PopupMenu(menuDefaultMenu);
}

Integer DeckButtons::get_NumberOfDecks() {
    return storedNumberOfDecks;
}

void DeckButtons::put_NumberOfDecks(Integer NewNumberOfDecks) {
    switch (NewNumberOfDecks) {
    case 1:
    case 2:
    case 4:
    case 5:
    case 6:
    case 7:
    case 8:
    case 9:
    case 10:
    case 12:
        storedNumberOfDecks = NewNumberOfDecks;
        SelectTheDeckButton();
        break;
    case 0:
        ResetButtons();
        break;
    default:
        userControl.Beep();
        break;
    }
}

ObjectWidthPossibilities DeckButtons::get_ObjectWidth() {
    return static_cast<ObjectWidthPossibilities>(storedObjectWidth);
}

void DeckButtons::put_ObjectWidth(ObjectWidthPossibilities NewObjectWidth) {
    storedObjectWidth = static_cast<Long>(NewObjectWidth);
    ArrangeTheDeckButtons();
}

void DeckButtons::ResetButtons() {
    for (const Integer i : std::array<Integer, 8>{1, 2, 4, 5, 6, 8, 10, 12})
        optDeckCount.Item(i).put_Value(false);
}

void DeckButtons::optDeckCount_Click(Integer& Index) {
    put_NumberOfDecks(Index); // the button is selected already: no second click follows
    Integer theNumberOfDecks = Index;
    NumberOfDecksChanged.raise(theNumberOfDecks);
}

void DeckButtons::panelDeckCount_MouseDown(Integer& Button, Integer& Shift, Single& X, Single& Y) {
    MouseDown(Button, Shift, X, Y);
}

void DeckButtons::menuCasinoDefaults_Click(Integer& Index) {
    if (lastCasinoChecked != 0) menuCasinoDefaults.Item(lastCasinoChecked).put_Checked(false);
    switch (static_cast<CasinoDeckDefaults>(Index)) {
    case CasinoDeckDefaults::deckDefaultResetDecks:
        ResetButtons();
        break;
    case CasinoDeckDefaults::deckdefaultAtlanticCity:
        put_NumberOfDecks(8);
        break;
    case CasinoDeckDefaults::deckdefaultLasVegasStrip:
        put_NumberOfDecks(6);
        break;
    case CasinoDeckDefaults::deckdefaultLasVegasDowntown:
        put_NumberOfDecks(2);
        break;
    case CasinoDeckDefaults::deckdefaultReno:
        put_NumberOfDecks(1);
        break;
    case CasinoDeckDefaults::deckdefaultTahoe:
        put_NumberOfDecks(2);
        break;
    case CasinoDeckDefaults::deckdefaultLaughlin:
        put_NumberOfDecks(1);
        break;
    case CasinoDeckDefaults::deckdefaultRiverBoats:
        put_NumberOfDecks(6);
        break;
    case CasinoDeckDefaults::deckdefaultCruiseShips:
    case CasinoDeckDefaults::deckdefaultAustrailia:
        put_NumberOfDecks(8);
        break;
    case CasinoDeckDefaults::deckdefaultEurope:
        put_NumberOfDecks(6);
        break;
    }
    if (Index == 0) return;
    lastCasinoChecked = Index;
    menuCasinoDefaults.Item(Index).put_Checked(true);
}

void DeckButtons::SelectTheDeckButton() {
    optDeckCount.Item(storedNumberOfDecks).put_Value(true);
}

void DeckButtons::ArrangeTheDeckButtons() {
    switch (get_ObjectWidth()) {
    case ObjectWidthPossibilities::WideObject: {
        userControl.put_Width(8115);
        const auto placeGreyed = [this](Integer Index, Single Left) {
            place(Index, Left, LowerRow);
            optDeckCount.Item(Index).put_Enabled(false);
            optDeckCount.Item(Index).put_Visible(true);
        };
        place(1, 120, UpperRow);
        place(2, 1320, UpperRow);
        place(4, 2640, UpperRow);
        place(5, 3960, UpperRow);
        place(6, 5250, UpperRow);
        placeGreyed(7, 1320);
        place(8, 6600, UpperRow);
        placeGreyed(9, 2640);
        placeGreyed(10, 3960);
        placeGreyed(12, 5250);
        break;
    }
    case ObjectWidthPossibilities::NarrowObject:
        place(1, 1320, UpperRow);
        place(2, 2640, UpperRow);
        place(4, 3960, UpperRow);
        place(5, 1320, LowerRow);
        place(6, 2640, LowerRow);
        place(8, 3960, LowerRow);
        for (const Integer greyed : std::array<Integer, 4>{7, 9, 10, 12})
            optDeckCount.Item(greyed).put_Visible(false);
        panelDeckCount.put_Width(396); // pixels; stretched over the whole control by the next Resize
        break;
    }
}

void DeckButtons::place(Integer Index, Single Left, Single Top) {
    OptionButton& button = optDeckCount.Item(Index);
    button.put_Top(Top);
    button.put_Left(Left);
}

} // namespace zilvo
