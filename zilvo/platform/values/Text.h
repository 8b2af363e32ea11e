#pragma once

#include "zilvo/platform/values/Kinds.h"

#include <memory>

namespace zilvo::platform {

/// Text at the edge is UTF-16, messages and files are UTF-8. What is invalid on the way becomes U+FFFD.
std::string toUtf8(StringView text);
String toUtf16(std::string_view text);

/// The first character, whole: a surrogate pair stays together, half of one becomes U+FFFD. Empty when there is none.
String firstCharacter(StringView text);

bool sameLetters(StringView one, StringView other) noexcept;

/// Published names compare without case; they are ASCII.
inline bool sameName(StringView one, StringView other) noexcept {
    return one.size() == other.size() && sameLetters(one, other);
}

/// The text without its access-key marks ("&OK" is "OK", "&&" is "&") and where the marked letter then stands.
struct Caption {
    String text;
    std::size_t underlined = String::npos;
};
Caption captionOf(StringView designed);

/// The access key of a caption, folded to upper case; 0 when it has none.
char16_t accessKeyOf(StringView designed) noexcept;

/// A text that is its design-time literal until it is changed, so that creating a widget copies no text. The
/// literal must outlive the Text.
class Text {
public:
    constexpr Text(const char16_t* designed) noexcept : designed_(designed) {}

    StringView view() const noexcept { return changed_ ? StringView(*changed_) : StringView(designed_); }
    void set(StringView text) {
        if (changed_)
            changed_->assign(text);
        else
            changed_ = std::make_unique<String>(text);
    }

private:
    const char16_t* designed_;
    std::unique_ptr<String> changed_;
};

} // namespace zilvo::platform
