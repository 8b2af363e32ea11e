#include "demos/drill/engine/Shuffle.h"

#include <algorithm>
#include <deque>
#include <stdexcept>

namespace drill {

namespace {

/// Fisher and Yates: the places are filled from the last one up.
template <typename Element>
void permute(std::vector<Element>& elements, Random& random) {
    for (std::size_t open = elements.size(); open > 1; --open)
        std::swap(elements[open - 1], elements[random.below(open)]);
}

void sendThroughBox(Cards& cards, Random& random) {
    std::vector<std::deque<Card>> shelves(cards.size() / 5 + 1);
    for (const Card card : cards) {
        auto& shelf = shelves[random.below(shelves.size())];
        if (random.below(2) == 0)
            shelf.push_front(card);
        else
            shelf.push_back(card);
    }
    permute(shelves, random);
    cards.clear();
    for (const auto& shelf : shelves)
        cards.insert(cards.end(), shelf.begin(), shelf.end());
}

} // namespace

void strip(Cards& cards, PacketSizes sizes, Random& random) {
    // Each packet is turned over twice, the second time with all the others, and so only their order is reversed.
    for (auto packet = cards.begin(); packet != cards.end();) {
        const auto size = static_cast<std::ptrdiff_t>(sizes.least + random.below(sizes.most - sizes.least + 1));
        const auto next = packet + std::min(size, cards.end() - packet);
        std::reverse(packet, next);
        packet = next;
    }
    std::reverse(cards.begin(), cards.end());
}

void reverseInterleave(Cards& cards) {
    Cards apart;
    for (const std::size_t first : {0U, 1U})
        for (std::size_t i = first; i < cards.size(); i += 2)
            apart.push_back(cards[i]);
    cards = std::move(apart);
}

void shuffle(Cards& cards, ShuffleMethod method, Random& random) {
    switch (method) {
    case ShuffleMethod::None:
        return;
    case ShuffleMethod::Strip:
        for (int set = 0; set < 3; ++set)
            for (const PacketSizes sizes : {LittlePackets, BigPackets, LittlePackets})
                strip(cards, sizes, random);
        return;
    case ShuffleMethod::StraightThrough:
        strip(cards, LittlePackets, random);
        reverseInterleave(cards);
        return;
    case ShuffleMethod::MachineBox:
        sendThroughBox(cards, random);
        return;
    case ShuffleMethod::Random:
        permute(cards, random);
        return;
    }
    throw std::invalid_argument("no shuffle has the number " + std::to_string(static_cast<int>(method)));
}

} // namespace drill
