#include "demos/drill/engine/Text.h"

#include <gtest/gtest.h>

#include <array>

namespace drill {

namespace {

std::vector<DealtCard> dealtToTheEnd(const Settings& settings) {
    Drill drill(settings);
    while (!drill.isOver())
        drill.dealRound();
    return {drill.dealt().begin(), drill.dealt().end()};
}

std::string replaced(std::string line, std::string_view from, std::string_view to) {
    return line.replace(line.find(from), from.size(), to);
}

/// The number of the line that the reading reports, or 0.
std::size_t damagedLine(const auto& read, const std::string& file) {
    try {
        read(file);
    } catch (const DamagedLine& damage) {
        EXPECT_TRUE(std::string(damage.what()).starts_with("line " + std::to_string(damage.number) + ": "));
        return damage.number;
    }
    return 0;
}

const Result Known{
    .when = 1262304000, .decks = 6, .shuffle = ShuffleMethod::StraightThrough, .cards = 104, .answer = -3, .count = -4};
const std::string KnownLine = "when=1262304000 decks=6 shuffle=straight-through cards=104 answer=-3 count=-4\n";

} // namespace

TEST(Drill, DealsAlongTheArcAndTheDealerLast) {
    Drill drill({.seats = {7, 1, 3}, .cardsEach = 3});
    std::vector<int> places;
    for (const DealtCard& dealt : drill.dealRound())
        places.push_back(dealt.place);
    EXPECT_EQ(places, (std::vector{1, 3, 7, 0, 1, 3, 7, 0, 1, 3, 7, 0}));
}

TEST(Drill, CountsEveryCard) {
    for (const int decks : {1, 6, 12}) {
        for (std::uint64_t seed = 0; seed < 20; ++seed) {
            int count = 0, left = decks * CardsPerDeck;
            for (const DealtCard& dealt : dealtToTheEnd({.decks = decks, .seats = {1, 2, 5}, .seed = seed})) {
                const std::string rank = text(dealt.card).substr(0, 1);
                count += rank.find_first_of("23456") == 0 ? 1 : rank.find_first_of("TJQKA") == 0 ? -1 : 0;
                --left;
                ASSERT_EQ(dealt.runningCount, count);
                // Rounded down: at most as high, and less than one lower.
                const int missing = count * CardsPerDeck - dealt.trueCount * left;
                ASSERT_TRUE(left == 0 || (missing >= 0 && missing < left));
            }
            EXPECT_EQ(count, 0);
            EXPECT_EQ(left, 0);
        }
    }
}

TEST(Drill, IsRepeatedByItsSeed) {
    const Settings settings{.seats = {2, 4}, .seed = 7};
    EXPECT_EQ(dealtToTheEnd(settings), dealtToTheEnd(settings));
    EXPECT_NE(dealtToTheEnd(settings), dealtToTheEnd({.seats = {2, 4}, .seed = 8}));
    for (const PlayedCards played : {PlayedCards::ToDiscardTray, PlayedCards::ToTable, PlayedCards::ToShoe}) {
        Drill drill({.seats = {2, 4}, .played = played, .seed = 7});
        std::string round;
        for (const auto& [card, place, runningCount, count] : drill.dealRound())
            round += text(card) + std::to_string(runningCount) + '/' + std::to_string(count) + ' ';
        // Computed by a program of its own.
        EXPECT_EQ(round, "Tc-1/-1 3h0/0 8c0/0 5s1/0 Qc0/0 Qc-1/-1 ");
    }
}

TEST(Drill, TheRoundOfTheCutCardIsTheLast) {
    for (const auto& [cut, dealt] : {std::pair{0, 52}, {1, 52}, {4, 48}, {5, 48}, {51, 6}}) {
        const auto cards = dealtToTheEnd({.decks = 1, .seats = {1, 2}, .cut = cut});
        EXPECT_EQ(cards.size(), static_cast<std::size_t>(dealt)) << cut;
    }
    Drill over({.decks = 1, .cardsEach = 60});
    EXPECT_EQ(over.dealRound().size(), 52U);
    EXPECT_TRUE(over.isOver());
    EXPECT_TRUE(over.dealRound().empty());
    EXPECT_EQ(over.onTable().size(), 52U);
}

TEST(Drill, PlayedCardsGoWhereTheyShall) {
    const auto afterThreeRounds = [](PlayedCards played) {
        Drill drill({.decks = 1, .played = played});
        for (int round = 0; round < 3; ++round)
            drill.dealRound();
        return std::array{static_cast<int>(drill.onTable().size()), static_cast<int>(drill.inDiscardTray().size()),
                          drill.cardsLeft()};
    };
    EXPECT_EQ(afterThreeRounds(PlayedCards::ToDiscardTray), (std::array{4, 8, 40}));
    EXPECT_EQ(afterThreeRounds(PlayedCards::ToTable), (std::array{12, 0, 40}));
    EXPECT_EQ(afterThreeRounds(PlayedCards::ToShoe), (std::array{4, 0, 48}));
}

TEST(Drill, CardsBackInTheShoeAreCountedAnewAndForEver) {
    Drill drill({.decks = 1, .shuffle = ShuffleMethod::None, .played = PlayedCards::ToShoe});
    for (int round = 0; round < 26; ++round) {
        const auto cards = drill.dealRound();
        // Unshuffled they come round again after thirteen rounds of all four cards of a rank.
        EXPECT_EQ(cards.front().card, (Card{static_cast<Rank>(round % 13 + 1), Suit::Clubs}));
        EXPECT_EQ(drill.runningCount(), 4 * tag(cards.front().card));
    }
    EXPECT_FALSE(drill.isOver());
}

TEST(Drill, SaysWhatTheAnswerShouldHaveBeen) {
    Drill drill({.decks = 2, .shuffle = ShuffleMethod::None, .seats = {1}});
    drill.dealRound();
    const Result wrong = drill.check(4, 99);
    EXPECT_FALSE(wrong.right());
    EXPECT_EQ(wrong, (Result{.when = 99, .decks = 2, .cards = 4, .answer = 4, .count = -4}));
    EXPECT_TRUE(drill.check(-4, 99).right());
}

TEST(Drill, SettingsWithoutADrillAreRefused) {
    for (const Settings& settings :
         {Settings{.decks = 3}, Settings{.shuffle = static_cast<ShuffleMethod>(-1)}, Settings{.seats = {}},
          Settings{.seats = {0, 1}}, Settings{.seats = {8}}, Settings{.cardsEach = 0},
          Settings{.played = PlayedCards{}}, Settings{.played = static_cast<PlayedCards>(4)}, Settings{.cut = -1},
          Settings{.decks = 1, .cut = 52}})
        EXPECT_THROW(Drill{settings}, std::invalid_argument);
}

TEST(DrillText, GoesThereAndBack) {
    EXPECT_EQ(text(Known), KnownLine);
    const Result other{.when = -1, .decks = 12, .shuffle = ShuffleMethod::MachineBox};
    EXPECT_EQ(readResults(text(Known) + text(other)), (std::vector{Known, other}));
    EXPECT_TRUE(readResults("").empty());
    const Settings settings{.shuffle = ShuffleMethod::Strip, .seats = {7, 2}, .cut = 13, .seed = UINT64_MAX};
    EXPECT_EQ(text(settings), "decks=6 shuffle=strip seats=2,7 each=2 played=tray cut=13 seed=18446744073709551615\n");
    EXPECT_EQ(readSettings(text(settings)), settings);
    EXPECT_EQ(readSettings(text(Settings{})), Settings{});
}

TEST(DrillText, ADamagedLineIsReportedByItsNumber) {
    using Edit = std::array<std::string_view, 2>;
    // clang-format off
    for (const auto& [from, to] : {
             Edit{"when=1262304000", "when="}, Edit{"when=1", "when=01"}, Edit{"when", "then"}, Edit{"when", "\nwhen"},
             Edit{"decks=6", "decks=3"}, Edit{"decks=6 ", ""}, Edit{"decks=6", "decks=99999999999"},
             Edit{"straight-through", "odd"}, Edit{"cards=104", "cards=-1"}, Edit{" cards", "  cards"},
             Edit{"answer=-3 count=-4", "count=-4 answer=-3"}, Edit{"-4\n", "-4 stake=5\n"}, Edit{"-4\n", "-4x\n"},
             Edit{"-4\n", "-4\r\n"}, Edit{"-4\n", "-4"}})
        EXPECT_EQ(damagedLine(readResults, KnownLine + replaced(KnownLine, from, to)), 2U) << to;
    const std::string line = text(Settings{});
    for (const auto& [from, to] : {
             Edit{"seats=1 ", "seats= "}, Edit{"seats=1 ", "seats=8 "}, Edit{"seats=1 ", "seats=2,1 "},
             Edit{"seats=1 ", "seats=1, "}, Edit{"=tray", "="}, Edit{"=tray", "=shelf"}, Edit{"cut=0", "cut=312"}})
        EXPECT_EQ(damagedLine(readSettings, replaced(line, from, to)), 1U) << to;
    // clang-format on
    EXPECT_EQ(damagedLine(readSettings, ""), 1U);
    EXPECT_EQ(damagedLine(readSettings, line + line), 2U);
}

} // namespace drill
