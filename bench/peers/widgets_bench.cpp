#include "bench/peers/Peers.h"
#include "zilvo-qt/ControlWidget.h"
#include "zilvo-qt/Painter.h"
#include "zilvo/library/ZilvoButtons.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPushButton>
#include <chrono>
#include <cstdio>
#include <malloc.h>

namespace zilvo::bench {

namespace {

using State = benchmark::State;

constexpr QSize DecksSize(541, 62);
constexpr std::array Counts{1, 2, 4, 5, 6, 7, 8, 9, 10, 12};

class PeerOKCancel : public QWidget {
public:
    PeerOKCancel() {
        ok_.setGeometry(16, 16, 65, 41);
        ok_.setEnabled(false);
        ok_.setDefault(true);
        cancel_.setGeometry(16, 56, 65, 41);
    }

private:
    QPushButton ok_{"&OK", this};
    QPushButton cancel_{"&Cancel", this};
};

template <class Made, class... Arguments>
void makeAndDestroy(State& state, const Arguments&... arguments) {
    for (auto _ : state) {
        Made made(arguments...);
        benchmark::DoNotOptimize(&made);
    }
}

template <class Control>
void createAndDestroy(State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(create<Control>());
}

void selectDecks(State& state) {
    const auto control = create<DeckButtons>();
    ControlHost host(control);
    host.open();
    long changes = 0;
    const auto connection = control->NumberOfDecksChanged.attach([&changes](Integer&) { ++changes; });
    Integer decks = 2;
    for (auto _ : state) {
        control->put_NumberOfDecks(decks);
        decks = static_cast<Integer>(8 - decks); // 2 and 6
    }
    benchmark::DoNotOptimize(changes);
}

void checkRadioButtons(State& state) {
    PeerDecks peer;
    long changes = 0;
    QObject::connect(&peer, &PeerDecks::decksChanged, &peer, [&changes] { ++changes; });
    int decks = 2;
    for (auto _ : state) {
        peer.setDecks(decks);
        decks = 8 - decks;
    }
    benchmark::DoNotOptimize(changes);
}

void paintDecks(State& state) {
    ControlHost host(create<DeckButtons>());
    host.open();
    qt::PaintCache cache;
    const QPalette palette;
    QImage image(DecksSize, QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter target(&image);
        qt::Painter painter(target, cache, palette);
        host.paint(painter);
    }
}

template <class Decks, class... Arguments>
void renderDecks(State& state, const Arguments&... arguments) {
    Decks decks(arguments...);
    decks.resize(DecksSize);
    QImage image(DecksSize, QImage::Format_RGB32);
    for (auto _ : state)
        decks.render(&image);
}

/// What the toolkit itself does for one widget on a form.
class BareWidget : public QWidget {
public:
    explicit BareWidget(QWidget* parent) : QWidget(parent) {
        resize(27, 25);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override { QPainter(this).fillRect(rect(), Qt::white); }
};

class LetterWidget : public qt::ControlWidget {
public:
    explicit LetterWidget(QWidget* parent) : ControlWidget("LetterButton", parent) {}
};

/// A window of widgets in rows, beside one another.
template <class Widget>
class Form : public QWidget {
public:
    explicit Form(int count) {
        for (int i = 0; i < count; ++i) {
            widgets_.push_back(new Widget(this));
            widgets_.back()->move(i % InRow * 34, i / InRow * 30);
        }
        resize(std::min(count, InRow) * 34, (count + InRow - 1) / InRow * 30);
    }
    Widget& last() { return *widgets_.back(); }
    void open() {
        show();
        QApplication::processEvents();
    }

private:
    static constexpr int InRow = 100;

    std::vector<Widget*> widgets_;
};

/// Nanoseconds that the body takes, the least of some tries.
template <class Body>
double timed(int tries, const Body& body) {
    double least = 1e18;
    for (int i = 0; i < tries; ++i) {
        const auto from = std::chrono::steady_clock::now();
        body();
        const std::chrono::duration<double, std::nano> took = std::chrono::steady_clock::now() - from;
        least = std::min(least, took.count());
    }
    return least;
}

void click(qt::ControlWidget& widget) {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, QPointF(12, 12), widget.mapToGlobal(QPointF(12, 12)), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {});
        QApplication::sendEvent(&widget, &event);
    }
}

struct FormCosts {
    double creation, ambient, bytes; ///< of one control
    double click, repaint;           ///< of the last control, whatever the others cost
    double bareAmbient, bareRepaint; ///< of a bare widget in its place
};

FormCosts costsOfOneForm(int count) {
    FormCosts costs{};
    const auto before = mallinfo2();
    std::optional<Form<LetterWidget>> form;
    costs.creation = timed(1, [&] { form.emplace(count); }) / count;
    const auto after = mallinfo2();
    costs.bytes = static_cast<double>(after.uordblks + after.hblkhd - before.uordblks - before.hblkhd) / count;
    form->open();
    // The first one of a form, as it comes to pass: nothing of it is in a cache from the last.
    costs.ambient = timed(1, [&] { form->setPalette(QPalette(Qt::lightGray)); }) / count;
    QApplication::processEvents();
    bool isA = false;
    costs.click = timed(50, [&] { click(form->last()); });
    costs.repaint = timed(50, [&] {
        form->last().put("Letter", (isA = !isA) ? "A" : "B");
        form->last().repaint();
    });
    form.reset();
    Form<BareWidget> bare(count);
    bare.open();
    costs.bareAmbient = timed(1, [&] { bare.setPalette(QPalette(Qt::lightGray)); }) / count;
    QApplication::processEvents();
    costs.bareRepaint = timed(50, [&] {
        bare.last().update();
        bare.last().repaint();
    });
    return costs;
}

/// The least of some forms.
FormCosts costsOf(int count) {
    FormCosts least = costsOfOneForm(count);
    for (int i = 0; i < 4; ++i) {
        const FormCosts again = costsOfOneForm(count);
        for (double FormCosts::*cost : {&FormCosts::creation, &FormCosts::ambient, &FormCosts::bytes, &FormCosts::click,
                                        &FormCosts::repaint, &FormCosts::bareAmbient, &FormCosts::bareRepaint})
            least.*cost = std::min(least.*cost, again.*cost);
    }
    return least;
}

} // namespace

PeerDecks::PeerDecks() {
    setFixedSize(DecksSize);
    caption_.setGeometry(0, 2, DecksSize.width(), 16);
    caption_.setAlignment(Qt::AlignCenter);
    int at = 0;
    for (const int count : Counts) {
        auto* button = new QRadioButton(QString("&%1 Decks").arg(count), this);
        button->setGeometry(8 + at % 6 * 88, 20 + at / 6 * 18, 84, 17);
        button->setToolTip(QString("Decks in play: %1").arg(count));
        group_.addButton(button, count);
        ++at;
    }
    for (const char* casino : {"Reset", "Atlantic City", "Strip", "Downtown", "Reno", "Lake Tahoe", "Laughlin",
                               "River boats", "Cruise ships"})
        menu_.addAction(casino);
    connect(&group_, &QButtonGroup::idToggled, this, [this](int id, bool on) {
        if (on) emit decksChanged(id);
    });
}

void compareWidgets() {
    compare("select decks, with a handler", selectDecks, "ten QRadioButtons", checkRadioButtons);
    compare("create and destroy ssOKCancel", createAndDestroy<ssOKCancel>, "two QPushButtons",
            makeAndDestroy<PeerOKCancel>);
    const auto makeWidget = [](const char* name) {
        return [name](State& state) { makeAndDestroy<qt::ControlWidget>(state, name); };
    };
    compare("the same in a ControlWidget", makeWidget("ssOKCancel"), "two QPushButtons", makeAndDestroy<PeerOKCancel>);
    compare("create and destroy DeckButtons", createAndDestroy<DeckButtons>, "ten QRadioButtons, label, menu",
            makeAndDestroy<PeerDecks>);
    compare("the same in a ControlWidget", makeWidget("DeckButtons"), "ten QRadioButtons, label, menu",
            makeAndDestroy<PeerDecks>);
    compare("paint DeckButtons anew", paintDecks, "the composite in Fusion", renderDecks<PeerDecks>, 0.6);
    compare(
        "show DeckButtons again", [](State& state) { renderDecks<qt::ControlWidget>(state, "DeckButtons"); },
        "the composite in Fusion", renderDecks<PeerDecks>, 0.35);
}

void stateManyControls() {
    constexpr int few = 10;
    constexpr int many = 10000;
    costsOfOneForm(few); // what is loaded once
    const FormCosts ten = costsOf(few);
    const FormCosts all = costsOf(many);
    std::printf("\n%-40s %14s %14s %9s %9s\n", "LetterButtons on one form", "of 10", "of 10,000", "ratio", "at most");
    const auto row = [](const char* what, double one, double other, const char* unit, const char* limit) {
        std::printf("%-40s %11.1f %s %11.1f %s %9.2f %9s\n", what, one, unit, other, unit, other / one, limit);
    };
    row("create one", ten.creation / 1000, all.creation / 1000, "us", "1.0");
    row("other colours for all, of one", ten.ambient / 1000, all.ambient / 1000, "us", "1.0");
    row("of which any widget costs the toolkit", ten.bareAmbient / 1000, all.bareAmbient / 1000, "us", "");
    row("a click on the last", ten.click / 1000, all.click / 1000, "us", "");
    row("a change of the last, with its repaint", ten.repaint / 1000, all.repaint / 1000, "us", "");
    row("of which any widget costs the toolkit", ten.bareRepaint / 1000, all.bareRepaint / 1000, "us", "");
    row("and the control itself", (ten.repaint - ten.bareRepaint) / 1000, (all.repaint - all.bareRepaint) / 1000, "us",
        "1.0");
    row("memory of one", ten.bytes / 1024, all.bytes / 1024, "KB", "");
}

} // namespace zilvo::bench
