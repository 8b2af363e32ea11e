#include "demos/drill/engine/Cards.h"

#include <stdexcept>
#include <string_view>

namespace drill {

std::string text(Card card) {
    constexpr std::string_view ranks = "?A23456789TJQK";
    constexpr std::string_view suits = "cdhs";
    return {ranks.at(static_cast<std::size_t>(card.rank)), suits.at(static_cast<std::size_t>(card.suit))};
}

void checkDecks(int decks) {
    if (decks < 1 || decks > 12 || decks == 3 || decks == 11)
        throw std::invalid_argument(std::to_string(decks) + " decks: a shoe holds 1, 2, 4 to 10 or 12");
}

Cards sortedDecks(int decks) {
    checkDecks(decks);
    Cards cards;
    for (auto rank = static_cast<int>(Rank::Ace); rank <= static_cast<int>(Rank::King); ++rank)
        for (const Suit suit : {Suit::Clubs, Suit::Diamonds, Suit::Hearts, Suit::Spades})
            for (int deck = 0; deck < decks; ++deck)
                cards.push_back({static_cast<Rank>(rank), suit});
    return cards;
}

int tag(Card card) {
    if (card.rank == Rank::Ace || card.rank >= Rank::Ten) return -1;
    return card.rank <= Rank::Six ? 1 : 0;
}

int trueCount(int runningCount, int cardsLeft) {
    if (cardsLeft == 0) return 0;
    const int counted = runningCount * CardsPerDeck;
    const int towardsZero = counted / cardsLeft;
    return counted % cardsLeft < 0 ? towardsZero - 1 : towardsZero;
}

} // namespace drill
