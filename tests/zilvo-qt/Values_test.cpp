#include "tests/support/Outcome.h"
#include "tests/zilvo-qt/SettingsFile.h"
#include "zilvo-qt/Values.h"

#include "zilvo/platform/values/StdFont.h"

#include <QPoint>
#include <gtest/gtest.h>

namespace zilvo::qt {
namespace {

using namespace platform;

Variant thereAndBack(const Variant& value) {
    return toVariant(toQVariant(value));
}

TEST(Values, GoThereAndBack) {
    Integer number = -7;
    EXPECT_EQ(toQVariant(Variant::to(number)), QVariant(-7)) << "of a reference the value";
    EXPECT_EQ(toQVariant(Variant(true)), QVariant(true));
    EXPECT_EQ(toQVariant(Variant(0.1F)), QVariant(0.1)) << "with the digits it was written with";
    EXPECT_EQ(toQVariant(Variant(u"Ä\U0001F0A1")), QVariant("Ä\U0001F0A1"));
    EXPECT_FALSE(toQVariant(Variant()).isValid());
    EXPECT_FALSE(toQVariant(Variant(Missing())).isValid());
    EXPECT_FALSE(toQVariant(Variant(FontRef())).isValid());
    const float third = 1.0F / 3;
    EXPECT_EQ(toSingle(thereAndBack(third)), third) << "to the last bit";
    for (const Variant& value : {Variant(false), Variant(Integer{-32768}), Variant(Long{2147483647}),
                                 Variant(Single{-2.5F}), Variant(u""), Variant(StdFont::make({}))})
        EXPECT_TRUE(equalByValue(thereAndBack(value), value)) << describe(value);
}

TEST(Values, ColoursOfTheSchemeKeepTheirNumber) {
    EXPECT_EQ(toQVariant(Variant(Colour{0x00112233})), QVariant(QColor(0x33, 0x22, 0x11)));
    EXPECT_EQ(toColour(QColor(0x33, 0x22, 0x11)).value, 0x00112233U);
    const Variant scheme = thereAndBack(colours::ButtonFace);
    EXPECT_EQ(platform::toColour(scheme), colours::ButtonFace);
}

TEST(Values, FontsKeepTheirMembers) {
    const FontRef font = StdFont::make({.Name = u"No such family",
                                        .Size = 9.75F,
                                        .Weight = 900,
                                        .Italic = true,
                                        .Underline = true,
                                        .Strikethrough = true});
    EXPECT_TRUE(toFont(toQFont(*font))->sameMembers(*font));
    QFont pixels("Arial");
    pixels.setPixelSize(20);
    EXPECT_EQ(toFont(pixels)->get_Size(), 15) << "points, at 96 to the inch";
}

TEST(Values, ArraysAreListsByIndex) {
    EXPECT_EQ(toList({2, {true, false}}), (QList<bool>{false, false, true, false}));
    EXPECT_EQ(toList({}), QList<bool>());
    EXPECT_EQ(toArray({true, false}), BooleanArray(0, {true, false}));
    EXPECT_EQ(toBooleanArray(toVariant(QStringList{"true", "false"})), BooleanArray(0, {true, false}));
}

TEST(Values, WhatAControlHasNoKindForIsRefused) {
    const auto statusOf = [](const QVariant& value) {
        const auto [status, message] = outcomeOf([&] { toVariant(value, u"Count"); });
        EXPECT_TRUE(status == Status::Ok || message.starts_with("Count: ")) << message;
        return status;
    };
    EXPECT_EQ(statusOf(QPoint()), Status::TypeMismatch);
    EXPECT_EQ(statusOf(2147483648LL), Status::Overflow);
    EXPECT_EQ(statusOf(-2147483649LL), Status::Overflow);
    EXPECT_EQ(statusOf(-2147483648LL), Status::Ok);
    EXPECT_EQ(statusOf(1e39), Status::Overflow);
    EXPECT_EQ(toLong(toVariant(QVariant::fromValue(Qt::RightEdge))), Qt::RightEdge);
}

TEST(Values, SettingsComeBackFromAFile) {
    MemoryPropertyBag saved;
    saved.set(u"Flag", true);
    saved.set(u"Number", Integer{-5});
    saved.set(u"Size", 0.1F);
    saved.set(u"Text", u"a, \"b\"; @c %d\nä\\");
    saved.set(u"Empty", u"");
    saved.set(u"Font", StdFont::make({.Name = u"Arial", .Size = 9.75F, .Weight = 700}));
    saved.set(u"Colour", Colour{0x00112233});
    saved.set(u"Scheme", colours::ButtonFace);
    saved.set(u"Seats", BooleanArray(0, {true, false, true}));
    saved.set(u"Seat", BooleanArray(0, {true}));
    QVariantMap written = toMap(saved);
    written["Nothing"] = QVariant();
    const QVariantMap map = throughFile(written);
    EXPECT_EQ(map["Number"], "-5") << "a file of text";
    MemoryPropertyBag read;
    fill(read, map);

    EXPECT_EQ(read.settings().size(), saved.settings().size()) << "without Nothing";
    EXPECT_TRUE(read.ReadProperty<bool>(u"Flag", false));
    EXPECT_EQ(read.ReadProperty<Integer>(u"Number", Integer{0}), -5);
    EXPECT_EQ(read.ReadProperty<Single>(u"Size", 0.0F), 0.1F);
    EXPECT_EQ(read.ReadProperty<Colour>(u"Scheme", Colour{}), colours::ButtonFace);
    for (const auto* key : {u"Text", u"Empty", u"Font"})
        EXPECT_TRUE(equalByValue(read.ReadProperty(key, {}), saved.ReadProperty(key, {})));
    EXPECT_EQ(read.ReadProperty<Colour>(u"Colour", Colour{}).value, 0x00112233U);
    for (const auto* key : {u"Seats", u"Seat"})
        EXPECT_EQ(toBooleanArray(read.ReadProperty(key, {})), toBooleanArray(saved.ReadProperty(key, {})));
}

} // namespace
} // namespace zilvo::qt
