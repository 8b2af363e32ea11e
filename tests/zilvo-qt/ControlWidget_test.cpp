#include "tests/zilvo-qt/Form.h"

#include "zilvo/platform/widgets/SpinButton.h"

#include <QAccessible>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QToolTip>

namespace zilvo::qt {
namespace {

using namespace platform;

TEST(ControlWidget, ThePointerClicksHoldsAndLetsGo) {
    Shown form;
    auto& gallery = form.add<Hosted>("WidgetGallery");
    form.open();
    const QPoint go = gallery.at(gallery.widget(u"cmdPush", 0));
    QTest::mouseClick(&gallery, Qt::LeftButton, {}, go);
    QTest::mouseDClick(&gallery, Qt::LeftButton, {}, go); // its second press
    QTest::mouseRelease(&gallery, Qt::LeftButton, {}, go);
    EXPECT_EQ(gallery.heard(), "CommandClicked(0) CommandClicked(0)");
    QTest::mousePress(&gallery, Qt::LeftButton, {}, go);
    EXPECT_TRUE(gallery.widget(u"cmdPush", 0).isPressed());
    QTest::mouseMove(&gallery, {1, 1});
    EXPECT_FALSE(gallery.widget(u"cmdPush", 0).isPressed());
    QTest::mouseRelease(&gallery, Qt::LeftButton, {}, {1, 1});
    EXPECT_EQ(gallery.heard(), "");

    const QPoint up = gallery.at(gallery.widget(u"spnCount"), 0.5, 0.25);
    QTest::mousePress(&gallery, Qt::LeftButton, {}, up);
    EXPECT_EQ(gallery.heard(), "SpunUp()");
    const auto repeats = [&] { return gallery.heard() == "SpunUp()"; };
    EXPECT_TRUE(QTest::qWaitFor(repeats));
    QDialog dialog(&form); // which takes the pointer
    dialog.setModal(true);
    dialog.show();
    EXPECT_FALSE(gallery.control().clockWanted());
    dialog.close();
    QTest::mouseRelease(&gallery, Qt::LeftButton, {}, up);

    gallery.heard();
    const QPoint ribbon = gallery.at(gallery.widget(u"panelRibbons"), 0.9);
    QTest::mouseClick(&gallery, Qt::MiddleButton, Qt::ShiftModifier, gallery.at(gallery.widget(u"panelOptions"), 0.9));
    EXPECT_EQ(gallery.heard().substr(0, 18), "PanelPressed(4, 1)");
    QTest::mouseClick(&gallery, Qt::BackButton, {}, ribbon);
    EXPECT_EQ(gallery.heard(), "");
}

TEST(ControlWidget, TheWheelTurnsTheSpinButton) {
    Hosted counter("SpinCounter");
    const auto turn = [&](int by) {
        QWheelEvent event(QPointF(3, 3), counter.mapToGlobal(QPointF(3, 3)), {}, {0, by}, {}, {}, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(&counter, &event);
        return event.isAccepted();
    };
    EXPECT_TRUE(turn(60));
    EXPECT_EQ(counter.get("CounterValue"), 0);
    EXPECT_TRUE(turn(60) && turn(240));
    EXPECT_EQ(counter.get("CounterValue"), 3);
    turn(-120);
    EXPECT_EQ(counter.get("CounterValue"), 2);
    Hosted decks("DeckButtons");
    QWheelEvent event(QPointF(3, 3), QPointF(3, 3), {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&decks, &event);
    EXPECT_FALSE(event.isAccepted()) << "is the form's, which may scroll";
}

TEST(ControlWidget, TabGoesThroughAndOutAtBothEnds) {
    Shown form;
    auto& first = form.add<Hosted>("ssOKCancel");
    form.add<Hosted>("GOButton"); // has no use for the keyboard
    auto& second = form.add<Hosted>("ssOKCancel");
    auto& edit = form.add<QLineEdit>();
    for (const Hosted* pair : {&first, &second})
        putMember(pair->widget(u"cmdOK"), u"Enabled", true);
    form.open();
    const auto where = [&] {
        return edit.hasFocus()     ? "edit"
               : first.hasFocus()  ? "first." + first.focused()
               : second.hasFocus() ? "second." + second.focused()
                                   : "nowhere";
    };
    edit.setFocus();
    std::string way;
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab), way += where() + " ";
    EXPECT_EQ(way, "first.cmdOK first.cmdCancel second.cmdOK second.cmdCancel edit ");
    EXPECT_EQ(first.focused() + second.focused(), "nonenone");
    way.clear();
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab, Qt::ShiftModifier), way += where() + " ";
    EXPECT_EQ(way, "second.cmdCancel second.cmdOK first.cmdCancel first.cmdOK edit ");
    QTest::mouseClick(&first, Qt::LeftButton, {}, first.at(first.widget(u"cmdCancel")));
    EXPECT_EQ(where(), std::string("first.cmdCancel"));
    edit.setFocus();
    first.setFocus();
    EXPECT_EQ(where(), std::string("first.cmdCancel")) << "where it was";

    Shown alone;
    auto& only = alone.add<Hosted>("StartStopButtons");
    alone.open();
    only.setFocus(Qt::BacktabFocusReason);
    const std::string last = only.focused();
    QTest::keyClick(&only, Qt::Key_Tab);
    EXPECT_NE(only.focused(), last);
    QTest::keyClick(&only, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(only.focused(), last) << "goes round";
}

TEST(ControlWidget, APictureIsClickedWithSpaceWhereNothingElseTakesTheKeyboard) {
    Shown form;
    auto& edit = form.add<QLineEdit>();
    auto& sign = form.add<Hosted>("PlusMinusButton");
    form.add<Hosted>("LetterButton"); // which cannot be clicked
    form.open();
    const QImage before = sign.grab().toImage();
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_Tab);
    ASSERT_TRUE(sign.hasFocus());
    EXPECT_NE(sign.grab().toImage(), before) << "shows that it has the keyboard";
    const QAccessibleInterface* object = QAccessible::queryAccessibleInterface(&sign);
    EXPECT_EQ(object->focusChild()->text(QAccessible::Name), "Plus");
    EXPECT_TRUE(object->focusChild()->state().focused && object->focusChild()->state().focusable);
    QTest::keyClick(&sign, Qt::Key_Space);
    EXPECT_EQ(object->focusChild()->text(QAccessible::Name), "Minus");
    QTest::keyClick(&sign, Qt::Key_Space);
    EXPECT_EQ(sign.heard(), "WasClicked(3) WasClicked(2)");
    QTest::keyClick(&sign, Qt::Key_Tab);
    EXPECT_TRUE(edit.hasFocus());
    EXPECT_EQ(sign.grab().toImage(), before);
}

TEST(ControlWidget, KeysActOrGoOnToTheForm) {
    Shown form;
    auto& gallery = form.add<Hosted>("WidgetGallery");
    form.open();
    gallery.setFocus();
    gallery.input(input::FocusOn{gallery.widget(u"optChoice", 1)});
    QTest::keyClick(&gallery, Qt::Key_Down);
    QTest::keyClick(&gallery, Qt::Key_Space);
    QTest::keyClicks(&gallery, "x");
    EXPECT_EQ(gallery.heard(), "OptionClicked(2) KeyTyped(32) KeyTyped(120)");
    QTest::keyClick(&gallery, Qt::Key_Enter);
    QTest::keyClick(&gallery, Qt::Key_Escape);
    EXPECT_EQ(gallery.heard(), "KeyTyped(13) CommandClicked(0) KeyTyped(27) CommandClicked(1)");
    QKeyEvent unused(QEvent::KeyPress, Qt::Key_F5, {});
    QApplication::sendEvent(&gallery, &unused);
    EXPECT_FALSE(unused.isAccepted());
}

TEST(ControlWidget, EnterAndEscapeAreTheWindows) {
    Shown<QDialog> dialog;
    auto& edit = dialog.add<QLineEdit>();
    auto& pair = dialog.add<Hosted>("ssOKCancel");
    auto& other = dialog.add<Hosted>("Outer");
    auto& plain = dialog.add<QPushButton>("Plain");
    plain.setAutoDefault(false);
    int clicks = 0;
    QObject::connect(&plain, &QPushButton::clicked, [&] { ++clicks; });
    putMember(pair.widget(u"cmdOK"), u"Enabled", true);
    dialog.open();
    edit.setFocus();
    const auto press = [&](Qt::Key key) {
        QCoreApplication::processEvents();
        QTest::keyClick(dialog.focusWidget(), key);
        return pair.heard() + other.heard() + std::string(static_cast<std::size_t>(std::exchange(clicks, 0)), '*');
    };
    const auto heavy = [&](const Hosted& hosted) {
        QCoreApplication::processEvents();
        return hosted.displaysDefault();
    };
    EXPECT_TRUE(heavy(pair) && !heavy(other));
    EXPECT_EQ(press(Qt::Key_Return), "OKWasClicked()");
    EXPECT_EQ(press(Qt::Key_Escape), "CancelWasClicked()");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(pair.focused(), "none") << "nothing moves the keyboard";
    putMember(pair.widget(u"cmdOK"), u"Enabled", false);
    EXPECT_TRUE(heavy(other));
    EXPECT_EQ(press(Qt::Key_Return), "PushClicked(1)");
    plain.setDefault(true);
    EXPECT_EQ(press(Qt::Key_Return), "*") << "the dialog's own";
    other.setFocus();
    EXPECT_TRUE(heavy(other));
    EXPECT_EQ(press(Qt::Key_Return), "PushClicked(0)") << "the one that has the keyboard";
    plain.setFocus();
    EXPECT_EQ(press(Qt::Key_Return), "*");
    EXPECT_FALSE(heavy(other));

    Hosted alone("Outer"); // is its own window
    alone.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&alone));
    alone.input(input::FocusOn{alone.widget(u"cmdPush", 0)});
    QTest::keyClick(&alone, Qt::Key_Return);
    QTest::keyClick(&alone, Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(alone.heard(), "PushClicked(0) PushClicked(1)");
}

TEST(ControlWidget, LettersWithAltGoToWhoAnswersNow) {
    Shown form;
    auto& edit = form.add<QLineEdit>();
    auto& one = form.add<Hosted>("WidgetGallery");
    auto& other = form.add<Hosted>("Outer");
    form.open();
    edit.setFocus();
    const auto alt = [&](Qt::Key key) { QTest::keyClick(form.focusWidget(), key, Qt::AltModifier); };
    alt(Qt::Key_2); // of both
    EXPECT_EQ(one.heard() + "|" + other.heard(), "SSOptionClicked(2, -1)|");
    EXPECT_EQ(one.focused(), "ssoSeat(2)");
    alt(Qt::Key_2);
    EXPECT_EQ(one.heard() + "|" + other.heard(), "|Picked(2)");
    EXPECT_TRUE(other.hasFocus());
    alt(Qt::Key_2);
    EXPECT_EQ(one.heard() + "|" + other.heard(), "SSOptionClicked(2, -1)|");
    alt(Qt::Key_B);
    EXPECT_EQ(other.heard(), "PushClicked(0)");
    other.setEnabled(false);
    alt(Qt::Key_B);
    EXPECT_EQ(other.heard(), "");
}

TEST(ControlWidget, MenusAreTheToolkits) {
    Shown form;
    auto& gallery = form.add<Hosted>("WidgetGallery");
    form.open();
    const auto open = [&] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); };
    QTest::mousePress(&gallery, Qt::RightButton, {}, gallery.at(gallery.widget(u"panelOptions"), 0.9));
    ASSERT_TRUE(open());
    QStringList items;
    for (const QAction* action : open()->actions())
        items.append(action->isSeparator() ? "-"
                                           : action->text() + (action->isEnabled() ? "" : "!") +
                                                 (action->isChecked() ? "*" : "") + (action->menu() ? ">" : ""));
    EXPECT_EQ(items.join(" ").toStdString(), "&Open &Locked! &Ticked* - &More>");
    QTest::keyClick(open(), Qt::Key_M);
    ASSERT_TRUE(QTest::qWaitFor([&] { return open() && open()->actions().size() == 2; }));
    QTest::keyClick(open(), Qt::Key_S);
    EXPECT_TRUE(QTest::qWaitFor([&] { return gallery.heard() == "MenuClicked(11)"; }));
    EXPECT_FALSE(open());

    gallery.setFocus();
    gallery.input(input::FocusOn{gallery.widget(u"optChoice", 1)});
    QTest::keyClick(&gallery, Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_TRUE(open());
    gallery.restoreSettings({}); // with the control its menu goes
    EXPECT_FALSE(open());
}

TEST(ControlWidget, ToolTipsAreThoseOfThePoint) {
    Shown form;
    auto& gallery = form.add<Hosted>("WidgetGallery");
    form.open();
    const auto tipAt = [&](QPoint at) {
        QHelpEvent event(QEvent::ToolTip, at, gallery.mapToGlobal(at));
        QApplication::sendEvent(&gallery, &event);
        return event.isAccepted() ? QToolTip::text().toStdString() : "none";
    };
    EXPECT_EQ(tipAt(gallery.at(gallery.widget(u"imgChip", 1), 0.9)), "The chip in front");
    EXPECT_EQ(tipAt(gallery.at(gallery.widget(u"panelOptions"), 0.9)), "Right button for the menu");
    EXPECT_EQ(tipAt({1, 1}), "none");
}

TEST(ControlWidget, SizesFollowEachOther) {
    Shown form;
    auto& counter = form.add<Hosted>("SpinCounter");
    form.resize(600, 200);
    form.open();
    EXPECT_EQ(counter.width(), counter.sizeHint().width()) << "keeps its width";
    EXPECT_GT(counter.height(), counter.sizeHint().height());

    Hosted free("SpinCounter");
    const QSize own = free.sizeHint();
    free.show();
    free.resize(own.width() + 50, 100);
    EXPECT_EQ(free.size(), QSize(own.width(), 100));
    EXPECT_EQ(free.control().surface().area().height, 1500);
    free.call("ResetSizeToDefault");
    EXPECT_EQ(free.height(), free.sizeHint().height());
    EXPECT_LT(free.height(), 100);

    Hosted small("Small");
    small.show();
    small.put("Breadth", 3000.F);
    EXPECT_EQ(small.width(), 200);
}

TEST(ControlWidget, IsShownEnabledAndPlacedAsAWhole) {
    Shown form;
    auto& small = form.add<Hosted>("Small");
    form.open();
    small.put("Shown", false);
    EXPECT_TRUE(small.isHidden());
    small.put("Shown", true);
    EXPECT_TRUE(small.isVisible());
    small.hide();
    EXPECT_EQ(small.get("Shown"), false);
    form.hide();
    small.show();
    EXPECT_EQ(small.get("Shown"), true) << "though the form is not";
    form.show();
    form.setEnabled(false);
    EXPECT_FALSE(small.input(input::Act{small.widget(u"ssoPick", 1)}));
    small.hide();
    small.restoreSettings({});
    EXPECT_EQ(small.get("Shown"), false) << "another control is where and as this one was";
    small.show();
    EXPECT_FALSE(small.input(input::Act{small.widget(u"ssoPick", 1)}));
    const Hosted late("Small", &form);
    EXPECT_FALSE(late.control().surface().acceptsInput());
    form.setEnabled(true);
    EXPECT_TRUE(small.input(input::Act{small.widget(u"ssoPick", 1)}));
}

TEST(ControlWidget, TakesColoursFontAndModeFromTheForm) {
    QWidget form;
    Hosted small("Small", &form);
    QPalette palette = form.palette();
    palette.setColor(QPalette::Window, QColor(1, 2, 3));
    form.setPalette(palette);
    EXPECT_EQ(small.get("Ground"), QColor(1, 2, 3));
    QFont font("Arial", 11, QFont::Bold);
    form.setFont(font);
    small.restoreSettings({});
    EXPECT_EQ(small.get("Font").value<QFont>().pointSizeF(), 11);
    EXPECT_EQ(small.get("Ground"), QColor(1, 2, 3));
    EXPECT_EQ(small.get("RunsInUserMode"), true);
    small.setUserMode(false);
    EXPECT_EQ(small.get("RunsInUserMode"), false);
}

TEST(ControlWidget, SettingsGoOutAndIn) {
    Hosted small("Small");
    int told = 0;
    QObject::connect(&small, &ControlWidget::propertyChanged, [&](const QString& name) { told += name == "Title"; });
    small.put("Title", "Mine");
    EXPECT_EQ(told, 1);
    small.put("Count", 7);
    const QVariantMap saved = small.saveSettings();
    Hosted other("Small");
    other.restoreSettings(saved);
    EXPECT_EQ(other.get("Title"), "Mine");
    EXPECT_EQ(other.get("Count"), 7);
    EXPECT_EQ(other.saveSettings(), saved);
    other.input(input::Act{other.widget(u"ssoPick", 3)});
    EXPECT_EQ(other.heard(), "Picked(3)") << "still heard";
    EXPECT_THROW(other.restoreSettings({{"Allowed", 9}}), Failure);
    EXPECT_EQ(other.get("Title"), "Mine") << "what it was";
    EXPECT_THROW(other.restoreSettings({{"Count", QVariant::fromValue(QPoint())}}), Failure);
}

TEST(ControlWidget, WhatFailsIsTold) {
    Hosted outer("Outer");
    outer.on("PushClicked", [](std::span<Variant>) { throw Failure(Status::Overflow, "too many"); });
    outer.input(input::Act{outer.widget(u"cmdPush", 0)});
    EXPECT_NE(outer.heard().find("failed: "), std::string::npos);
    EXPECT_THROW(outer.put("Allowed", "many"), Failure);
    EXPECT_THROW(outer.get("Nothing"), Failure);
    EXPECT_THROW(outer.on("Nothing", {}), Failure);
    EXPECT_THROW(Hosted("NoSuchControl"), Failure);
    QVariantList arguments{7, 2, 0};
    Hosted small("Small");
    EXPECT_EQ(small.call("Divide", arguments), 3);
    EXPECT_EQ(arguments.last(), 1);
    EXPECT_EQ(small.call("Flip", {QVariant::fromValue(QList<bool>{true, false, false})}), 2);
    small.on("Picked", [](std::span<Variant> answer) { answer[0].assign(Long{2}); });
    small.input(input::Act{small.widget(u"ssoPick", 1)});
    EXPECT_TRUE(toBoolean(getMember(small.widget(u"ssoPick", 2), u"Value"))) << "the control's own variable";
}

/// A handler closes the window, deletes the widget or opens a dialog, in a click or while a spin button is held.
TEST(ControlWidget, AHandlerMayDoAnything) {
    enum Deed { Delete, DeleteWindow, Close, Dialog, Restore };
    for (const Deed deed : {Delete, DeleteWindow, Close, Dialog, Restore})
        for (const bool held : {false, true}) {
            auto* form = new Shown;
            const QPointer<QWidget> window(form);
            const QPointer<Hosted> gallery(&form->add<Hosted>("WidgetGallery"));
            form->open();
            int calls = 0;
            const auto act = [&] {
                if (++calls < (held ? 2 : 1)) return;
                if (calls > 20) gallery->setEnabled(false);
                if (deed == Delete) delete gallery;
                if (deed == DeleteWindow) delete window;
                if (deed == Close) window->close();
                if (deed == Restore) gallery->restoreSettings({});
                if (deed != Dialog) return;
                QDialog dialog(window);
                QTimer::singleShot(0, &dialog, &QDialog::accept);
                dialog.exec();
            };
            gallery->on("CommandClicked", [&](std::span<Variant>) { act(); });
            gallery->on("SpunUp", [&](std::span<Variant>) { act(); });
            if (!held) {
                QTest::mouseClick(gallery, Qt::LeftButton, {}, gallery->at(gallery->widget(u"cmdPush", 0)));
            } else {
                QTest::mousePress(gallery, Qt::LeftButton, {}, gallery->at(gallery->widget(u"spnCount"), 0.5, 0.25));
                EXPECT_TRUE(QTest::qWaitFor([&] { return calls > 1; })) << deed;
            }
            EXPECT_EQ(calls, held ? 2 : 1);
            QCoreApplication::processEvents();
            EXPECT_EQ(gallery.isNull(), deed == Delete || deed == DeleteWindow);
            delete window;
        }
}

} // namespace
} // namespace zilvo::qt
