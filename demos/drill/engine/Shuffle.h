#pragma once

#include "demos/drill/engine/Cards.h"
#include "demos/drill/engine/Random.h"

namespace drill {

/// The values are those of the player's option buttons.
enum class ShuffleMethod {
    None = 0,
    Strip = 1,
    StraightThrough = 2,
    MachineBox = 3,
    Random = 4,
};

/// Shuffles the pile by one of the methods:
/// - None leaves it as it lies, which makes for extreme counts;
/// - Strip strips it little, big and little again, and all that three times;
/// - StraightThrough strips it little once and then interleaves it in reverse;
/// - MachineBox drops each card on or under what lies on a shelf drawn for it, with a shelf for about five cards, and
///   stacks the shelves in an order that is drawn as well;
/// - Random makes each order as likely as the others, as far as 64 bits of state reach.
/// Throws std::invalid_argument for a value that is no method.
void shuffle(Cards& cards, ShuffleMethod method, Random& random);

/// How many cards a hand strips off at a time.
struct PacketSizes {
    std::size_t least, most;
};
constexpr PacketSizes LittlePackets{3, 8};
constexpr PacketSizes BigPackets{13, 26};

/// Packets are taken off the top, one after the other, and laid upon each other. The last packet may be smaller.
void strip(Cards& cards, PacketSizes sizes, Random& random);

/// Takes a perfect interleave apart: the first, third, fifth card and so on come to lie on the others.
void reverseInterleave(Cards& cards);

} // namespace drill
