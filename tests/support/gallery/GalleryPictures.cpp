#include "tests/support/gallery/GalleryPictures.h"

namespace zilvo {

namespace {

using platform::Bitmap;
constexpr int Side = 24;

Bitmap drawChip() {
    Bitmap picture(Side, Side, {192, 192, 192});
    for (int y = 0; y < Side; ++y)
        for (int x = 0; x < Side; ++x) {
            const int across = 2 * x - Side + 1;
            const int down = 2 * y - Side + 1;
            const int square = across * across + down * down;
            if (square <= Side * Side)
                picture.set(x, y, square <= 200 ? Bitmap::Pixel{255, 255, 255} : Bitmap::Pixel{160, 0, 0});
        }
    return picture;
}

Bitmap drawCard(Bitmap::Pixel face) {
    Bitmap picture(Side, Side, {192, 192, 192});
    for (int y = 2; y < Side - 2; ++y)
        for (int x = 5; x < Side - 5; ++x)
            picture.set(x, y, x == 5 || x == Side - 6 || y == 2 || y == Side - 3 ? Bitmap::Pixel{} : face);
    return picture;
}

} // namespace

const Bitmap& chipPicture() {
    static const Bitmap picture = drawChip();
    return picture;
}

const Bitmap& cardPicture(bool turnedUp) {
    static const Bitmap back = drawCard({0, 0, 160});
    static const Bitmap face = drawCard({255, 255, 255});
    return turnedUp ? face : back;
}

} // namespace zilvo
