#include "demos/drill/engine/Shoe.h"

#include <gtest/gtest.h>

#include <numeric>
#include <stdexcept>

namespace drill {

namespace {

constexpr int DeckCounts[] = {1, 2, 4, 5, 6, 7, 8, 9, 10, 12};
constexpr ShuffleMethod Methods[] = {ShuffleMethod::None, ShuffleMethod::Strip, ShuffleMethod::StraightThrough,
                                     ShuffleMethod::MachineBox, ShuffleMethod::Random};

std::string text(const Cards& cards) {
    std::string all;
    for (const Card card : cards)
        all += text(card);
    return all;
}

Cards drawnFrom(Shoe& shoe) {
    Cards drawn;
    while (shoe.left() > 0)
        drawn.push_back(shoe.draw());
    return drawn;
}

Cards sorted(Cards cards) {
    std::ranges::sort(cards, {}, [](Card card) { return text(card); });
    return cards;
}

} // namespace

TEST(DrillCards, OtherCountsOfDecksAreRefused) {
    for (const int decks : {-1, 0, 3, 11, 13})
        EXPECT_THROW(sortedDecks(decks), std::invalid_argument) << decks;
}

TEST(DrillCards, NoShufflingMakesForTheMostExtremeCounts) {
    for (const int decks : DeckCounts) {
        int count = 0, lowest = 0, highest = 0;
        for (const Card card : sortedDecks(decks)) {
            count += tag(card);
            lowest = std::min(lowest, count);
            highest = std::max(highest, count);
        }
        EXPECT_EQ(count, 0);
        EXPECT_EQ(lowest, -4 * decks);
        EXPECT_EQ(highest, 16 * decks);
    }
}

TEST(DrillCards, TheTrueCountIsRoundedDown) {
    EXPECT_EQ(trueCount(7, 104), 3);
    EXPECT_EQ(trueCount(-7, 104), -4);
    EXPECT_EQ(trueCount(-6, 104), -3);
    EXPECT_EQ(trueCount(-1, 156), -1);
    EXPECT_EQ(trueCount(3, 26), 6);
    EXPECT_EQ(trueCount(0, 0), 0);
}

TEST(DrillShuffle, LosesAndDoublesNoCard) {
    for (const int decks : DeckCounts) {
        for (const ShuffleMethod method : Methods) {
            for (std::uint64_t seed = 0; seed < 10; ++seed) {
                Shoe shoe(decks, method, seed);
                ASSERT_EQ(shoe.left(), decks * CardsPerDeck);
                const Cards drawn = drawnFrom(shoe);
                ASSERT_EQ(sorted(drawn), sorted(sortedDecks(decks)))
                    << decks << ' ' << static_cast<int>(method) << ' ' << seed;
                ASSERT_EQ(drawn == sortedDecks(decks), method == ShuffleMethod::None);
                EXPECT_THROW(shoe.draw(), std::out_of_range);
                shoe.takeBack();
                const Cards again = drawnFrom(shoe);
                ASSERT_EQ(sorted(again), sorted(sortedDecks(decks)));
                ASSERT_EQ(again == drawn, method == ShuffleMethod::None);
            }
        }
    }
}

// Computed by a program of its own, from the descriptions of the generator and of the shuffles.
TEST(DrillShuffle, ASeedGivesTheSameCardsOnEveryMachine) {
    // These three are the generator's published ones; the draw passes over the two that are below its excess.
    Random published(1234567), drawn(1234567);
    for (const std::uint64_t number : {6457827717110365317U, 3203168211198807973U, 9817491932198370423U})
        EXPECT_EQ(published.next(), number);
    constexpr std::size_t bound = (std::size_t{1} << 63) + 1;
    EXPECT_EQ(drawn.below(bound), 9817491932198370423U - bound);

    const std::string known[] = {
        "AcAdAhAs2c2d2h2s3c3d3h3s4c4d4h4s5c5d5h5s6c6d6h6s7c7d7h7s8c8d8h8s9c9d9h9sTcTdThTsJcJdJhJsQcQdQhQsKcKdKhKs",
        "ThTsJhTdJcQc9h9sJd9d6s3hQd2d4h4sTc2c4c4d2sAcJs3d5dKsQhQsKcKdAs8c8d3c5c7h7s6d6h5s6c3s8h8s9c5hAd7c7dAhKh2h",
        "KhJhQcQhKcTdTsJd9hTc8d8s7c7h6d6s4s5d5s3s4d3d2c2hAcAhKsJsQdQsKdThJc9d9s8c8h9c7d7s6h4h5c5h6c4c3c3h2d2sAdAs",
        "8h6h5sAs3hKs9hAc6s9cTsQs9d2h5d5h6c7h7sJh3d3s7cKhKcJsTh8c7dTd2dAhAd4c9sQhTc5cQc8sJc8d2s2c4hKd4s3c4d6dJdQd",
        "2h8c4cTsJcAc7h7d6h2cQhTc7sJh8s5d4hJs5h4d5sAd9d2s5c9cKsKc8d4s9sKdAsQcQdJd6c7cQsTh8h2dKh6d6s3sAh9hTd3c3h3d"};
    for (const ShuffleMethod method : Methods) {
        Shoe shoe(1, method, 42);
        EXPECT_EQ(text(drawnFrom(shoe)), known[static_cast<std::size_t>(method)]);
    }
}

TEST(DrillShuffle, EightReverseInterleavesBringADeckBack) {
    Cards cards = sortedDecks(1);
    for (int times = 1; times <= 8; ++times) {
        reverseInterleave(cards);
        EXPECT_EQ(cards == sortedDecks(1), times == 8) << times;
    }
}

} // namespace drill
