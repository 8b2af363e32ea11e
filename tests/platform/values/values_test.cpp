#include "tests/support/Outcome.h"
#include "zilvo/platform/values/Conversions.h"
#include "zilvo/platform/values/Guid.h"
#include "zilvo/platform/values/StdFont.h"
#include "zilvo/platform/values/Text.h"

#include <gtest/gtest.h>
#include <limits>

namespace zilvo::platform {

namespace {

template <class T>
Status statusOf(const Variant& value) {
    return outcomeOf([&] { convert<T>(value); }).status;
}

const FontRef& someFont() {
    static const FontRef font = StdFont::make({.Name = u"Arial"});
    return font;
}

} // namespace

TEST(Conversions, NumbersRoundHalfToEvenAndOverflowAtTheirBounds) {
    struct Case {
        Variant value;
        Integer expected;
    };
    const Case cases[] = {
        {2.5F, 2},  {3.5F, 4},  {-2.5F, -2},      {-0.5F, 0},    {32767.4F, 32767}, {Long{-32768}, -32768},
        {true, -1}, {false, 0}, {u" +12.5 ", 12}, {u"1e2", 100}, {u"-7", -7},       {Colour{5}, 5}};
    for (const Case& tried : cases)
        EXPECT_EQ(toInteger(tried.value), tried.expected) << describe(tried.value);

    for (const Variant& value :
         {Variant(Long{32768}), Variant(Long{-32769}), Variant(32767.5F), Variant(u"40000"), Variant(u"1e999"),
          Variant(u"1e-999"), Variant(std::numeric_limits<float>::quiet_NaN())})
        EXPECT_EQ(statusOf<Integer>(value), Status::Overflow) << describe(value);
    EXPECT_EQ(toLong(Variant(-2147483648.0F)), std::numeric_limits<Long>::min());
    EXPECT_EQ(statusOf<Long>(Variant(2147483648.0F)), Status::Overflow);
    EXPECT_EQ(statusOf<Single>(Variant(u"1e39")), Status::Overflow);
    EXPECT_EQ(toNumber(Variant(u"4.9e-324")), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(toColour(Variant(Long{-2147483633})), colours::ButtonFace);
}

TEST(Conversions, WhatHoldsNoNumberIsATypeMismatch) {
    for (const Variant& value :
         {Variant(u""), Variant(u"12x"), Variant(u"0x10"), Variant(u"inf"), Variant(u"nan"), Variant(u"1 2"),
          Variant(u"+-3"), Variant(u"--3"), Variant(u"++3"), Variant(u"\n3"), Variant(u"1,5"), Variant(u"."),
          Variant(u"\u0663"), Variant(), Variant(Missing()), Variant(someFont()), Variant(BooleanArray(1, {true}))}) {
        EXPECT_EQ(statusOf<Integer>(value), Status::TypeMismatch) << describe(value);
        EXPECT_EQ(statusOf<bool>(value), Status::TypeMismatch) << describe(value);
    }
    EXPECT_EQ(statusOf<FontRef>(Variant(u"Arial")), Status::TypeMismatch);
    EXPECT_EQ(statusOf<FontRef>(Variant(FontRef())), Status::InvalidPropertyValue);
    EXPECT_EQ(statusOf<String>(Variant(someFont())), Status::TypeMismatch);
}

TEST(Conversions, BooleansReadAnyNonZeroAndTheirWords) {
    for (const Variant& value :
         {Variant(Integer{5}), Variant(u"TRUE"), Variant(u"-1"), Variant(0.25F), Variant(Boolean{2})})
        EXPECT_TRUE(toBoolean(value)) << describe(value);
    for (const Variant& value : {Variant(Long{0}), Variant(u"false"), Variant(u"0.0")})
        EXPECT_FALSE(toBoolean(value)) << describe(value);
}

TEST(Conversions, TextOfEachKind) {
    EXPECT_EQ(toString(Variant(true)), u"True");
    EXPECT_EQ(toString(Variant(Long{-32})), u"-32");
    EXPECT_EQ(toString(Variant(0.1F)), u"0.1");
    EXPECT_EQ(toString(Variant()), u"");
}

TEST(Conversions, MessagesNameTheValueItsKindAndWhatItWasFor) {
    EXPECT_EQ(outcomeOf([] { toInteger(Variant(u"ten"), u"CounterValue"); }).message,
              "CounterValue: \"ten\" (String) does not convert to Integer");
}

TEST(Variants, AReferenceReadsAndWritesItsVariable) {
    Long seat = 3;
    Variant reference = Variant::to(seat);
    EXPECT_TRUE(reference.isReference());
    EXPECT_EQ(reference.kind(), Kind::Long);
    reference.assign(Variant(u"7"));
    EXPECT_EQ(seat, 7);
    const Variant copy = reference.value();
    seat = 8;
    EXPECT_EQ(toLong(copy), 7);
    EXPECT_EQ(toInteger(reference), 8);

    EXPECT_THROW(reference.assign(Variant(u"x")), Failure);
    EXPECT_EQ(seat, 8);
    Boolean flag = Boolean::False;
    Variant::to(flag).assign(Variant(Integer{3}));
    EXPECT_EQ(flag, Boolean::True);
    BooleanArray seats(0, {true, false});
    Variant::to(seats).findArray()->At(1) = Boolean::True;
    EXPECT_TRUE(isTrue(seats.At(1)));
}

TEST(BooleanArrays, BoundsAndTheirFailures) {
    BooleanArray seats(2, {true, false, true});
    EXPECT_EQ(seats.LowerBound(), 2);
    EXPECT_EQ(seats.UpperBound(), 4);
    for (const Long outside : {1, 5, std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max()})
        EXPECT_THROW(seats.At(outside), Failure) << outside;
    EXPECT_THROW(BooleanArray().UpperBound(), Failure);
    EXPECT_THROW(BooleanArray(std::numeric_limits<Long>::max(), {true, true}), Failure);
    EXPECT_EQ(BooleanArray(-1, {true}).UpperBound(), -1);
}

TEST(Guids, TextThereAndBack) {
    constexpr auto id = "{f183cff5-42c5-44a4-958c-928e204ebe8b}"_guid;
    EXPECT_EQ(id.text(), "{F183CFF5-42C5-44A4-958C-928E204EBE8B}");
    EXPECT_EQ(Guid::parse("F183CFF5-42C5-44A4-958C-928E204EBE8B"), id);
    for (const char* wrong : {"", "{}", "{F183CFF5-42C5-44A4-958C-928E204EBE8B", "F183CFF5x42C5-44A4-958C-928E204EBE8B",
                              "G183CFF5-42C5-44A4-958C-928E204EBE8B", "{F183CFF5-42C5-44A4-958C-928E204EBE8B}}"})
        EXPECT_FALSE(Guid::parse(wrong)) << wrong;
}

TEST(Texts, ConversionReplacesWhatIsInvalidAndKeepsTheRest) {
    const String all = u"\x7F\u0080\u07ff\u0800\uffff\U00010000\U0010ffff\U0001f0a1";
    EXPECT_EQ(toUtf16(toUtf8(all)), all);
    EXPECT_EQ(toUtf8(all).size(), 1U + 2 + 2 + 3 + 3 + 4 + 4 + 4);
    EXPECT_EQ(toUtf8(String{u'a', 0xD800, u'b', 0xDC00}), "a\xEF\xBF\xBD"
                                                          "b\xEF\xBF\xBD");
    for (const char* invalid : {"\x80", "\xC0\x80", "\xE2\x82", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF"}) {
        const auto text = toUtf16(std::string("<") + invalid + ">");
        EXPECT_EQ(text.front(), u'<');
        EXPECT_EQ(text.back(), u'>');
        EXPECT_NE(text.find(u'\uFFFD'), String::npos);
    }
}

TEST(Texts, CaptionsAndAccessKeys) {
    struct Case {
        StringView designed, shown;
        std::size_t underlined;
        char16_t key;
    };
    const Case cases[] = {{u"&OK", u"OK", 0, u'O'},
                          {u"1&0", u"10", 1, u'0'},
                          {u"Ben && Co", u"Ben & Co", String::npos, 0},
                          {u"Do&wn&town", u"Downtown", 2, u'W'},
                          {u"end&", u"end", String::npos, 0},
                          {u"", u"", String::npos, 0},
                          {u"&&&x", u"&x", 1, u'X'}};
    for (const Case& tried : cases) {
        const Caption caption = captionOf(tried.designed);
        EXPECT_EQ(caption.text, tried.shown);
        EXPECT_EQ(caption.underlined, tried.underlined);
        EXPECT_EQ(accessKeyOf(tried.designed), tried.key);
    }
}

TEST(Fonts, MembersByNameAndTheirLimits) {
    const auto font = StdFont::make({.Name = u"Arial", .Size = 9});
    putMember(*font, u"bold", true);
    EXPECT_EQ(font->get_Weight(), 700);
    font->put_Weight(900);
    font->put_Bold(true);
    EXPECT_EQ(font->get_Weight(), 900) << "a heavy font is bold already";
    for (const auto& refused :
         {std::pair<StringView, Variant>{u"Size", 0.0F}, {u"Size", -1.0F}, {u"Weight", Integer{0}}, {u"Name", u""}})
        EXPECT_EQ(outcomeOf([&] { putMember(*font, refused.first, refused.second); }).status,
                  Status::InvalidPropertyValue);
    EXPECT_THROW(getMember(*font, u"Colour"), Failure);
}

} // namespace zilvo::platform
