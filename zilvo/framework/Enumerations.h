#pragma once

#include "zilvo/framework/Platform.h"

namespace zilvo {

/// The ten published enumerations. Their spellings, breaks of pattern included, are those of the published interface;
/// every property or argument of such a type accepts any 32-bit value.

enum class GameCardButtonPossibilities : Long {
    theCardsToDiscardTrayWasSelected = 1,
    theCardsToTableAreaWasSelected = 2,
    theCardsToShoeWasSelected = 3,
};

enum class GenericCardShufflePossibilities : Long {
    noGenericCardShuffle = 0,
    StripShuffleGeneric = 1,
    StraightThruGeneric = 2,
    SMBoxShuffleGeneric = 3,
    RandomShuffleGeneric = 4,
};

enum class PlusMinusPossibilities : Long {
    aPlusButton = 2,
    aMinusButton = 3,
};

/// The values are the forms of the Shape widget.
enum class GOButtonShapePossibilities : Long {
    GOButtonIsARectangle = 0,
    GOButtonIsSquare = 1,
    GOButtonIsAnOval = 2,
    GOButtonIsACircle = 3,
    GOButtonIsARoundedRectangle = 4,
    GOButtonIsARoundedSquare = 5,
};

/// A seat number, or 0 for none.
enum class SeatSelectionPossibilities : Long {
    noSeatWasSelected = 0,
    Seat1WasSelected = 1,
    Seat2WasSelected = 2,
    Seat3WasSelected = 3,
    Seat4WasSelected = 4,
    Seat5WasSelected = 5,
    Seat6WasSelected = 6,
    Seat7WasSelected = 7,
    Seat8WasSelected = 8,
    Seat9WasSelected = 9,
    Seat10WasSelected = 10,
};

/// A seat number, or 0 for none; as a bit number of a seat descriptor 0 is bit 0.
enum class SeatSpreadPossibilities : Long {
    noSpreadSeats = 0,
    SpreadToSeat1Requested = 1,
    SpreadToSeat2Requested = 2,
    SpreadToSeat3Requested = 3,
    SpreadToSeat4Requested = 4,
    SpreadToSeat5Requested = 5,
    SpreadToSeat6Requested = 6,
    SpreadToSeat7Requested = 7,
    SpreadToSeat8Requested = 8,
    SpreadToSeat9Requested = 9,
    SpreadToSeat10Requested = 10,
};

enum class SpinCounterPossibilities : Long {
    LeftHandSpinCounter = 1,
    RighHandSpinCounter = 2,
    TopMountSpinCounter = 3,
    BottomMountSpinCounter = 4,
};

/// A count of decks.
enum class NumberOfBlackjackDeckPossibilities : Long {
    BJZeroDecks = 0,
    BJOneDeck = 1,
    BJTwoDecks = 2,
    BJThreeDecks = 3,
    BJFourDecks = 4,
    BJFiveDecks = 5,
    BJSixDecks = 6,
    BJSevenDecks = 7,
    BJEightDecks = 8,
    BJNineDecks = 9,
    BJTenDecks = 10,
    BJElevenDecks = 11,
    BJTwelveDecks = 12,
};

enum class ObjectWidthPossibilities : Long {
    NarrowObject = 1,
    WideObject = 2,
};

/// The indexes of the casino items of the deck buttons' menu.
enum class CasinoDeckDefaults : Long {
    deckDefaultResetDecks = 0,
    deckdefaultAtlanticCity = 10,
    deckdefaultLasVegasStrip = 20,
    deckdefaultLasVegasDowntown = 25,
    deckdefaultReno = 30,
    deckdefaultTahoe = 40,
    deckdefaultLaughlin = 50,
    deckdefaultRiverBoats = 60,
    deckdefaultCruiseShips = 70,
    deckdefaultAustrailia = 80,
    deckdefaultEurope = 90,
};

namespace describing {

/// The compiler's own spelling of an enumerator, so that each name is typed once: what stands behind the last colon
/// of its qualified name.
template <auto Enumerator>
consteval auto spellingOf() {
    constexpr std::string_view function = __PRETTY_FUNCTION__;
    constexpr auto end = function.rfind(']');
    constexpr auto first = function.rfind(':', end) + 1;
    std::array<char16_t, end - first> spelling{};
    for (std::size_t i = 0; i < spelling.size(); ++i)
        spelling[i] = static_cast<char16_t>(function[first + i]);
    return spelling;
}

template <auto Enumerator>
inline constexpr auto spelling = spellingOf<Enumerator>();

template <auto... Enumerators>
inline constexpr std::array membersOf = {
    EnumerationMember{{spelling<Enumerators>.data(), spelling<Enumerators>.size()}, static_cast<Long>(Enumerators)}...};

inline constexpr EnumerationDescription gameCardButtonPossibilities{
    u"GameCardButtonPossibilities", "{4C28F0C1-485C-4F13-AD5C-FD6F35744D01}"_guid,
    membersOf<GameCardButtonPossibilities::theCardsToDiscardTrayWasSelected,
              GameCardButtonPossibilities::theCardsToTableAreaWasSelected,
              GameCardButtonPossibilities::theCardsToShoeWasSelected>};

inline constexpr EnumerationDescription genericCardShufflePossibilities{
    u"GenericCardShufflePossibilities", "{4E32E0A1-5CFD-4A5E-8014-8C793C716B0C}"_guid,
    membersOf<
        GenericCardShufflePossibilities::noGenericCardShuffle, GenericCardShufflePossibilities::StripShuffleGeneric,
        GenericCardShufflePossibilities::StraightThruGeneric, GenericCardShufflePossibilities::SMBoxShuffleGeneric,
        GenericCardShufflePossibilities::RandomShuffleGeneric>};

inline constexpr EnumerationDescription plusMinusPossibilities{
    u"PlusMinusPossibilities", "{CEB3A9CC-128D-4C46-98C8-8AB36031D4CC}"_guid,
    membersOf<PlusMinusPossibilities::aPlusButton, PlusMinusPossibilities::aMinusButton>};

inline constexpr EnumerationDescription gOButtonShapePossibilities{
    u"GOButtonShapePossibilities", "{17145F17-F5A6-4C79-B845-40FAB525C47C}"_guid,
    membersOf<GOButtonShapePossibilities::GOButtonIsARectangle, GOButtonShapePossibilities::GOButtonIsSquare,
              GOButtonShapePossibilities::GOButtonIsAnOval, GOButtonShapePossibilities::GOButtonIsACircle,
              GOButtonShapePossibilities::GOButtonIsARoundedRectangle,
              GOButtonShapePossibilities::GOButtonIsARoundedSquare>};

inline constexpr EnumerationDescription seatSelectionPossibilities{
    u"SeatSelectionPossibilities", "{177A818D-CA0B-423C-8CCF-7F7EF4842AE1}"_guid,
    membersOf<SeatSelectionPossibilities::noSeatWasSelected, SeatSelectionPossibilities::Seat1WasSelected,
              SeatSelectionPossibilities::Seat2WasSelected, SeatSelectionPossibilities::Seat3WasSelected,
              SeatSelectionPossibilities::Seat4WasSelected, SeatSelectionPossibilities::Seat5WasSelected,
              SeatSelectionPossibilities::Seat6WasSelected, SeatSelectionPossibilities::Seat7WasSelected,
              SeatSelectionPossibilities::Seat8WasSelected, SeatSelectionPossibilities::Seat9WasSelected,
              SeatSelectionPossibilities::Seat10WasSelected>};

inline constexpr EnumerationDescription seatSpreadPossibilities{
    u"SeatSpreadPossibilities", "{8A15E07D-6EEB-459D-9411-03521488E56E}"_guid,
    membersOf<SeatSpreadPossibilities::noSpreadSeats, SeatSpreadPossibilities::SpreadToSeat1Requested,
              SeatSpreadPossibilities::SpreadToSeat2Requested, SeatSpreadPossibilities::SpreadToSeat3Requested,
              SeatSpreadPossibilities::SpreadToSeat4Requested, SeatSpreadPossibilities::SpreadToSeat5Requested,
              SeatSpreadPossibilities::SpreadToSeat6Requested, SeatSpreadPossibilities::SpreadToSeat7Requested,
              SeatSpreadPossibilities::SpreadToSeat8Requested, SeatSpreadPossibilities::SpreadToSeat9Requested,
              SeatSpreadPossibilities::SpreadToSeat10Requested>};

inline constexpr EnumerationDescription spinCounterPossibilities{
    u"SpinCounterPossibilities", "{D51661AE-FF2D-4C69-9AB3-F13242323A02}"_guid,
    membersOf<SpinCounterPossibilities::LeftHandSpinCounter, SpinCounterPossibilities::RighHandSpinCounter,
              SpinCounterPossibilities::TopMountSpinCounter, SpinCounterPossibilities::BottomMountSpinCounter>};

inline constexpr EnumerationDescription numberOfBlackjackDeckPossibilities{
    u"NumberOfBlackjackDeckPossibilities", "{C900E006-F00E-4611-A0C8-082DFCA73415}"_guid,
    membersOf<NumberOfBlackjackDeckPossibilities::BJZeroDecks, NumberOfBlackjackDeckPossibilities::BJOneDeck,
              NumberOfBlackjackDeckPossibilities::BJTwoDecks, NumberOfBlackjackDeckPossibilities::BJThreeDecks,
              NumberOfBlackjackDeckPossibilities::BJFourDecks, NumberOfBlackjackDeckPossibilities::BJFiveDecks,
              NumberOfBlackjackDeckPossibilities::BJSixDecks, NumberOfBlackjackDeckPossibilities::BJSevenDecks,
              NumberOfBlackjackDeckPossibilities::BJEightDecks, NumberOfBlackjackDeckPossibilities::BJNineDecks,
              NumberOfBlackjackDeckPossibilities::BJTenDecks, NumberOfBlackjackDeckPossibilities::BJElevenDecks,
              NumberOfBlackjackDeckPossibilities::BJTwelveDecks>};

inline constexpr EnumerationDescription objectWidthPossibilities{
    u"ObjectWidthPossibilities", "{BBA21772-7971-4120-B016-DF707D2536DA}"_guid,
    membersOf<ObjectWidthPossibilities::NarrowObject, ObjectWidthPossibilities::WideObject>};

inline constexpr EnumerationDescription casinoDeckDefaults{
    u"CasinoDeckDefaults", "{42995830-3A55-47AC-BF8D-62031FB2078A}"_guid,
    membersOf<CasinoDeckDefaults::deckDefaultResetDecks, CasinoDeckDefaults::deckdefaultAtlanticCity,
              CasinoDeckDefaults::deckdefaultLasVegasStrip, CasinoDeckDefaults::deckdefaultLasVegasDowntown,
              CasinoDeckDefaults::deckdefaultReno, CasinoDeckDefaults::deckdefaultTahoe,
              CasinoDeckDefaults::deckdefaultLaughlin, CasinoDeckDefaults::deckdefaultRiverBoats,
              CasinoDeckDefaults::deckdefaultCruiseShips, CasinoDeckDefaults::deckdefaultAustrailia,
              CasinoDeckDefaults::deckdefaultEurope>};

} // namespace describing

constexpr const EnumerationDescription& descriptionOf(GameCardButtonPossibilities) noexcept {
    return describing::gameCardButtonPossibilities;
}
constexpr const EnumerationDescription& descriptionOf(GenericCardShufflePossibilities) noexcept {
    return describing::genericCardShufflePossibilities;
}
constexpr const EnumerationDescription& descriptionOf(PlusMinusPossibilities) noexcept {
    return describing::plusMinusPossibilities;
}
constexpr const EnumerationDescription& descriptionOf(GOButtonShapePossibilities) noexcept {
    return describing::gOButtonShapePossibilities;
}
constexpr const EnumerationDescription& descriptionOf(SeatSelectionPossibilities) noexcept {
    return describing::seatSelectionPossibilities;
}
constexpr const EnumerationDescription& descriptionOf(SeatSpreadPossibilities) noexcept {
    return describing::seatSpreadPossibilities;
}
constexpr const EnumerationDescription& descriptionOf(SpinCounterPossibilities) noexcept {
    return describing::spinCounterPossibilities;
}
constexpr const EnumerationDescription& descriptionOf(NumberOfBlackjackDeckPossibilities) noexcept {
    return describing::numberOfBlackjackDeckPossibilities;
}
constexpr const EnumerationDescription& descriptionOf(ObjectWidthPossibilities) noexcept {
    return describing::objectWidthPossibilities;
}
constexpr const EnumerationDescription& descriptionOf(CasinoDeckDefaults) noexcept {
    return describing::casinoDeckDefaults;
}

/// All ten, in published order.
inline constexpr std::array<const EnumerationDescription*, 10> enumerations = {
    &describing::gameCardButtonPossibilities, &describing::genericCardShufflePossibilities,
    &describing::plusMinusPossibilities,      &describing::gOButtonShapePossibilities,
    &describing::seatSelectionPossibilities,  &describing::seatSpreadPossibilities,
    &describing::spinCounterPossibilities,    &describing::numberOfBlackjackDeckPossibilities,
    &describing::objectWidthPossibilities,    &describing::casinoDeckDefaults,
};

} // namespace zilvo
