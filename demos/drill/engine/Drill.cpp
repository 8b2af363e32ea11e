#include "demos/drill/engine/Drill.h"

#include <algorithm>
#include <stdexcept>

namespace drill {

namespace {

void require(bool met, int value, const char* what) {
    if (!met) throw std::invalid_argument(std::to_string(value) + what);
}

} // namespace

int cardsPerMinute(Pace pace) {
    constexpr int perMinute[] = {30, 45, 60, 90, 120, 180};
    return perMinute[std::find(std::begin(Paces), std::end(Paces), pace) - std::begin(Paces)];
}

const Settings& check(const Settings& settings) {
    constexpr SeatSet all = (1 << (Seats + 1)) - 2;
    const auto& [decks, shuffle, seat, spread, others, played, pace] = settings;
    checkDecks(decks);
    require(shuffle >= ShuffleMethod::None && shuffle <= ShuffleMethod::Random, static_cast<int>(shuffle),
            " is no shuffle");
    require(seat >= 1 && seat <= Seats, seat, " is no seat: the arc has 1 to 7");
    for (const SeatSet seats : {spread, others})
        require((seats & ~all) == 0 && !contains(seats, seat), seats, " is no set of the other seats");
    require((spread & others) == 0, spread & others, " are seats that are taken twice");
    require(played >= PlayedCards::ToDiscardTray && played <= PlayedCards::ToShoe, static_cast<int>(played),
            " is no place for played cards");
    require(std::count(std::begin(Paces), std::end(Paces), pace) == 1, static_cast<int>(pace), " is no pace");
    return settings;
}

Drill::Drill(const Settings& settings, std::uint64_t seed)
    : settings_(check(settings)), seed_(seed), shoe_(settings.decks, settings.shuffle, seed) {
    for (int pass = 0; pass < 2; ++pass) {
        for (int seat = 1; seat <= Seats; ++seat)
            if (settings.isTaken(seat)) round_.push_back(seat);
        round_.push_back(DealtCard::Dealer);
    }
}

bool Drill::isOver() const {
    if (shoe_.left() == 0) return true;
    return next_ == 0 && settings_.played != PlayedCards::ToShoe && shoe_.left() <= settings_.decks * CardsPerDeck / 4;
}

const DealtCard& Drill::deal() {
    int count = runningCount();
    if (next_ == 0 && settings_.played == PlayedCards::ToShoe && !dealt_.empty()) {
        shoe_.takeBack();
        count = 0;
    }
    if (next_ == 0 && settings_.played != PlayedCards::ToTable) tableBegin_ = dealt_.size();
    const Card card = shoe_.draw();
    count += tag(card);
    dealt_.push_back({card, round_[next_], count, trueCount(count, shoe_.left())});
    next_ = (next_ + 1) % round_.size();
    return dealt_.back();
}

std::span<const DealtCard> Drill::inDiscardTray() const {
    return dealt().first(settings_.played == PlayedCards::ToDiscardTray ? tableBegin_ : 0);
}

Result Drill::result(int answer, std::int64_t when) const {
    return {when, settings_, seed_, static_cast<int>(dealt_.size()), answer, runningCount()};
}

} // namespace drill
