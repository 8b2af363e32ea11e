#pragma once

#include "demos/drill/engine/Shuffle.h"

#include <algorithm>

namespace drill {

/// The decks of a drill, shuffled, from which cards are drawn off the top.
class Shoe {
public:
    /// Throws std::invalid_argument for a count of decks or a method that there is not.
    Shoe(int decks, ShuffleMethod method, std::uint64_t seed)
        : cards_(sortedDecks(decks)), method_(method), random_(seed) {
        shuffle(cards_, method_, random_);
    }

    /// How many cards are still to be drawn.
    int left() const { return static_cast<int>(cards_.size() - drawn_); }

    /// Throws std::out_of_range when no card is left.
    Card draw() {
        const Card card = cards_.at(drawn_);
        ++drawn_;
        return card;
    }

    /// The drawn cards go to the bottom in the order in which they were drawn, and the shoe is shuffled again.
    void takeBack() {
        std::rotate(cards_.begin(), cards_.begin() + static_cast<std::ptrdiff_t>(drawn_), cards_.end());
        drawn_ = 0;
        shuffle(cards_, method_, random_);
    }

private:
    Cards cards_;
    std::size_t drawn_ = 0;
    ShuffleMethod method_;
    Random random_;
};

} // namespace drill
