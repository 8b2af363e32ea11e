#include "demos/drill/engine/Drill.h"

#include <stdexcept>
#include <utility>

namespace drill {

namespace {

void require(bool met, int value, const char* what) {
    if (!met) throw std::invalid_argument(std::to_string(value) + what);
}

Settings checked(Settings settings) {
    check(settings);
    return settings;
}

} // namespace

void check(const Settings& settings) {
    checkDecks(settings.decks);
    require(!settings.seats.empty(), 0, " seats: at least one is occupied");
    for (const int seat : settings.seats)
        require(seat >= 1 && seat <= 7, seat, " is no seat: the arc has 1 to 7");
    require(settings.cardsEach >= 1, settings.cardsEach, " cards each: at least one is dealt");
    require(settings.played >= PlayedCards::ToDiscardTray && settings.played <= PlayedCards::ToShoe,
            static_cast<int>(settings.played), " is no place for played cards");
    require(settings.cut >= 0 && settings.cut < settings.decks * CardsPerDeck, settings.cut,
            " cards cannot lie behind the cut card");
}

Drill::Drill(Settings settings)
    : settings_(checked(std::move(settings))), shoe_(settings_.decks, settings_.shuffle, settings_.seed) {}

std::span<const DealtCard> Drill::dealRound() {
    if (isOver()) return {};
    if (settings_.played == PlayedCards::ToShoe && !dealt_.empty()) {
        shoe_.takeBack();
        runningCount_ = 0;
    }
    const std::size_t roundBegin = dealt_.size();
    if (settings_.played != PlayedCards::ToTable) tableBegin_ = roundBegin;
    for (int pass = 0; pass < settings_.cardsEach && shoe_.left() > 0; ++pass) {
        for (const int seat : settings_.seats)
            dealTo(seat);
        dealTo(DealtCard::Dealer);
    }
    return dealt().subspan(roundBegin);
}

void Drill::dealTo(int place) {
    if (shoe_.left() == 0) return;
    const Card card = shoe_.draw();
    runningCount_ += tag(card);
    dealt_.push_back({card, place, runningCount(), trueCount()});
}

bool Drill::isOver() const {
    return settings_.played != PlayedCards::ToShoe && shoe_.left() <= settings_.cut;
}

std::span<const DealtCard> Drill::inDiscardTray() const {
    return dealt().first(settings_.played == PlayedCards::ToDiscardTray ? tableBegin_ : 0);
}

Result Drill::check(int answer, std::int64_t when) const {
    return {.when = when,
            .decks = settings_.decks,
            .shuffle = settings_.shuffle,
            .cards = static_cast<int>(dealt_.size()),
            .answer = answer,
            .count = runningCount()};
}

} // namespace drill
