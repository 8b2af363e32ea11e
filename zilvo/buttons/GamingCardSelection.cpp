#include "zilvo/buttons/GamingCardSelection.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    method<&GamingCardSelection::SelectThisButton>(0x60030003, u"SelectThisButton", u"ButtonToSelect"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<1, &GamingCardSelection::CardsToShoeClicked>(u"CardsToShoeClicked"),
    event<2, &GamingCardSelection::CardsToDiscardTrayClicked>(u"CardsToDiscardTrayClicked"),
    event<3, &GamingCardSelection::CardsToTableClicked>(u"CardsToTableClicked"),
    event<4, &GamingCardSelection::LoadCardsRequested>(u"LoadCardsRequested"),
};

} // namespace

constinit const ObjectDescription GamingCardSelection::Description{u"GamingCardSelection", members, events};

GamingCardSelection::GamingCardSelection(ComponentModule& module)
    : Control(module, {.Width = 2115, .Height = 1230, .ScaleMode = ScaleMode::Pixels}) {}

void GamingCardSelection::SelectThisButton(GameCardButtonPossibilities& ButtonToSelect) {
    GamingCardButtons.Item(narrow(static_cast<Long>(ButtonToSelect))).put_Value(true);
}

void GamingCardSelection::chkXButton_Click() {
    putMember(userControl.get_Extender(), u"Visible", false);
}

void GamingCardSelection::cmdLoadCards_Click() {
    LoadCardsRequested.raise();
}

void GamingCardSelection::GamingCardButtons_Click(Integer& Index, Integer& /*Value*/) {
    SSRibbon& button = GamingCardButtons.Item(Index);
    if (!button.get_Value()) return;
    switch (static_cast<GameCardButtonPossibilities>(Index)) {
    case GameCardButtonPossibilities::theCardsToDiscardTrayWasSelected:
        CardsToDiscardTrayClicked.raise();
        break;
    case GameCardButtonPossibilities::theCardsToTableAreaWasSelected:
        CardsToTableClicked.raise();
        break;
    case GameCardButtonPossibilities::theCardsToShoeWasSelected:
        CardsToShoeClicked.raise();
        break;
    default:
        return;
    }
    button.put_Outline(false); // the click that got here holds the control
}

} // namespace zilvo
