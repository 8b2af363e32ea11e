// Texts and values: what is converted there and back is what it was.
#include "tests/fuzz/Fuzz.h"
#include "zilvo/platform/hosting/Input.h"

#include <cmath>

using namespace zilvo;
using fuzz::require;

namespace {

void checkText(fuzz::Input& in) {
    const String text = in.text();
    const std::string utf8 = platform::toUtf8(text);
    const String clean = platform::toUtf16(utf8);
    require(platform::toUtf8(clean) == utf8, "UTF-8 comes back from UTF-16 unchanged");
    require(clean.size() == text.size(), "what is replaced keeps its length");

    const platform::Caption caption = platform::captionOf(text);
    require(caption.underlined == String::npos || caption.underlined < caption.text.size(),
            "an access key lies in its caption");
    require((caption.underlined == String::npos) == (platform::accessKeyOf(text) == 0) ||
                text.find(u'\0') != String::npos,
            "what is underlined is the access key");
    require(platform::firstCharacter(text).size() <= 2, "a character has two units at most");

    const auto key = platform::parseKey(text);
    if (key && key->key == platform::input::Key::Character)
        require(key->character == text.back(), "a key's character is the last of its name");

    const auto id = Guid::parse(utf8);
    if (id) require(Guid::parse(id->text()) == id, "an identifier is read as it is written");
}

/// Converts there and back; gives nothing where the value does not convert.
template <class T>
std::optional<T> converted(const Variant& value) {
    std::optional<T> result;
    fuzz::attempt([&] { result = platform::convert<T>(value); });
    return result;
}

template <class T>
void checkConversion(const Variant& value) {
    const auto held = converted<T>(value);
    if (!held) return;
    const String text = platform::toString(Variant(*held));
    const auto back = converted<T>(Variant(text));
    if constexpr (std::is_same_v<T, Single>)
        require(back && std::abs(*back - *held) <= std::abs(*held) * 1e-6F, "a number survives as text");
    else
        require(back == held, "a value survives as text: " + platform::toUtf8(text));
    require(platform::equalByValue(Variant(*held), Variant(*held)), "a value equals itself");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input in(data, size);
    checkText(in);
    const Variant value = in.value();
    checkConversion<bool>(value);
    checkConversion<Integer>(value);
    checkConversion<Long>(value);
    checkConversion<Single>(value);
    checkConversion<String>(value);
    checkConversion<Colour>(value);
    (void)converted<FontRef>(value);
    (void)platform::describe(value);
    Variant variable = in.value();
    fuzz::attempt([&] { variable.assign(value); });
    return 0;
}
