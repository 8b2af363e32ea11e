#include "demos/drill/engine/Drill.h"

#include <gtest/gtest.h>

#include <array>

namespace drill {

namespace {

std::vector<DealtCard> dealtToTheEnd(const Settings& settings, std::uint64_t seed) {
    Drill drill(settings, seed);
    while (!drill.isOver())
        drill.deal();
    return {drill.dealt().begin(), drill.dealt().end()};
}

/// Seats 1, 4 and 7 and the dealer get eight cards a round.
Settings threeSeats(PlayedCards played = PlayedCards::ToDiscardTray) {
    return {.decks = 1, .seat = 4, .spread = 1 << 7, .others = 1 << 1, .played = played};
}

} // namespace

TEST(Drill, DealsAlongTheArcAndTheDealerLast) {
    Drill drill(threeSeats(), 1);
    std::string places;
    for (int card = 0; card < 9; ++card)
        places += std::to_string(drill.deal().place);
    EXPECT_EQ(places, "147014701");
    EXPECT_EQ(drill.onTable().size(), 1U);
}

TEST(Drill, CountsEveryCardAndEndsWithTheRoundOfTheCutCard) {
    for (const int decks : {1, 6, 12}) {
        for (std::uint64_t seed = 0; seed < 20; ++seed) {
            int count = 0, left = decks * CardsPerDeck;
            for (const DealtCard& dealt : dealtToTheEnd({.decks = decks, .spread = 1 << 7, .others = 1 << 1}, seed)) {
                const std::string rank = text(dealt.card).substr(0, 1);
                count += rank.find_first_of("23456") == 0 ? 1 : rank.find_first_of("TJQKA") == 0 ? -1 : 0;
                --left;
                ASSERT_EQ(dealt.runningCount, count);
                // Rounded down: at most as high, and less than one lower.
                const int missing = count * CardsPerDeck - dealt.trueCount * left;
                ASSERT_TRUE(left == 0 || (missing >= 0 && missing < left));
            }
            EXPECT_EQ((decks * CardsPerDeck - left) % 8, 0);
            EXPECT_LE(left, decks * CardsPerDeck / 4);
            EXPECT_GT(left + 8, decks * CardsPerDeck / 4);
        }
    }
    // A table of sixteen cards a round: after the third 4 are left, and before it there were 20.
    const auto full = dealtToTheEnd({.decks = 1, .seat = 1, .others = 0xFC}, 3);
    EXPECT_EQ(full.size(), 48U);
}

TEST(Drill, IsRepeatedByItsSeed) {
    EXPECT_EQ(dealtToTheEnd(threeSeats(), 7), dealtToTheEnd(threeSeats(), 7));
    EXPECT_NE(dealtToTheEnd(threeSeats(), 7), dealtToTheEnd(threeSeats(), 8));
    for (const PlayedCards played : {PlayedCards::ToDiscardTray, PlayedCards::ToTable, PlayedCards::ToShoe}) {
        Drill drill({.seat = 2, .spread = 1 << 4, .played = played}, 7);
        std::string round;
        for (int dealt = 0; dealt < 6; ++dealt) {
            const auto& [card, place, runningCount, count] = drill.deal();
            round += text(card) + std::to_string(runningCount) + '/' + std::to_string(count) + ' ';
        }
        // Computed by a program of its own.
        EXPECT_EQ(round, "Tc-1/-1 3h0/0 8c0/0 5s1/0 Qc0/0 Qc-1/-1 ");
    }
}

TEST(Drill, PlayedCardsGoWhereTheyShall) {
    const auto afterThreeRounds = [](PlayedCards played) {
        Drill drill(threeSeats(played), 1);
        for (int card = 0; card < 24; ++card)
            drill.deal();
        return std::array{static_cast<int>(drill.onTable().size()), static_cast<int>(drill.inDiscardTray().size()),
                          drill.cardsLeft()};
    };
    EXPECT_EQ(afterThreeRounds(PlayedCards::ToDiscardTray), (std::array{8, 16, 28}));
    EXPECT_EQ(afterThreeRounds(PlayedCards::ToTable), (std::array{24, 0, 28}));
    EXPECT_EQ(afterThreeRounds(PlayedCards::ToShoe), (std::array{8, 0, 44}));
}

TEST(Drill, CardsBackInTheShoeAreCountedAnewAndForEver) {
    Drill drill({.decks = 1, .shuffle = ShuffleMethod::None, .played = PlayedCards::ToShoe}, 0);
    for (int round = 0; round < 26; ++round) {
        for (int card = 0; card < 4; ++card)
            // Unshuffled they come round again after thirteen rounds of all four cards of a rank.
            EXPECT_EQ(drill.deal().card, (Card{static_cast<Rank>(round % 13 + 1), static_cast<Suit>(card)}));
        EXPECT_EQ(drill.runningCount(), 4 * tag(drill.dealt().back().card));
    }
    EXPECT_FALSE(drill.isOver());
}

TEST(Drill, SaysWhatTheAnswerShouldHaveBeen) {
    Drill drill({.decks = 2, .shuffle = ShuffleMethod::None}, 5);
    for (int card = 0; card < 3; ++card)
        drill.deal();
    const Result wrong = drill.result(3, 99);
    EXPECT_FALSE(wrong.right());
    EXPECT_EQ(wrong,
              (Result{.when = 99, .settings = drill.settings(), .seed = 5, .cards = 3, .answer = 3, .count = -3}));
    EXPECT_TRUE(drill.result(-3, 99).right());
}

TEST(Drill, SettingsWithoutADrillAreRefused) {
    for (const Settings& settings :
         {Settings{.decks = 3}, Settings{.shuffle = static_cast<ShuffleMethod>(-1)}, Settings{.seat = 0},
          Settings{.seat = 8}, Settings{.spread = 1}, Settings{.spread = 1 << 4}, Settings{.others = 1 << 8},
          Settings{.spread = 6, .others = 4}, Settings{.played = PlayedCards{}},
          Settings{.played = static_cast<PlayedCards>(4)}, Settings{.pace = static_cast<Pace>(6)}})
        EXPECT_THROW(Drill(settings, 0), std::invalid_argument);
}

} // namespace drill
