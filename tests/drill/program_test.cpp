#include "demos/drill/Window.h"
#include "tests/zilvo-qt/Display.h"

#include <QAccessible>
#include <QMessageBox>
#include <QTemporaryDir>

/// The program as a player uses it: by what it says on the screen. Where there is a display, by its pointer and
/// keyboard.
namespace drill {
namespace {

using namespace zilvo::qt;

const bool HasDisplay = qEnvironmentVariableIsSet("ZILVO_TEST_SCREEN");

/// What is called so on the widget; of two the one that can be seen. Null for none.
QAccessibleInterface* find(QAccessibleInterface* in, const QString& name) {
    if (in->state().invisible) return nullptr;
    if (in->text(QAccessible::Name) == name && in->role() != QAccessible::StaticText) return in;
    for (int i = 0; i < in->childCount(); ++i)
        if (QAccessibleInterface* found = find(in->child(i), name)) return found;
    return nullptr;
}

class DrillProgram : public testing::Test {
protected:
    void open(Window::Options options = {.folder = {}, .decks = {}, .seed = 7}) {
        options.folder = folder_.path();
        window_ = std::make_unique<Window>(options);
        window_->show();
        window_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    }

    template <class Widget>
    Widget& the() const {
        return *window_->findChild<Widget*>();
    }
    /// Clicks on what is called so on the only widget of a class.
    template <class Widget = QWidget>
    void click(const QString& name) const {
        QWidget& widget = the<Widget>();
        QAccessibleInterface* found = find(QAccessible::queryAccessibleInterface(&widget), name);
        ASSERT_TRUE(found) << qPrintable(name);
        clickAt(*window_, window_->mapFromGlobal(found->rect().center()));
    }
    void clickButton(const QString& text) const {
        for (QPushButton* button : window_->findChildren<QPushButton*>())
            if (button->isVisible() && button->text() == text) return clickAt(*button, button->rect().center());
        FAIL() << qPrintable(text);
    }
    static void clickAt(QWidget& window, QPoint at) {
        if (HasDisplay) return xdotool(moveTo(window, at) + QStringList{"click", "1"});
        QWidget* under = window.childAt(at);
        QTest::mouseClick(under ? under : &window, Qt::LeftButton, {}, under ? under->mapFrom(&window, at) : at);
    }
    static void press(const char* keys) {
        for (const QString& key : QString(keys).split(' ')) {
            if (HasDisplay)
                xdotool({"key", key == "Space" ? "space" : key});
            else
                QTest::keySequence(QApplication::focusWidget(), QKeySequence(key));
        }
    }
    bool says(const QString& text) const {
        return QTest::qWaitFor([&] {
            const auto labels = window_->findChildren<QLabel*>();
            return std::ranges::any_of(
                labels, [&](QLabel* label) { return label->isVisible() && label->text().contains(text); });
        });
    }
    void dealCards(int cards) const {
        for (int card = 0; card < cards; ++card)
            window_->findChild<TablePage*>()->dealCard();
    }
    std::vector<Result> results() const {
        return Store(folder_.path(), [](const QString& message) { ADD_FAILURE() << qPrintable(message); }).results();
    }

    QTemporaryDir folder_;
    std::unique_ptr<Window> window_;
};

// The first cards of the shoe with the seed 7, computed by a program of its own: Tc 3h 8c 5s Qc Qc, and so the running
// count -1 0 0 1 0 -1.

TEST_F(DrillProgram, ByPointerFromTheSetUpToTheResultAndAgain) {
    open();
    click<DeckButtons>("8 Decks");
    click<DeckButtons>("6 Decks");
    click<SitDownButton>("Sit Down");
    click<SitDownButton>("2");
    EXPECT_TRUE(says("You sit at: 2"));
    clickButton("Other &players…");
    click<paneledSeatBoxes>("7");
    click<paneledSeatBoxes>("1");
    click<paneledSeatBoxes>("7");
    click<paneledSeatBoxes>("Done");
    EXPECT_TRUE(says("Other players: 1"));
    click<SpreadSeatButtons>("Spread Seats");
    for (const char* seat : {"1", "2", "4"}) // of which two are taken
        click<SpreadSeatButtons>(seat);
    EXPECT_TRUE(says("You spread to: 4"));
    click<ssOKCancel>("OK");

    click<GamingCardSelection>("Table");
    click<SwitchCardsButton>("Switch Cards");
    click<StartStopButtons>("START");
    ASSERT_TRUE(says("STOP ends"));
    dealCards(6);
    EXPECT_EQ(the<Felt>().accessibleName(), "Seat 2: Queen");
    EXPECT_EQ(the<Felt>().accessibleDescription(),
              "Dealer: Five; Seat 1: Ten, Queen; Seat 2: yours, Three, Queen; Seat 4: yours, Eight");
    click<StartStopButtons>("STOP");
    ASSERT_TRUE(says("What is the running count?"));
    click<PlusMinusButton>("Plus");
    clickAt(the<SpinCounter>(), QPoint(the<SpinCounter>().width() - 5, 5));
    click<verticalOK>("OK");
    EXPECT_TRUE(says("Right: the running count is -1."));
    EXPECT_TRUE(says("1 of 1 counts were right."));

    const QListWidget& cards = the<QListWidget>();
    EXPECT_EQ(cards.count(), 6);
    EXPECT_EQ(cards.item(3)->text(), "+1");
    EXPECT_EQ(cards.item(3)->data(Qt::AccessibleTextRole), "Dealer: Five of spades, count +1, true count 0");
    const auto selected = [&] {
        std::string marks;
        for (int i = 0; i < cards.count(); ++i)
            marks += cards.item(i)->isSelected() ? 'x' : '.';
        return marks;
    };
    EXPECT_EQ(selected(), ".x...x");
    click<PlayerButtons>("Seat 4");
    EXPECT_EQ(selected(), "..x...");
    ASSERT_EQ(results().size(), 1U);
    const Settings expected{.seat = 2, .spread = 1 << 4, .others = 1 << 1, .played = PlayedCards::ToTable};
    EXPECT_EQ(results()[0].settings, expected);

    click<SeatCheckBoxes>("7");
    clickButton("Deal &again to 2, 7");
    click<StartStopButtons>("START");
    dealCards(2);
    EXPECT_EQ(the<Felt>().accessibleName(), "Seat 2: Three");
    for (const LetterButton* letter : window_->findChildren<LetterButton*>())
        EXPECT_EQ(letter->isVisible(), letter->toolTip().endsWith('2') || letter->toolTip().endsWith('7'));
}

TEST_F(DrillProgram, ByKeyboardFromTheSetUpToTheResult) {
    open();
    press("Return"); // OK
    press("Return"); // START
    ASSERT_TRUE(says("STOP ends"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return the<Felt>().accessibleName() == "Seat 4: Ten of clubs"; }));
    window_->table().pause();
    dealCards(3);
    press("Return"); // STOP
    ASSERT_TRUE(says("What is the running count?"));
    press("Up Up Shift+Tab Space Tab Tab Space");
    EXPECT_TRUE(says("Wrong: the running count is +1, and not -2."));
    ASSERT_EQ(results().size(), 1U);
    EXPECT_EQ(results()[0].cards, 4);
    press("Alt+t"); // to the table
    ASSERT_TRUE(says("START deals"));
    press("Return");
    EXPECT_TRUE(says("STOP ends"));
}

TEST_F(DrillProgram, EndsWithTheShoeAndAsks) {
    open({.folder = {}, .decks = 1, .seed = 7});
    press("Return Return");
    ASSERT_TRUE(says("STOP ends"));
    dealCards(41); // 40 and no more: of the 52 a round takes four, and behind the cut card lie 13
    EXPECT_TRUE(says("What is the running count?"));
    EXPECT_FALSE(the<StartStopButtons>().isEnabled());
}

TEST_F(DrillProgram, LeavingInTheMiddleAsks) {
    open();
    press("Return Return");
    ASSERT_TRUE(says("STOP ends"));
    dealCards(1);
    const auto leave = [&](QMessageBox::StandardButton answer) {
        QTimer::singleShot(0, window_.get(), [answer] {
            qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->button(answer)->click();
        });
        return window_->close();
    };
    EXPECT_FALSE(leave(QMessageBox::No));
    EXPECT_TRUE(QTest::qWaitFor([&] { return the<Felt>().accessibleName() == "Dealer: Three of hearts"; }))
        << "goes on";
    EXPECT_TRUE(leave(QMessageBox::Yes));
    EXPECT_TRUE(results().empty());
    window_->table().pause();
}

TEST_F(DrillProgram, SetsDamagedFilesAsideAndStarts) {
    const auto write = [&](const char* name, const char* content) {
        QFile file(folder_.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) >= 0);
    };
    const auto settings = [](const char* fields) {
        return std::string("{") + fields + ", \"shuffle\": 4, \"pace\": 4}";
    };
    const std::string damaged[] = {"", "{\"decks\": 6",
                                   settings(R"("decks": 6, "seat": "4", "spread": 0, "others": 0, "played": 1)"),
                                   settings(R"("decks": 3, "seat": 4, "spread": 0, "others": 0, "played": 1)"),
                                   settings(R"("decks": 6, "seat": 4, "spread": 16, "others": 0, "played": 1)")};
    int count = 0;
    for (const std::string& content : damaged) {
        write("settings.json", content.c_str());
        open();
        EXPECT_TRUE(says(++count == 1 ? "settings.json.damaged." : "settings.json.damaged-" + QString::number(count)));
        EXPECT_TRUE(says("You sit at: 4"));
    }
    write("results.json", "[{}]");
    press("Return Return");
    dealCards(1);
    press("Return");
    window_->findChild<verticalOK*>()->setFocus(Qt::TabFocusReason);
    press("Space");
    EXPECT_TRUE(says("results.json.damaged"));
    EXPECT_EQ(results().size(), 1U);
}

TEST_F(DrillProgram, KeepsResultsWholeAndOfProgramsSideBySide) {
    QString told;
    const Store one(folder_.path(), {}), other(folder_.path(), {});
    const Store nowhere("/dev/null/drill", [&](const QString& message) { told += message; });
    const Result first{.when = -1, .settings = {.decks = 12, .spread = 6}, .seed = UINT64_MAX, .count = -4};
    const Result second{.when = 1262304000, .settings = {.others = 6, .pace = Pace::Fastest}, .cards = 9, .answer = 3};
    one.add(first);
    EXPECT_EQ(other.add(second), (std::vector{first, second}));
    EXPECT_EQ(one.results(), (std::vector{first, second}));
    EXPECT_EQ(nowhere.add(first).size(), 1U);
    EXPECT_TRUE(told.startsWith("/dev/null/drill/results.json could not be written")) << qPrintable(told);
}

} // namespace
} // namespace drill
