#include "zilvo/library/ZilvoButtons.h"

#include <gtest/gtest.h>

namespace zilvo {

TEST(VerticalOK, RefusesNoFontAndItsFontOutlivesIt) {
    FontRef font;
    {
        const auto button = create<verticalOK>();
        font = button->get_Font();
        EXPECT_THROW(button->put_Font(nullptr), Failure);
        EXPECT_EQ(button->get_Font(), font);
    }
    font->put_Size(20);
    EXPECT_EQ(font->get_Name(), u"Arial Black");
}

TEST(LetterButton, ShowsHalfACharacterAsAWholeOne) {
    const String high(1, char16_t{0xD83C}), low(1, char16_t{0xDCA1});
    const auto marker = create<LetterButton>();
    for (const String& given : {high, high + u"A", low + high}) {
        marker->put_Letter(given);
        EXPECT_EQ(marker->get_Letter(), u"\uFFFD");
    }
}

} // namespace zilvo
