#pragma once

#include "demos/drill/engine/Shoe.h"

#include <set>
#include <span>

namespace drill {

/// Where the cards of a round go before the next one. The values are those of the player's picture buttons.
enum class PlayedCards {
    ToDiscardTray = 1,
    /// They stay where they lie.
    ToTable = 2,
    /// The shoe is whole again, so that the count begins again at 0.
    ToShoe = 3,
};

/// All that makes a drill: the same settings give the same cards.
struct Settings {
    int decks = 6;
    ShuffleMethod shuffle = ShuffleMethod::Random;
    /// The occupied seats, from 1 at the beginning of the arc to 7.
    std::set<int> seats = {1};
    int cardsEach = 2;
    PlayedCards played = PlayedCards::ToDiscardTray;
    /// How many cards lie behind the cut card. The round in which it comes up is dealt to its end and is the last one,
    /// unless the cards go back to the shoe.
    int cut = 0;
    std::uint64_t seed = 0;

    friend bool operator==(const Settings&, const Settings&) = default;
};

/// Throws std::invalid_argument, which names the value, for a count of decks that there is not; for no seats or one
/// outside of 1 to 7; for less than one card each; for a place where played cards cannot go; and for a cut that is
/// negative or leaves no card before it.
void check(const Settings& settings);

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
    int decks = 0;
    ShuffleMethod shuffle = ShuffleMethod::None;
    /// How many cards the drill had dealt.
    int cards = 0;
    int answer = 0;
    int count = 0;

    bool right() const { return answer == count; }
    friend bool operator==(const Result&, const Result&) = default;
};

/// A shoe dealt round by round. Where cards go back to the shoe a drill has no end of its own.
class Drill {
public:
    /// Throws as check and shuffle do.
    explicit Drill(Settings settings);

    const Settings& settings() const { return settings_; }

    /// Clears the table of the last round as the settings say, then deals every occupied seat along the arc and the
    /// dealer a card each, and that once for each card that they get. Ends early with the last card of the shoe; deals
    /// nothing when the drill is over. What it returns is valid until the next round.
    std::span<const DealtCard> dealRound();

    /// The cut card has come up, or no card is left.
    bool isOver() const;

    /// The cards since the beginning of the drill; the others are parts of it. All are valid until the next round.
    std::span<const DealtCard> dealt() const { return dealt_; }
    std::span<const DealtCard> onTable() const { return dealt().subspan(tableBegin_); }
    std::span<const DealtCard> inDiscardTray() const;

    int cardsLeft() const { return shoe_.left(); }
    int runningCount() const { return runningCount_; }
    int trueCount() const { return drill::trueCount(runningCount_, cardsLeft()); }

    /// Holds the answer against the running count. The time is in seconds since the beginning of 1970.
    Result check(int answer, std::int64_t when) const;

private:
    void dealTo(int place);

    Settings settings_;
    Shoe shoe_;
    std::vector<DealtCard> dealt_;
    /// Where among the dealt cards those on the table begin.
    std::size_t tableBegin_ = 0;
    int runningCount_ = 0;
};

} // namespace drill
