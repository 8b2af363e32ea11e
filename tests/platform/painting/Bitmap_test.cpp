#include "zilvo/platform/painting/Bitmap.h"

#include "tests/support/Outcome.h"

#include <gtest/gtest.h>

namespace zilvo::platform {
namespace {

struct Place {
    int x;
    int y;
};

TEST(Bitmap, RowsOfAnOddWidthArePaddedAndRunFromTheBottomUp) {
    Bitmap picture(3, 2, {0x11, 0x22, 0x33});
    picture.set(0, 1, {0xAA, 0xBB, 0xCC});
    const std::vector<std::uint8_t> expected{
        40,   0,    0,    0,    3,    0,    0,    0,    2,    0, 0, 0, 1, 0, 24, 0, 0, 0, 0, 0, // up to compression
        24,   0,    0,    0,    0,    0,    0,    0,    0,    0, 0, 0, 0, 0, 0,  0, 0, 0, 0, 0, // image size and rest
        0xCC, 0xBB, 0xAA, 0x33, 0x22, 0x11, 0x33, 0x22, 0x11, 0, 0, 0,                          // bottom row
        0x33, 0x22, 0x11, 0x33, 0x22, 0x11, 0x33, 0x22, 0x11, 0, 0, 0,                          // top row
    };
    EXPECT_EQ(picture.deviceIndependent(), expected);
    EXPECT_EQ(Bitmap(16, 15).deviceIndependent().size(), 760U);
}

TEST(Bitmap, RefusesSidesAndPixelsOutOfRange) {
    for (const int side : {-1, 0, 4097}) {
        EXPECT_EQ(outcomeOf([&] { Bitmap(side, 1); }).status, Status::InvalidPropertyValue) << side;
        EXPECT_EQ(outcomeOf([&] { Bitmap(1, side); }).status, Status::InvalidPropertyValue) << side;
    }
    Bitmap picture(4, 3);
    for (const Place at : {Place{4, 0}, {0, 3}, {-1, 1}, {0, -1}})
        EXPECT_EQ(outcomeOf([&] { picture.set(at.x, at.y, {}); }).status, Status::SubscriptOutOfRange)
            << at.x << ' ' << at.y;
    EXPECT_EQ(picture.at(3, 2), Bitmap::Pixel{});
}

} // namespace
} // namespace zilvo::platform
