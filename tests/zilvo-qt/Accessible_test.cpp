#include "tests/zilvo-qt/Form.h"

#include <QAccessible>

namespace zilvo::qt {
namespace {

using namespace platform;

/// What an assistive technology hears: "StateChanged 6 Decks", for a scope. Nobody is told where none can listen, which
/// is so without a screen; atspi.sh runs these tests where one can.
class Listening {
public:
    Listening() : heardBefore_(QAccessible::installUpdateHandler(log)) {
        heard().clear();
        EXPECT_TRUE(!canListen() || QTest::qWaitFor(QAccessible::isActive));
    }
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;
    ~Listening() { QAccessible::installUpdateHandler(heardBefore_); }

    bool hears(const QString& event) const {
        return !canListen() || QTest::qWaitFor([&] { return heard().contains(event); });
    }

private:
    static bool canListen() { return QGuiApplication::platformName() != QLatin1String("offscreen"); }
    static QStringList& heard() {
        static QStringList events;
        return events;
    }
    static void log(QAccessibleEvent* event) {
        const char* type = QMetaEnum::fromType<QAccessible::Event>().valueToKey(event->type());
        const QAccessibleInterface* object = event->accessibleInterface();
        heard().append(QStringLiteral("%1 %2").arg(type, object ? object->text(QAccessible::Name) : QString()));
    }

    QAccessible::UpdateHandler heardBefore_;
};

QAccessibleInterface* accessibleOf(QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget);
}

/// The first by that name in the tree; null for none.
QAccessibleInterface* find(QAccessibleInterface* in, const QString& name) {
    if (in->text(QAccessible::Name) == name) return in;
    for (int i = 0; i < in->childCount(); ++i) {
        EXPECT_EQ(in->child(i)->parent(), in);
        EXPECT_EQ(in->indexOfChild(in->child(i)), i);
        if (QAccessibleInterface* found = find(in->child(i), name)) return found;
    }
    return nullptr;
}

void act(QAccessibleInterface& object, const QString& action) {
    EXPECT_TRUE(object.actionInterface()->actionNames().contains(action));
    object.actionInterface()->doAction(action);
}

TEST(Accessible, ARadioButtonIsFoundWhereItIsSelectedAndHeard) {
    Shown form;
    auto& decks = form.add<Hosted>("DeckButtons");
    form.open();
    const Listening client;
    QAccessibleInterface& six = *find(accessibleOf(decks), "6 Decks");
    EXPECT_EQ(six.role(), QAccessible::RadioButton);
    EXPECT_EQ(six.text(QAccessible::Description), "5 of 10. 6-Deck Shoe");
    EXPECT_EQ(six.actionInterface()->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
              QStringList("Alt+6"));
    const QPoint at = decks.mapToGlobal(decks.at(decks.widget(u"optDeckCount", 6)));
    EXPECT_TRUE(six.rect().contains(at) && six.rect().size() == QSize(70, 17)) << six.rect().height();
    EXPECT_EQ(accessibleOf(decks)->childAt(at.x(), at.y()), six.parent());
    EXPECT_EQ(six.parent()->childAt(at.x(), at.y()), &six);

    act(six, QAccessibleActionInterface::toggleAction());
    EXPECT_FALSE(six.state().checked) << "nobody waits for what the control's handlers do";
    EXPECT_TRUE(QTest::qWaitFor([&] { return six.state().checked; }) && client.hears("StateChanged 6 Decks"));
    EXPECT_TRUE(six.state().checkable && !six.state().focused);
    act(six, QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(QTest::qWaitFor([&] { return six.state().focused; }) && client.hears("Focus 6 Decks"));
    EXPECT_TRUE(!accessibleOf(decks)->state().focused);
    EXPECT_EQ(accessibleOf(decks)->focusChild(), &six);

    putMember(decks.widget(u"optDeckCount", 1), u"Visible", false);
    EXPECT_TRUE(client.hears("DescriptionChanged 6 Decks"));
    putMember(decks.widget(u"panelDeckCount"), u"Enabled", false);
    EXPECT_TRUE(six.state().disabled && !six.state().invisible);
    decks.hide();
    EXPECT_TRUE(six.state().invisible);
}

TEST(Accessible, ASpinButtonHasANumberAndSteps) {
    Hosted counter("SpinCounter");
    const Listening client;
    QAccessibleInterface& spin = *find(accessibleOf(counter), "Cards in stack");
    for (const QString& action :
         {QAccessibleActionInterface::increaseAction(), QAccessibleActionInterface::increaseAction(),
          QAccessibleActionInterface::decreaseAction()})
        act(spin, action);
    EXPECT_TRUE(QTest::qWaitFor([&] { return counter.get("CounterValue") == 1; }));
    EXPECT_TRUE(client.hears("ValueChanged Cards in stack"));
    EXPECT_EQ(spin.valueInterface()->currentValue(), 1);
    EXPECT_EQ(spin.text(QAccessible::Value), "(001)");
}

TEST(Accessible, EachAspectIsTold) {
    Shown form;
    auto& gallery = form.add<Hosted>("WidgetGallery");
    form.open();
    const Listening client;
    ASSERT_TRUE(find(accessibleOf(gallery), "Quit")); // has been asked for
    putMember(gallery.widget(u"imgChip", 1), u"ToolTipText", String(u"The other"));
    putMember(gallery.widget(u"chkPick", 0), u"Value", Integer{2});
    EXPECT_TRUE(find(accessibleOf(gallery), "Left mark")->state().checkStateMixed);
    putMember(gallery.widget(u"panelOptions"), u"Visible", false);
    putMember(gallery.widget(u"panelOptions"), u"Visible", true);
    putMember(gallery.widget(u"frameChecks"), u"Left", Single{30});
    putMember(gallery.widget(u"frameChecks"), u"Enabled", false);
    putMember(gallery.widget(u"cmdPush", 1), u"Caption", String(u"Leave"));
    putMember(gallery.widget(u"cmdPush", 2), u"Default", true);
    for (const char* event : {"NameChanged The other", "StateChanged Left mark", "ObjectHide Two", "ObjectShow Two",
                              "LocationChanged Right mark", "StateChanged Right mark", "NameChanged Leave"})
        EXPECT_TRUE(client.hears(event)) << event;
    EXPECT_FALSE(find(accessibleOf(gallery), "Go")->state().defaultButton);
}

TEST(Accessible, WhatAClientHoldsEndsWithTheControl) {
    const Listening client;
    Hosted pair("ssOKCancel");
    const auto cancel = [&] { return QAccessible::uniqueId(find(accessibleOf(pair), "Cancel")); };
    const QAccessible::Id first = cancel();
    find(accessibleOf(pair), "Cancel")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    pair.restoreSettings(pair.saveSettings()); // before the action is done
    EXPECT_FALSE(QAccessible::accessibleInterface(first));
    EXPECT_TRUE(client.hears("ObjectReorder "));
    QCoreApplication::processEvents();
    EXPECT_EQ(pair.heard(), "");

    auto* leaving = new Hosted("ssOKCancel");
    leaving->on("CancelWasClicked", [&](auto) { delete leaving; });
    QAccessibleInterface& button = *find(accessibleOf(*leaving), "Cancel");
    const QAccessible::Id second = QAccessible::uniqueId(&button);
    EXPECT_TRUE(QAccessible::accessibleInterface(second));
    act(button, QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !QAccessible::accessibleInterface(second); }));
}

} // namespace
} // namespace zilvo::qt
