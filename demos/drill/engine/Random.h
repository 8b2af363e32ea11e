#pragma once

#include <cstddef>
#include <cstdint>

namespace drill {

/// The generator SplitMix64 with a bounded draw of its own: the distributions and the shuffle of the standard library
/// differ from library to library, and a seed must give the same drill on every machine.
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    /// Any 64 bits.
    std::uint64_t next() {
        state_ += 0x9E3779B97F4A7C15;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
        return mixed ^ (mixed >> 31);
    }

    /// One of 0 to bound - 1, each as likely as the others; bound is not 0. What is drawn below 2^64 modulo bound is
    /// drawn again, because it would make the low numbers likelier.
    std::size_t below(std::size_t bound) {
        const std::uint64_t excess = (0 - std::uint64_t{bound}) % bound;
        std::uint64_t drawn = next();
        while (drawn < excess)
            drawn = next();
        return static_cast<std::size_t>(drawn % bound);
    }

private:
    std::uint64_t state_;
};

} // namespace drill
