#pragma once

#include "demos/drill/engine/Shoe.h"

#include <span>

namespace drill {

constexpr int Seats = 7;

/// A set of seats in the bits of a number: bit k stands for seat k, 1 at the beginning of the arc.
using SeatSet = int;

constexpr bool contains(SeatSet seats, int seat) {
    return (seats >> seat & 1) != 0;
}

/// Where the cards of a round go before the next one. The values are those of the player's picture buttons.
enum class PlayedCards {
    ToDiscardTray = 1,
    /// They stay where they lie.
    ToTable = 2,
    /// The shoe is whole again, so that the count begins again at 0.
    ToShoe = 3,
};

/// How fast cards are dealt. The values are those of the shapes of the GO sign: the rounder, the faster.
enum class Pace { Slow = 0, Easy = 1, Fast = 2, Fastest = 3, Steady = 4, Brisk = 5 };
constexpr Pace Paces[] = {Pace::Slow, Pace::Easy, Pace::Steady, Pace::Brisk, Pace::Fast, Pace::Fastest};
int cardsPerMinute(Pace pace);

/// What is set up for a drill: with the same seed it gives the same cards.
struct Settings {
    int decks = 6;
    ShuffleMethod shuffle = ShuffleMethod::Random;
    /// The player's own, those that he spreads to, and those of others.
    int seat = 4;
    SeatSet spread = 0;
    SeatSet others = 0;
    PlayedCards played = PlayedCards::ToDiscardTray;
    Pace pace = Pace::Steady;

    bool plays(int which) const { return which == seat || contains(spread, which); }
    bool isTaken(int which) const { return plays(which) || contains(others, which); }
    friend bool operator==(const Settings&, const Settings&) = default;
};

/// What it is given. Throws std::invalid_argument, which names the value, for a count of decks that there is not, for a
/// seat or bit outside of 1 to 7, a seat taken twice, and a shuffle, place of played cards or pace that there is not.
const Settings& check(const Settings& settings);

struct DealtCard {
    /// The place of the dealer among the seats.
    static constexpr int Dealer = 0;

    Card card;
    int place;
    /// The counts that this card brought about.
    int runningCount, trueCount;

    friend bool operator==(const DealtCard&, const DealtCard&) = default;
};

/// What a player said the running count was, and what it was.
struct Result {
    /// Seconds since the beginning of 1970.
    std::int64_t when = 0;
    Settings settings;
    std::uint64_t seed = 0;
    /// How many cards the drill had dealt.
    int cards = 0;
    int answer = 0;
    int count = 0;

    bool right() const { return answer == count; }
    friend bool operator==(const Result&, const Result&) = default;
};

/// A shoe dealt in rounds: along the arc a card for each seat that is taken, then one for the dealer, and all that
/// twice. Behind the cut card lies a quarter of the shoe; the round in which it comes up is the last one. Where cards
/// go back to the shoe a drill has no end of its own.
class Drill {
public:
    /// Throws as check does.
    Drill(const Settings& settings, std::uint64_t seed);

    const Settings& settings() const { return settings_; }

    /// A round is complete and the cut card has come up, or no card is left.
    bool isOver() const;
    /// The next card, the first of a round after the table was cleared as the settings say. Throws std::out_of_range
    /// when no card is left.
    const DealtCard& deal();

    /// The cards since the beginning of the drill; the others are parts of it. All are valid until the next card.
    std::span<const DealtCard> dealt() const { return dealt_; }
    std::span<const DealtCard> onTable() const { return dealt().subspan(tableBegin_); }
    std::span<const DealtCard> inDiscardTray() const;

    int cardsLeft() const { return shoe_.left(); }
    int runningCount() const { return dealt_.empty() ? 0 : dealt_.back().runningCount; }

    /// Holds the answer against the running count. The time is in seconds since the beginning of 1970.
    Result result(int answer, std::int64_t when) const;

private:
    Settings settings_;
    std::uint64_t seed_;
    Shoe shoe_;
    std::vector<int> round_; ///< whose turn it is, card by card
    std::size_t next_ = 0;   ///< in the round
    std::vector<DealtCard> dealt_;
    std::size_t tableBegin_ = 0; ///< where among the dealt cards those on the table begin
};

} // namespace drill
