// Texts and values: what is converted there and back is what it was.
#include "tests/fuzz/Fuzz.h"
#include "zilvo/platform/hosting/Input.h"

#include <cmath>

using namespace zilvo;
using fuzz::require;

namespace {

void checkText(const String& text) {
    const std::string utf8 = platform::toUtf8(text);
    require(platform::toUtf8(platform::toUtf16(utf8)) == utf8, "UTF-8 comes back from UTF-16 unchanged");
    const auto caption = platform::captionOf(text);
    require(caption.underlined == String::npos || caption.underlined < caption.text.size(),
            "an access key is in its caption");
    require(platform::firstCharacter(text).size() <= 2, "a character has two units at most");
    const auto key = platform::parseKey(text);
    require(!key || key->character == 0 || key->character == text.back(), "a key's character ends its name");
    const auto id = Guid::parse(utf8);
    require(!id || Guid::parse(id->text()) == id, "an identifier is read as it is written");
}

template <class T>
void checkConversion(const Variant& value) {
    fuzz::attempt([&] {
        const auto held = platform::convert<T>(value);
        const auto text = platform::toString(Variant(held));
        const auto back = platform::convert<T>(Variant(text));
        if constexpr (std::is_same_v<T, Single>)
            require(std::abs(back - held) <= std::abs(held) * 1e-6F, "a number survives as text");
        else
            require(back == held, "a value survives as text: " + platform::toUtf8(text));
    });
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input in(data, size);
    checkText(in.text());
    const Variant value = in.value();
    checkConversion<bool>(value);
    checkConversion<Integer>(value);
    checkConversion<Long>(value);
    checkConversion<Single>(value);
    checkConversion<String>(value);
    checkConversion<Colour>(value);
    (void)platform::describe(value);
    Variant variable = in.value();
    fuzz::attempt([&] { variable.assign(value); });
    return 0;
}
