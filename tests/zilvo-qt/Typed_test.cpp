#include "gallery/Small.h"
#include "tests/zilvo-qt/Form.h"
#include "tests/zilvo-qt/SettingsFile.h"
#include "zilvo-qt/Controls.h"

#include "zilvo/platform/component/Components.h"

namespace zilvo::qt {
namespace {

using namespace platform;

using Widgets = std::vector<std::unique_ptr<ControlWidget>>;

template <class... Each>
Widgets make() {
    Widgets widgets;
    (widgets.push_back(std::make_unique<Each>()), ...);
    return widgets;
}

Widgets oneOfEach() {
    return make<GamingCardSelection, ssOKCancel, StartStopButtons, PlayerButtons, CardShufflingOptions, PlusMinusButton,
                LetterButton, SpreadSeatButtons, paneledGOButton, GOButton, SitDownButton, SeatCheckBoxes,
                paneledSeatBoxes, SwitchCardsButton, SpinCounter, DeckButtons, verticalOK>();
}

QString qualified(StringView name) {
    return "zilvo::qt::" + toQString(name);
}

QByteArray typeOf(const Type& type) {
    if (type.enumeration) return qualified(type.enumeration->name).toLatin1();
    switch (type.kind) {
    case Kind::Boolean:
        return "bool";
    case Kind::Integer:
        return "int";
    case Kind::String:
        return "QString";
    case Kind::Font:
        return "QFont";
    case Kind::BooleanArray:
        return "QList<bool>";
    default:
        return "void";
    }
}

/// "int SelectButton(int WhichButton)", as published.
std::string published(StringView name, const Type& result, std::span<const ArgumentDescription> arguments) {
    QStringList list;
    for (const ArgumentDescription& argument : arguments)
        list.append(typeOf(argument.type) + " " + toQString(argument.name));
    return (typeOf(result) + " " + toQString(name) + "(" + list.join(", ") + ")").toStdString();
}

std::set<std::string> methodsOf(const QMetaObject& object, QMetaMethod::MethodType kind) {
    std::set<std::string> methods;
    for (int i = object.methodOffset(); i < object.methodCount(); ++i) {
        const QMetaMethod method = object.method(i);
        QStringList list;
        for (int k = 0; k < method.parameterCount(); ++k)
            list.append(method.parameterTypes()[k] + " " + method.parameterNames()[k]);
        if (method.methodType() == kind)
            methods.insert(
                (method.typeName() + (" " + method.name()) + "(" + list.join(", ").toLatin1() + ")").toStdString());
    }
    return methods;
}

void publishesAll(const ObjectDescription& description, const QMetaObject& object) {
    const auto slots_ = methodsOf(object, QMetaMethod::Slot);
    const auto signals_ = methodsOf(object, QMetaMethod::Signal);
    for (const MemberDescription& member : description.members) {
        const QByteArray name = toQString(member.name).toLatin1();
        if (member.kind == MemberKind::Method) {
            EXPECT_TRUE(slots_.count(published(member.name, member.type, member.arguments()))) << name.data();
            continue;
        }
        const QMetaProperty property = object.property(object.indexOfProperty(name));
        EXPECT_EQ(property.typeName(), typeOf(member.type)) << name.data();
        EXPECT_EQ(property.isEnumType(), member.type.enumeration != nullptr) << name.data();
        EXPECT_EQ(property.isWritable(), member.accessor(Access::Put) || member.accessor(Access::PutReference));
        EXPECT_EQ(property.isDesignable(), property.isWritable());
        EXPECT_EQ(property.isResettable(), property.isWritable());
    }
    for (const EventDescription& event : description.events)
        EXPECT_TRUE(signals_.count(published(event.name, {}, event.arguments()))) << toUtf8(event.name);
}

TEST(Typed, PublishesWhatTheComponentDoes) {
    const KnownComponent component((QCoreApplication::applicationDirPath() + "/ZilvoButtons-445.Ocx").toStdString());
    const Widgets widgets = oneOfEach();
    std::map<QString, const QMetaObject*> objects{
        {qualified(u"ZilvoButtonGoodies"), &ZilvoButtonGoodies::staticMetaObject}};
    for (const auto& widget : widgets)
        objects[widget->metaObject()->className()] = widget->metaObject();
    EXPECT_EQ(objects.size(), component.description().classes.size());
    for (const ClassEntry& each : component.description().classes) {
        SCOPED_TRACE(toUtf8(each.identity.name));
        publishesAll(each.description, *objects.at(qualified(each.identity.name)));
    }

    EXPECT_EQ(staticMetaObject.enumeratorCount(), 10);
    for (const EnumerationDescription* each : component.description().enumerations) {
        const QByteArray name = toQString(each->name).toLatin1();
        const QMetaEnum enumeration = staticMetaObject.enumerator(staticMetaObject.indexOfEnumerator(name));
        ASSERT_EQ(enumeration.keyCount(), static_cast<int>(each->members.size())) << name.data();
        for (const EnumerationMember& member : each->members)
            EXPECT_EQ(enumeration.keyToValue(toUtf8(member.name).c_str()), member.value);
    }
}

/// A value that the control takes and that is not the one it has.
QVariant otherThan(const QVariant& value, const QMetaProperty& property) {
    if (property.isEnumType()) {
        const QMetaEnum enumeration = property.enumerator();
        return enumeration.value(enumeration.value(0) == value.toInt() ? 1 : 0);
    }
    switch (value.typeId()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::QString:
        return "Q";
    case QMetaType::QFont:
        return QFont("Arial", 20);
    default:
        return value.toInt() < 999 ? value.toInt() + 1 : 1; // a counter's highest limit
    }
}

/// What a property says of itself is what the control does.
TEST(Typed, PropertiesAreSetToldSavedAndReset) {
    for (const auto& widget : oneOfEach()) {
        const QMetaObject& object = *widget->metaObject();
        for (int i = ControlWidget::staticMetaObject.propertyCount(); i < object.propertyCount(); ++i) {
            const QMetaProperty property = object.property(i);
            if (!property.isWritable()) continue;
            SCOPED_TRACE(std::string(object.className()) + "." + property.name());
            const QVariant initial = property.read(widget.get());
            const QVariant other = otherThan(initial, property);
            QSignalSpy changes(widget.get(), &ControlWidget::propertyChanged);
            std::unique_ptr<QSignalSpy> notified;
            if (property.hasNotifySignal())
                notified = std::make_unique<QSignalSpy>(widget.get(), property.notifySignal());

            EXPECT_TRUE(property.write(widget.get(), other));
            const bool isAction = property.name() == QByteArray("UseDefaultSize"); // and always false
            EXPECT_EQ(property.read(widget.get()) == initial, isAction);
            if (!isAction) {
                const QVariant now = property.read(widget.get());
                EXPECT_EQ(property.isEnumType() ? now.toInt() : now, other);
            }
            EXPECT_EQ(changes.count(QVariantList{property.name()}), property.hasNotifySignal() ? 1 : 0);
            if (notified) {
                EXPECT_EQ(notified->count(), 1);
            }
            EXPECT_EQ(widget->saveSettings().contains(property.name()), property.isStored());

            EXPECT_TRUE(property.reset(widget.get()));
            EXPECT_EQ(property.read(widget.get()), initial);
        }
    }
}

TEST(Typed, WhatIsRefusedChangesNothing) {
    SpinCounter counter;
    counter.setCounterValue(5);
    QSignalSpy failed(&counter, &ControlWidget::failed);
    counter.setCounterValue(32768);
    EXPECT_EQ(counter.CounterValue(), 5);
    ASSERT_EQ(failed.count(), 1);
    EXPECT_EQ(failed[0][0].toInt(), static_cast<int>(Status::Overflow));
    EXPECT_NE(failed[0][1].toString().indexOf("SpinCounter.CounterValue"), -1) << failed[0][1].toString().toStdString();
    counter.setProperty("CounterValue", -32769);
    EXPECT_EQ(counter.CounterValue(), 5);
    EXPECT_EQ(failed.count(), 2);

    CardShufflingOptions shuffle;
    QSignalSpy refused(&shuffle, &ControlWidget::failed);
    shuffle.setCardShuffleMethod(static_cast<GenericCardShufflePossibilities>(5));
    EXPECT_EQ(shuffle.CardShuffleMethod(), GenericCardShufflePossibilities::noGenericCardShuffle);
    EXPECT_EQ(refused.count(), 1);

    PlayerButtons seats;
    QSignalSpy overflows(&seats, &ControlWidget::failed);
    seats.SelectButton(40000);
    EXPECT_EQ(overflows.count(), 1);
}

TEST(Typed, EventsAreSignals) {
    auto* decks = new DeckButtons;
    const QPointer<DeckButtons> alive(decks);
    QSignalSpy changed(decks, &DeckButtons::NumberOfDecksChanged);
    QSignalSpy raised(decks, &ControlWidget::raised);
    decks->setNumberOfDecks(6);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0], QVariantList{6});
    ASSERT_EQ(raised.count(), 1);
    EXPECT_EQ(raised[0], (QVariantList{"NumberOfDecksChanged", QVariantList{6}}));
    QObject::connect(decks, &DeckButtons::NumberOfDecksChanged, [&] { delete decks; });
    decks->setNumberOfDecks(8);
    EXPECT_FALSE(alive);
    EXPECT_EQ(raised.count(), 1);

    PlusMinusButton mode;
    QSignalSpy clicked(&mode, &PlusMinusButton::WasClicked);
    mode.input(input::Act{*mode.control().surface().find(u"ImagePlusMinus", 2)});
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_EQ(clicked[0][0].value<PlusMinusPossibilities>(), mode.PlusMinusButtonIs());
}

TEST(Typed, SettingsComeBackFromAFile) {
    SpinCounter counter;
    counter.setCounterValue(7);
    counter.setFont(QFont("Arial", 20, QFont::Bold));
    counter.setControlHandedness(SpinCounterPossibilities::TopMountSpinCounter);
    ssOKCancel pair;
    pair.setCancel(false);
    pair.setOKToolTipText("Deal, then \"hit\"");
    const ssOKCancel otherPair(throughFile(pair.saveSettings()));
    EXPECT_FALSE(otherPair.Cancel());
    EXPECT_TRUE(otherPair.Default());
    EXPECT_EQ(otherPair.OKToolTipText(), "Deal, then \"hit\"");
    SpinCounter other;
    QSignalSpy notified(&other, &SpinCounter::CounterValueChanged);
    other.restoreSettings(throughFile(counter.saveSettings()));
    EXPECT_GE(notified.count(), 1) << "what is bound to it is out of date";
    EXPECT_EQ(other.saveSettings(), counter.saveSettings());
    EXPECT_EQ(other.CounterValue(), 7);
    EXPECT_EQ(other.Font(), counter.Font());
}

TEST(Typed, AClassThatIsNoControlHasItsMethods) {
    ZilvoButtonGoodies goodies;
    QSignalSpy failed(&goodies, &ComponentObject::failed);
    EXPECT_TRUE(goodies.SeatBitIsSet(0b1000, SeatSpreadPossibilities::SpreadToSeat3Requested));
    EXPECT_FALSE(goodies.SeatBitIsSet(0b0100, SeatSpreadPossibilities::SpreadToSeat3Requested));
    EXPECT_EQ(static_cast<int>(goodies.SeatBitSet(1, SeatSpreadPossibilities::SpreadToSeat2Requested)), 0b101);
    EXPECT_EQ(failed.count(), 0);
    EXPECT_FALSE(goodies.SeatBitIsSet(40000, SeatSpreadPossibilities::SpreadToSeat3Requested));
    ASSERT_EQ(failed.count(), 1);
    EXPECT_EQ(failed[0][0].toInt(), static_cast<int>(Status::Overflow));
}

/// Another component, in its own namespace, with the kinds of value that the first has not.
TEST(Typed, AnyComponentHasTypedClasses) {
    gallery::Small small;
    small.setBreadth(1500.5);
    EXPECT_EQ(small.Breadth(), 1500.5);
    small.setGround(QColor(1, 2, 3));
    EXPECT_EQ(small.Ground(), QColor(1, 2, 3));
    small.setMood(gallery::GalleryMood::LivelyMood);
    EXPECT_EQ(small.Mood(), gallery::GalleryMood::LivelyMood);
    EXPECT_EQ(small.Divide(7, 2, 0), 3);
    EXPECT_EQ(small.Flip({true, false, false}), 2);
    QSignalSpy failed(&small, &ControlWidget::failed);
    EXPECT_EQ(small.Divide(7, 0, 0), 0);
    EXPECT_EQ(failed.count(), 1);
    EXPECT_FALSE(small.metaObject()->property(small.metaObject()->indexOfProperty("RunsInUserMode")).isWritable());
}

} // namespace
} // namespace zilvo::qt
