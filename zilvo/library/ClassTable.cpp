#include "zilvo/library/ToolboxPictures.h"
#include "zilvo/library/ZilvoButtons.h"

namespace zilvo {

namespace {

template <class T>
Ref<Object> creator(ComponentModule& module) {
    return createObject<T>(module);
}

/// Joins each class with its identity, which stands at the same place of the identity table, and its picture.
template <class... T>
consteval std::array<ClassEntry, sizeof...(T)> classTable() {
    static_assert(sizeof...(T) == classIdentities.size());
    std::size_t at = 0;
    const auto next = [&]() -> const ClassIdentity& { return classIdentities[at++]; };
    const auto entry = [](const ClassIdentity& identity, const ObjectDescription& description, auto* create) {
        return ClassEntry{identity, description, create, toolboxPictureOf(identity)};
    };
    return {entry(next(), T::Description, creator<T>)...}; // braces: from left to right
}

/// Every class of the library, in published order.
constexpr auto classes =
    classTable<GamingCardSelection, ssOKCancel, StartStopButtons, PlayerButtons, CardShufflingOptions, PlusMinusButton,
               LetterButton, SpreadSeatButtons, paneledGOButton, GOButton, SitDownButton, SeatCheckBoxes,
               ZilvoButtonGoodies, paneledSeatBoxes, SwitchCardsButton, SpinCounter, DeckButtons, verticalOK>();

constexpr ComponentDescription description{libraryIdentity, versionRecord, enumerations, classes};

} // namespace

ComponentModule& libraryModule() noexcept {
    static constinit ComponentModule module(description);
    return module;
}

} // namespace zilvo
