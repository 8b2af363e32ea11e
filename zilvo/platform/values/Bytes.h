#pragma once

#include <cstdint>
#include <vector>

namespace zilvo::platform {

using Bytes = std::vector<std::uint8_t>;

/// Appends the low `size` bytes of a number, the lowest first.
inline void appendLittleEndian(Bytes& out, std::uint32_t value, unsigned size) {
    for (unsigned i = 0; i < size; ++i)
        out.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

} // namespace zilvo::platform
