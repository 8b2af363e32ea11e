#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace drill {

enum class Rank : std::uint8_t { Ace = 1, Two, Three, Four, Five, Six, Seven, Eight, Nine, Ten, Jack, Queen, King };
enum class Suit : std::uint8_t { Clubs, Diamonds, Hearts, Spades };

struct Card {
    Rank rank;
    Suit suit;

    friend bool operator==(const Card&, const Card&) = default;
};

/// A pile, the top card first.
using Cards = std::vector<Card>;

constexpr int CardsPerDeck = 52;

/// Two letters, such as "Ac" or "Ts".
std::string text(Card card);

/// The cards of so many decks in the order in which they lie unshuffled: sorted by rank, aces first, whatever deck
/// they are from. Throws std::invalid_argument unless there are 1, 2, 4 to 10 or 12 decks.
Cards sortedDecks(int decks);
void checkDecks(int decks);

/// What the card adds to the running count: +1 for 2 to 6, 0 for 7 to 9, -1 for tens, faces and aces.
int tag(Card card);

/// The running count for each deck left, rounded down (-1 with three decks left is -1), where a part of a deck counts
/// as just that part. 0 when no card is left.
int trueCount(int runningCount, int cardsLeft);

} // namespace drill
