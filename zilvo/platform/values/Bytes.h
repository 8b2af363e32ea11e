#pragma once

#include "zilvo/platform/values/Guid.h"

#include <vector>

namespace zilvo::platform {

using Bytes = std::vector<std::uint8_t>;

/// Appends the low `size` bytes of a number, the lowest first.
inline void appendLittleEndian(Bytes& out, std::uint32_t value, unsigned size) {
    for (unsigned i = 0; i < size; ++i)
        out.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

/// Appends the 16 bytes of an identifier's binary form: three little-endian numbers, then eight bytes.
inline void appendGuid(Bytes& out, const Guid& id) {
    appendLittleEndian(out, id.data1, 4);
    appendLittleEndian(out, id.data2, 2);
    appendLittleEndian(out, id.data3, 2);
    out.insert(out.end(), id.data4.begin(), id.data4.end());
}

} // namespace zilvo::platform
