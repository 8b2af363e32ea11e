#include "zilvo/platform/component/ByteReader.h"

#include <algorithm>

namespace zilvo::platform {

std::span<const std::uint8_t> ByteReader::take(std::size_t count) {
    if (count > left()) refuse("it ends too early");
    const auto taken = bytes_.subspan(taken_, count);
    taken_ += count;
    return taken;
}

String ByteReader::text(std::size_t length) {
    if (length > left() / sizeof(char16_t)) refuse("a text is longer than what is left");
    String text(length, u'\0');
    for (char16_t& unit : text)
        unit = number<char16_t>();
    return text;
}

Guid ByteReader::id() {
    Guid id;
    id.data1 = number<std::uint32_t>();
    id.data2 = number<std::uint16_t>();
    id.data3 = number<std::uint16_t>();
    const auto rest = take(id.data4.size());
    std::copy(rest.begin(), rest.end(), id.data4.begin());
    return id;
}

void ByteReader::refuse(const std::string& file, std::uint64_t offset, const std::string& why) {
    throw Failure(Status::BadComponent, file + " is not a component: at offset " + std::to_string(offset) + ": " + why);
}

} // namespace zilvo::platform
