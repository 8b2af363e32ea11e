#include "zilvo-qt/KeptPicture.h"
#include "zilvo-qt/Painter.h"
#include "zilvo-qt/Values.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <gtest/gtest.h>
#include <set>

namespace zilvo::qt {
namespace {

using namespace platform;

constexpr FontLook Plain{u"Arial", 8.25F, 400, false, false, false};
constexpr std::array Scales{1.0, 1.25, 1.5, 2.0};
constexpr BevelLine Outer{Colour{0x000000FF}, Colour{0x0000FF00}};
constexpr BevelLine Inner{Colour{0x00FF0000}, Colour{0x00FF00FF}};
const QRgb Red = qRgb(255, 0, 0);

/// A picture of 100 by 40 logical pixels, its scheme that of the palette.
class Canvas {
public:
    explicit Canvas(qreal scale = 1, const QPalette& palette = QPalette(), Metrics metrics = Metrics::Real)
        : image_(QSizeF(100 * scale, 40 * scale).toSize(), QImage::Format_RGB32) {
        image_.setDevicePixelRatio(scale);
        image_.fill(Qt::white);
        target_.begin(&image_);
        painter_.emplace(target_, cache_, palette, metrics);
    }

    Painter* operator->() { return &*painter_; }
    QRgb at(int x, int y) const { return image_.pixel(x, y); }
    const QImage& image() const { return image_; }
    /// From the first to the last column that is not of the colour at the picture's corner.
    int inkWidth() const {
        int from = image_.width();
        int to = 0;
        for (int y = 0; y < image_.height(); ++y)
            for (int x = 0; x < image_.width(); ++x)
                if (at(x, y) != at(0, 0)) from = std::min(from, x), to = std::max(to, x + 1);
        return to - from;
    }
    /// Of what stands out most from the colour at the picture's corner.
    double contrast() const {
        double most = 1;
        for (int y = 0; y < image_.height(); ++y)
            for (int x = 0; x < image_.width(); ++x)
                most = std::max(most, Scheme::contrast(at(x, y), at(0, 0)));
        return most;
    }

private:
    PaintCache cache_;
    QImage image_;
    QPainter target_;
    std::optional<Painter> painter_;
};

/// Of which an application has set the most needed colours only.
QPalette darkened() {
    QPalette palette;
    for (const auto role : {QPalette::Window, QPalette::Button, QPalette::Base})
        palette.setColor(role, QColor(53, 53, 53));
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        palette.setColor(role, Qt::white);
    return palette;
}

TEST(Painter, LinesOfTheLookAreWholePixelsAndEquallyWideAtAnyScale) {
    for (const qreal scale : Scales)
        for (Single left = 60; left < 180; left += 15) {
            SCOPED_TRACE(std::to_string(scale) + " at " + std::to_string(left));
            Canvas canvas(scale);
            canvas->bevel({left, 75, 600, 300}, std::array{Outer, Inner}, colours::Black);
            const int wide = static_cast<int>(scale);
            std::string across;
            const int middle = static_cast<int>(15 * scale);
            for (int x = 0; x < canvas.image().width(); ++x) {
                const QColor colour(canvas.at(x, middle));
                const char letter = colour == Qt::red       ? 'r'
                                    : colour == Qt::green   ? 'g'
                                    : colour == Qt::blue    ? 'b'
                                    : colour == Qt::magenta ? 'm'
                                    : colour == Qt::black   ? '.'
                                    : colour == Qt::white   ? ' '
                                                            : '?';
                if (across.empty() || letter != '.' || across.back() != '.') across += letter;
            }
            const auto many = [wide](char letter) { return std::string(static_cast<std::size_t>(wide), letter); };
            across.erase(0, across.find_first_not_of(' ')).resize(across.find_last_not_of(' ') + 1);
            EXPECT_EQ(across, many('r') + many('b') + "." + many('m') + many('g'));
        }
}

TEST(Painter, TextIsReadableOnItsGroundInAnyPalette) {
    const std::pair<Colour, Colour> onGrounds[] = {
        {colours::ButtonText, colours::LightGrey}, {colours::ButtonText, {0x00E0E0E0}},
        {colours::ButtonText, {0x00A8B090}},       {colours::WindowText, colours::White},
        {{0x00004000}, colours::LightGrey},        {{0x000000FF}, colours::ButtonFace},
        {colours::GreyText, colours::LightGrey},   {colours::GreyText, {0x00E0E0E0}},
        {colours::ButtonText, {0x00008000}},       {colours::Black, colours::LightGrey}};
    for (const QPalette& palette : {QPalette(), QPalette(QColor(0x31363B)), darkened(), QPalette(Qt::black)})
        for (const auto& [text, ground] : onGrounds) {
            Canvas canvas(2, palette);
            canvas->rectangle({0, 0, 1500, 600}, {.fill = ground, .stroke = {}}, 0);
            const FontLook large{u"Arial", 24, 700, false, false, false};
            canvas->text({.text = u"HM", .origin = {150, 500}, .width = 900, .font = large, .colour = text});
            const Scheme classic;
            const double designed = Scheme::contrast(classic[text], classic[ground]);
            EXPECT_GE(canvas.contrast() + 0.01, std::min(4.5, designed))
                << std::hex << text.value << " on " << ground.value << " with "
                << palette.color(QPalette::Button).rgb();
        }
}

TEST(Painter, StatedColoursStayButForTheFaceOfTheDesigns) {
    const auto drawn = [](const QPalette& palette, Colour colour) {
        Canvas canvas(1, palette);
        canvas->rectangle({0, 0, 1500, 600}, {.fill = colour, .stroke = {}}, 0);
        return canvas.at(50, 20);
    };
    EXPECT_EQ(drawn(QPalette(Qt::lightGray), colours::LightGrey), qRgb(0xC0, 0xC0, 0xC0));
    EXPECT_EQ(drawn(darkened(), colours::LightGrey), qRgb(53, 53, 53));
    EXPECT_EQ(drawn(darkened(), colours::ButtonFace), qRgb(53, 53, 53));
    EXPECT_EQ(drawn(darkened(), {0x00A8B090}), qRgb(0x90, 0xB0, 0xA8));
}

TEST(Painter, TextTakesItsWidthFromTheFontOrTheFontFromItsWidth) {
    for (const qreal scale : Scales) {
        Canvas real(scale);
        const QFont font(QFontInfo(QGuiApplication::font()).family(), 24); // one that is there
        const String name = toString(font.family());
        const FontLook look{name, 24, 400, false, false, false};
        EXPECT_NEAR(real->measure(u"Width", look), QFontMetricsF(font).horizontalAdvance("Width") * 15, 60) << scale;
        Canvas fitted(scale, QPalette(), Metrics::BuiltIn);
        EXPECT_EQ(fitted->measure(u"Width", look), textWidth(u"Width", look));
        fitted->text({.text = u"HHH", .origin = {150, 500}, .width = 1200, .font = look, .colour = colours::Black});
        EXPECT_NEAR(fitted.inkWidth() / scale, 80, 8) << scale;
    }
}

TEST(Painter, AnAccessKeyHasARuleUnderItAndNothingLeavesItsArea) {
    Canvas plain;
    Canvas marked;
    TextRun run{.text = u"iMi", .origin = {150, 300}, .width = 300, .font = Plain, .colour = colours::Black};
    plain->text(run);
    run.underlined = 1;
    marked->text(run);
    int rule = 0;
    for (int x = 0; x < 100; ++x)
        for (int y = 0; y < 40; ++y)
            if (marked.at(x, y) != plain.at(x, y)) {
                EXPECT_EQ(y, 21);
                ++rule;
            }
    EXPECT_NEAR(rule, plain->measure(u"M", Plain) / 15, 1);

    Canvas clipped;
    clipped->enter({150, 150, 30, 30});
    clipped->text(run);
    clipped->ellipse({-150, -150, 600, 600}, {.fill = Colour{0x000000FF}, .stroke = {}});
    clipped->leave();
    EXPECT_EQ(clipped.inkWidth(), 2);
    EXPECT_EQ(clipped.at(11, 11), Red);
}

TEST(Painter, ABitmapWhereAnotherWasIsNotTakenForIt) {
    Canvas canvas;
    std::optional<Bitmap> picture(std::in_place, 2, 2, Bitmap::Pixel{255, 0, 0});
    canvas->bitmap(*picture, {0, 0, 150, 150});
    EXPECT_EQ(canvas.at(5, 5), Red);
    picture.emplace(2, 2, Bitmap::Pixel{0, 0, 255});
    canvas->bitmap(*picture, {0, 0, 150, 150});
    EXPECT_EQ(canvas.at(5, 5), qRgb(0, 0, 255));
}

TEST(Painter, DrawsFromTheOriginOfItsTargetAndLeavesItAsItWas) {
    QImage image(100, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter target(&image);
    target.translate(10, 5);
    target.setClipRect(0, 0, 4, 4);
    PaintCache cache;
    {
        Painter painter(target, cache, QPalette());
        painter.rectangle({0, 0, 1500, 600}, {.fill = colours::Black, .stroke = {}}, 0);
    }
    target.fillRect(0, 0, 1, 1, Qt::red);
    EXPECT_EQ(image.pixel(10, 5), Red);
    EXPECT_EQ(QColor(image.pixel(13, 8)), Qt::black);
    EXPECT_EQ(QColor(image.pixel(14, 8)), Qt::white) << "what it was clipped to";
    QPainter none;
    EXPECT_THROW(Painter(none, cache, QPalette()), Failure);
}

TEST(KeptPicture, IsPaintedAnewOnlyWhenSomethingHasChanged) {
    PaintCache cache;
    KeptPicture picture(cache);
    QImage image(100, 40, QImage::Format_RGB32);
    int painted = 0;
    const auto show = [&](qreal scale, QColor colour) {
        QPainter target(&image);
        target.translate(10, 5);
        target.scale(scale, scale);
        picture.show(target, {8, 4}, [&](QPainter& painter) {
            ++painted;
            if (!colour.isValid()) throw Failure(Status::UnexpectedCall, "");
            painter.fillRect(0, 0, 8, 4, colour);
        });
    };
    image.fill(Qt::white);
    show(1.25, Qt::red);
    show(1.25, Qt::green);
    EXPECT_EQ(painted, 1);
    EXPECT_EQ(image.pixel(10, 5), Red);
    EXPECT_EQ(image.pixel(19, 9), Red) << "ten pixels by five";
    EXPECT_EQ(QColor(image.pixel(20, 5)), Qt::white);
    show(2, Qt::red);
    EXPECT_EQ(painted, 2) << "for other pixels";
    picture.makeStale();
    EXPECT_THROW(show(2, QColor()), Failure);
    show(2, Qt::blue);
    EXPECT_EQ(QColor(image.pixel(10, 5)), Qt::blue);
}

} // namespace
} // namespace zilvo::qt
