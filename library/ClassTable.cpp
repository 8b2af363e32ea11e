#include "library/ZilvoButtons.h"

namespace zilvo {

namespace {

template <class T>
Ref<Object> creator(ComponentModule& module) {
    return createObject<T>(module);
}

/// Every class of the library, with its identity, what it publishes and how it is made; in published order.
constinit const std::array classes = {
    ClassEntry{identityOf(u"GamingCardSelection"), GamingCardSelection::Description, creator<GamingCardSelection>},
    ClassEntry{identityOf(u"ssOKCancel"), ssOKCancel::Description, creator<ssOKCancel>},
    ClassEntry{identityOf(u"StartStopButtons"), StartStopButtons::Description, creator<StartStopButtons>},
    ClassEntry{identityOf(u"PlayerButtons"), PlayerButtons::Description, creator<PlayerButtons>},
    ClassEntry{identityOf(u"CardShufflingOptions"), CardShufflingOptions::Description, creator<CardShufflingOptions>},
    ClassEntry{identityOf(u"PlusMinusButton"), PlusMinusButton::Description, creator<PlusMinusButton>},
    ClassEntry{identityOf(u"LetterButton"), LetterButton::Description, creator<LetterButton>},
    ClassEntry{identityOf(u"SpreadSeatButtons"), SpreadSeatButtons::Description, creator<SpreadSeatButtons>},
    ClassEntry{identityOf(u"paneledGOButton"), paneledGOButton::Description, creator<paneledGOButton>},
    ClassEntry{identityOf(u"GOButton"), GOButton::Description, creator<GOButton>},
    ClassEntry{identityOf(u"SitDownButton"), SitDownButton::Description, creator<SitDownButton>},
    ClassEntry{identityOf(u"SeatCheckBoxes"), SeatCheckBoxes::Description, creator<SeatCheckBoxes>},
    ClassEntry{identityOf(u"ZilvoButtonGoodies"), ZilvoButtonGoodies::Description, creator<ZilvoButtonGoodies>},
    ClassEntry{identityOf(u"paneledSeatBoxes"), paneledSeatBoxes::Description, creator<paneledSeatBoxes>},
    ClassEntry{identityOf(u"SpinCounter"), SpinCounter::Description, creator<SpinCounter>},
    ClassEntry{identityOf(u"DeckButtons"), DeckButtons::Description, creator<DeckButtons>},
    ClassEntry{identityOf(u"SwitchCardsButton"), SwitchCardsButton::Description, creator<SwitchCardsButton>},
    ClassEntry{identityOf(u"verticalOK"), verticalOK::Description, creator<verticalOK>},
};

constinit const ComponentDescription description{libraryIdentity, enumerations, classes};

} // namespace

ComponentModule& libraryModule() noexcept {
    static constinit ComponentModule module(description);
    return module;
}

} // namespace zilvo
