#include "zilvo/platform/values/Guid.h"

#include <cstdio>

namespace zilvo::platform {

std::string Guid::text() const {
    std::array<char, 39> out{};
    std::snprintf(out.data(), out.size(), "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}", data1, unsigned{data2},
                  unsigned{data3}, unsigned{data4[0]}, unsigned{data4[1]}, unsigned{data4[2]}, unsigned{data4[3]},
                  unsigned{data4[4]}, unsigned{data4[5]}, unsigned{data4[6]}, unsigned{data4[7]});
    return out.data();
}

} // namespace zilvo::platform
