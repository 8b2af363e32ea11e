#include "zilvo/buttons/Pictures.h"

#include <cmath>

namespace zilvo {

namespace {

using Ink = Bitmap::Pixel;
constexpr Ink Black{0, 0, 0};
constexpr Ink White{255, 255, 255};
constexpr Ink Grey{160, 160, 160};
constexpr Ink LightGrey{192, 192, 192};
constexpr Ink Green{0, 128, 0};
constexpr Ink DarkRed{128, 0, 0};
constexpr Ink Red{208, 32, 32};
constexpr Ink Brown{128, 72, 16};
constexpr Ink Blue{32, 56, 168};
constexpr Ink DarkGrey{72, 72, 72};

/// A position in a picture, in pixels from its upper left corner.
struct Spot {
    float x, y;
};

bool inBox(Spot at, float left, float top, float right, float bottom) {
    return at.x >= left && at.x < right && at.y >= top && at.y < bottom;
}

bool inEllipse(Spot at, Spot centre, float across, float down) {
    return std::hypot((at.x - centre.x) / across, (at.y - centre.y) / down) <= 1;
}

/// The corners clockwise, the area convex.
bool inCorners(Spot at, std::initializer_list<Spot> corners) {
    const Spot* from = corners.end() - 1;
    for (const Spot& to : corners) {
        if ((to.x - from->x) * (at.y - from->y) < (to.y - from->y) * (at.x - from->x)) return false;
        from = &to;
    }
    return true;
}

/// Everything of one colour in a picture.
struct Layer {
    Ink ink;
    bool (*covers)(Spot at);
};

/// Draws the layers one over the other; every pixel is the mean of sixteen spots in it.
template <std::size_t Count>
Bitmap draw(int side, Ink ground, const Layer (&layers)[Count]) {
    constexpr int spots = 4;
    const auto inkAt = [&](Spot at) {
        Ink ink = ground;
        for (const Layer& layer : layers)
            if (layer.covers(at)) ink = layer.ink;
        return ink;
    };
    Bitmap picture(side, side);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            int red = 0, green = 0, blue = 0;
            for (int spot = 0; spot < spots * spots; ++spot) {
                const auto middle = [](int pixel, int step) {
                    return static_cast<float>(2 * (spots * pixel + step) + 1) / (2 * spots);
                };
                const Ink ink = inkAt({middle(x, spot % spots), middle(y, spot / spots)});
                red += ink.red;
                green += ink.green;
                blue += ink.blue;
            }
            const auto mean = [](int sum) { return static_cast<std::uint8_t>(sum / (spots * spots)); };
            picture.set(x, y, {mean(red), mean(green), mean(blue)});
        }
    return picture;
}

// clang-format off
bool inDisc(Spot at, float radius) { return inEllipse(at, {15, 15}, radius, radius); }
bool inMinus(Spot at)              { return inBox(at, 7, 13, 23, 17); }
bool inPlus(Spot at)               { return inMinus(at) || inBox(at, 13, 7, 17, 23); }

constexpr Layer plus[] = {
    {Black, [](Spot at) { return inDisc(at, 14); }},
    {White, [](Spot at) { return inDisc(at, 12.5F); }},
    {Green, inPlus},
};

constexpr Layer minus[] = {
    {Black,   [](Spot at) { return inDisc(at, 14); }},
    {White,   [](Spot at) { return inDisc(at, 12.5F); }},
    {DarkRed, inMinus},
};

/// An open box of red plastic, seen from above its front, with a pile of cards in it.
constexpr Layer discardTray[] = {
    {Red,     [](Spot at) { return inBox(at, 4, 3, 28, 27); }},
    {DarkRed, [](Spot at) { return inBox(at, 3, 3, 6, 29) || inBox(at, 26, 3, 29, 29) || inBox(at, 3, 26, 29, 30); }},
    {White,   [](Spot at) { return inBox(at, 7, 16, 25, 26); }},
    {Grey,    [](Spot at) { return inBox(at, 7, 16, 25, 26) && std::fmod(at.y, 2.0F) >= 1; }},
    {White,   [](Spot at) { return inCorners(at, {{9, 9}, {23, 9}, {25, 16}, {7, 16}}); }},
    {Blue,    [](Spot at) { return inCorners(at, {{10, 10}, {22, 10}, {23.5F, 15}, {8.5F, 15}}); }},
};

/// A blackjack table from above: the dealer's straight side with his chips, places along the curve, two cards.
bool onTable(Spot at, float across, float down) { return at.y >= 5 && inEllipse(at, {16, 5}, across, down); }
bool onPlace(Spot at, float radius) {
    for (const Spot place : {Spot{7.5F, 12.5F}, Spot{16, 22}, Spot{24.5F, 12.5F}})
        if (inEllipse(at, place, radius, radius)) return true;
    return false;
}
constexpr Layer table[] = {
    {Brown,    [](Spot at) { return onTable(at, 16, 23) || inBox(at, 0, 3, 32, 6); }},
    {Green,    [](Spot at) { return onTable(at, 14, 21); }},
    {DarkGrey, [](Spot at) { return inBox(at, 10, 5, 22, 8); }},
    {Red,      [](Spot at) { return inBox(at, 11, 6, 15, 7); }},
    {White,    [](Spot at) { return inBox(at, 17, 6, 21, 7) || onPlace(at, 2.5F); }},
    {Green,    [](Spot at) { return onPlace(at, 1.5F); }},
    {White,    [](Spot at) { return inBox(at, 11, 10, 15, 16) || inBox(at, 17, 10, 21, 16); }},
    {Red,      [](Spot at) { return inBox(at, 12, 12, 14, 14); }},
    {Black,    [](Spot at) { return inBox(at, 18, 12, 20, 14); }},
};

/// A dealing shoe from the side: the cards lean in it, and the next one slides out at the front.
constexpr Layer shoe[] = {
    {Black,    [](Spot at) { return inCorners(at, {{11, 8}, {31, 3}, {31, 28}, {6, 28}}); }},
    {Brown,    [](Spot at) { return inCorners(at, {{12, 9}, {30, 4.5F}, {30, 27}, {7, 27}}); }},
    {White,    [](Spot at) { return inCorners(at, {{18, 10}, {27, 8}, {24, 22}, {15, 22}}); }},
    {Grey,     [](Spot at) { return inCorners(at, {{18, 10}, {27, 8}, {24, 22}, {15, 22}}) &&
                                    std::fmod(at.x + at.y / 4, 3.0F) >= 2; }},
    {Black,    [](Spot at) { return inCorners(at, {{0.5F, 26}, {9, 15.5F}, {15.5F, 20.5F}, {7, 31}}); }},
    {White,    [](Spot at) { return inCorners(at, {{2, 26}, {9, 17}, {14, 20.5F}, {7, 29.5F}}); }},
    {Red,      [](Spot at) { return inEllipse(at, {8, 23.5F}, 2, 2); }},
};
// clang-format on

template <std::size_t Count>
Bitmap drawButton(const Layer (&layers)[Count]) {
    return draw(30, LightGrey, layers);
}

/// A card picture on both grounds.
class CardPicture {
public:
    template <std::size_t Count>
    explicit CardPicture(const Layer (&layers)[Count])
        : onWhite_(draw(32, White, layers)), onYellow_(draw(32, {255, 255, 0}, layers)) {}
    const Bitmap& on(Ground ground) const { return ground == Ground::White ? onWhite_ : onYellow_; }

private:
    Bitmap onWhite_;
    Bitmap onYellow_;
};

} // namespace

const Bitmap& plusPicture() {
    static const Bitmap picture = drawButton(plus);
    return picture;
}

const Bitmap& minusPicture() {
    static const Bitmap picture = drawButton(minus);
    return picture;
}

const Bitmap& discardTrayPicture(Ground ground) {
    static const CardPicture picture(discardTray);
    return picture.on(ground);
}

const Bitmap& tablePicture(Ground ground) {
    static const CardPicture picture(table);
    return picture.on(ground);
}

const Bitmap& shoePicture(Ground ground) {
    static const CardPicture picture(shoe);
    return picture.on(ground);
}

} // namespace zilvo
