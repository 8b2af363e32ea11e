#include "tests/zilvo-qt/Display.h"
#include "tests/zilvo-qt/Form.h"

#include "zilvo/platform/painting/SvgPainter.h"

#include <QLineEdit>
#include <QMenu>
#include <QScreen>

/// With a display, a window manager and a pointer and keyboard that are no test's own: xdotool moves them.
namespace zilvo::qt {
namespace {

using namespace platform;

class Session : public testing::Test {
protected:
    /// All that was heard is this, sooner or later.
    static void hears(Hosted& hosted, const std::string& expected) {
        std::string heard;
        EXPECT_TRUE(QTest::qWaitFor([&] { return (heard += hosted.heard()) == expected; }, 20000)) << heard;
    }
    static void click(const Hosted& hosted, const Widget& widget, const char* button = "1") {
        xdotool(moveTo(hosted, hosted.at(widget)) + QStringList{"click", button});
    }
};

TEST_F(Session, ClicksAndKeys) {
    Shown form;
    auto& edit = form.add<QLineEdit>();
    auto& decks = form.add<Hosted>("DeckButtons");
    auto& pair = form.add<Hosted>("ssOKCancel");
    form.open();
    click(decks, decks.widget(u"optDeckCount", 6));
    hears(decks, "NumberOfDecksChanged(6)");
    xdotool({"key", "Down"});
    hears(decks, "NumberOfDecksChanged(8)"); // 7 is greyed
    xdotool({"key", "Tab"});
    await("the keyboard", [&] { return pair.hasFocus(); });
    xdotool({"key", "space"});
    hears(pair, "CancelWasClicked()");
    edit.setFocus();
    xdotool({"key", "Escape"});
    hears(pair, "CancelWasClicked()");
    xdotool({"type", "ab"});
    await("the text", [&] { return edit.text() == "ab"; });
    xdotool({"key", "alt+4"});
    hears(decks, "NumberOfDecksChanged(4)");
    EXPECT_EQ(edit.text(), "ab");
    EXPECT_TRUE(decks.hasFocus());
}

TEST_F(Session, ASpinButtonIsHeld) {
    Shown form;
    auto& counter = form.add<Hosted>("SpinCounter");
    form.open();
    xdotool(moveTo(counter, counter.at(counter.widget(u"SpinButton"), 0.5, 0.25)) + QStringList{"mousedown", "1"});
    await("repeats", [&] { return counter.get("CounterValue").toInt() >= 3; });
    xdotool({"mouseup", "1"});
    await("the end", [&] { return !counter.control().clockWanted(); });
    const QVariant value = counter.get("CounterValue");
    xdotool({"click", "4"});
    await("the wheel", [&] { return counter.get("CounterValue").toInt() == value.toInt() + 1; });

    xdotool({"mousedown", "1"});
    await("another press", [&] { return counter.control().clockWanted().has_value(); });
    QWidget other;
    other.show();
    other.activateWindow();
    await("another window", [&] { return other.isActiveWindow(); });
    EXPECT_FALSE(counter.control().clockWanted());
    xdotool({"mouseup", "1"});
}

TEST_F(Session, MenusByPointerAndKeyboard) {
    Shown form;
    auto& decks = form.add<Hosted>("DeckButtons");
    form.open();
    const auto menu = [] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); };
    const auto opens = [&] { await("a menu", [&] { return menu() && menu()->isVisible(); }); };
    const auto closes = [&] { await("no menu", [&] { return !menu(); }); };
    xdotool(moveTo(decks, QPoint(decks.width() - 6, 6)) + QStringList{"click", "3"});
    opens();
    xdotool({"key", "Down", "Right"});
    await("the casinos", [&] { return menu() && menu()->actions().size() > 10; });
    xdotool({"key", "Down", "Return"}); // Atlantic City
    closes();
    hears(decks, "NumberOfDecksChanged(8)");
    decks.setFocus(Qt::TabFocusReason);
    for (const char* key : {"Menu", "shift+F10"}) {
        xdotool({"key", key});
        opens();
        xdotool({"key", "Escape"});
        closes();
        EXPECT_TRUE(decks.hasFocus());
    }
}

/// How far two pictures are apart: the mean of the channels' differences, 0 to 255, and the share of pixels that differ
/// clearly.
std::pair<double, double> difference(const QImage& one, const QImage& other) {
    double sum = 0;
    double clearly = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            const int apart =
                std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
            sum += apart / 3.0;
            clearly += apart > 3 * 96 ? 1 : 0;
        }
    const double pixels = 1.0 * one.width() * one.height();
    return {sum / pixels, clearly / pixels};
}

/// That of the designs.
QPalette classicScheme() {
    QPalette palette(QColor(0xC0, 0xC0, 0xC0));
    palette.setColor(QPalette::Light, Qt::white);
    palette.setColor(QPalette::Midlight, QColor(0xDF, 0xDF, 0xDF));
    palette.setColor(QPalette::Dark, QColor(0x80, 0x80, 0x80));
    palette.setColor(QPalette::Shadow, Qt::black);
    return palette;
}

TEST_F(Session, TheScreenShowsWhatTheVectorPictureShows) {
    for (const char* name : {"DeckButtons", "ssOKCancel", "SpinCounter", "CardShufflingOptions"}) {
        Shown form;
        auto& hosted = form.add<Hosted>(name);
        form.layout()->setContentsMargins(10, 10, 10, 10); // whole pixels at both scales
        form.layout()->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        form.setPalette(classicScheme());
        form.open();
        xdotool({"mousemove", "0", "0"});
        QImage shown;
        const double ratio = hosted.devicePixelRatioF();
        const QPoint corner = (QPointF(hosted.mapTo(&form, QPoint())) * ratio).toPoint();
        await("what the widget paints", [&] {
            const QImage painted = hosted.grab().toImage().convertToFormat(QImage::Format_RGB32);
            const QImage screen = form.screen()->grabWindow(form.winId()).toImage();
            shown = screen.copy(QRect(corner, painted.size())).convertToFormat(QImage::Format_RGB32);
            shown.setDevicePixelRatio(ratio);
            return shown == painted;
        });
        const Rectangle area = hosted.control().surface().area();
        SvgPainter painter(area.width, area.height);
        ASSERT_EQ(hosted.control().Paint(painter), Status::Ok);
        const auto document = QByteArray::fromStdString(painter.document());
        const QImage drawn = QImage::fromData(run("rsvg-convert", {"--zoom", QString::number(ratio)}, document));
        ASSERT_FALSE(drawn.isNull());
        const auto [mean, clearly] = difference(shown, drawn.scaled(shown.size()));
        // At a scale between the vector picture's lines are not all equally wide.
        EXPECT_LT(mean, ratio == 1 ? 8 : 15) << name;
        EXPECT_LT(clearly, ratio == 1 ? 0.03 : 0.07) << name;
    }
}

} // namespace
} // namespace zilvo::qt

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
