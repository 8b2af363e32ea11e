#include "zilvo/setup/SpinCounter.h"

#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"

#include <gtest/gtest.h>

namespace zilvo {

namespace {

/// A counter with a host that writes down what its event carries: "7 8 ".
struct Counter {
    Ref<SpinCounter> control = create<SpinCounter>();
    std::string log;
    Connection connection = control->CounterValueHasChanged.attach([this](Integer& NewCounterValue) {
        log += std::to_string(NewCounterValue) + " ";
        NewCounterValue = 555; // is discarded
    });
    ControlHost host{control};

    explicit Counter(const PropertyBag* settings = nullptr) { host.open(settings); }

    std::string shown() { return toUtf8(label().get_Caption()); }
    Label& label() { return dynamic_cast<Label&>(*control->surface().find(u"labelCardsInStack")); }
    Widget& spinner() { return *control->surface().find(u"SpinButton"); }
    bool spin(input::Action way, int times = 1) {
        bool could = true;
        for (int i = 0; i < times; ++i)
            could = host.input(input::Act{spinner(), way}) && could;
        return could;
    }
    std::string taken() { return std::exchange(log, {}); }
};

constexpr auto Up = input::Action::SpinUp;
constexpr auto Down = input::Action::SpinDown;

std::string placesOf(Counter& counter) {
    const auto place = [](Widget& widget) {
        std::string text;
        for (const Single edge : {widget.get_Left(), widget.get_Top(), widget.get_Width(), widget.get_Height()})
            text += std::to_string(static_cast<int>(edge)) + (text.size() > 100 ? "" : " ");
        return text;
    };
    return place(counter.label()) + "| " + place(counter.spinner());
}

} // namespace

TEST(SpinCounter, ANewOneCountsFromNothing) {
    Counter counter;
    EXPECT_EQ(counter.shown(), "(###)");
    EXPECT_EQ(counter.host.changes(), (std::vector<String>{u"MaximumLimit"}));
    EXPECT_EQ(counter.taken(), "");
    EXPECT_TRUE(counter.spin(Up));
    EXPECT_EQ(counter.shown(), "(001)");
    EXPECT_EQ(counter.taken(), "1 ");
    EXPECT_EQ(counter.control->get_CounterValue(), 1) << "what a handler writes is discarded";
}

TEST(SpinCounter, SetsAgainstBoundsAndWhatIsReported) {
    Counter counter;
    counter.control->put_MaximumLimit(10);
    struct Set {
        Integer value;
        const char* events;
        const char* shown;
    };
    const Set bounded[] = {{10, "10 ", "(010)"}, {11, "", "(010)"},  {-1, "", "(010)"},
                           {10, "10 ", "(010)"}, {0, "0 ", "(000)"}, {32767, "", "(000)"}};
    const Set negative[] = {{-1, "-1 ", "(-001)"}, {-32768, "-32768 ", "(-32768)"}, {11, "", "(-32768)"}};
    const auto run = [&](std::span<const Set> sets) {
        for (const Set& set : sets) {
            counter.control->put_CounterValue(set.value);
            EXPECT_EQ(counter.taken(), set.events) << set.value;
            EXPECT_EQ(counter.shown(), set.shown) << set.value;
        }
    };
    run(bounded);
    counter.control->put_AllowNegNumbers(true);
    run(negative);
    counter.control->put_AllowNegNumbers(false);
    EXPECT_EQ(counter.control->get_CounterValue(), -32768) << "a count out of bounds is left alone";
    for (const Integer refused : {Integer{0}, Integer{-5}, Integer{1000}})
        counter.control->put_MaximumLimit(refused);
    EXPECT_EQ(counter.control->get_MaximumLimit(), 10);
    EXPECT_EQ(counter.host.beeps(), 0U);
}

TEST(SpinCounter, StepsByTheRuleThatIsChosen) {
    struct Case {
        const char* what;
        bool wrap, negative;
        Integer start;
        input::Action way;
        int times;
        const char* events;
    };
    const Case cases[] = {
        {"up to the limit, once more reported", false, false, 2, Up, 3, "3 4 4 "},
        {"wrapping does not turn the way up round", true, true, 4, Up, 1, "4 "},
        {"down to zero, once more reported", false, false, 1, Down, 2, "0 0 "},
        {"below zero", false, true, 1, Down, 3, "0 -1 -2 "},
        {"wrapping", true, false, 1, Down, 3, "0 4 3 "},
        {"wrapping goes before negatives", true, true, 0, Down, 1, "4 "},
    };
    for (const Case& tried : cases) {
        Counter counter;
        counter.control->put_MaximumLimit(4);
        counter.control->put_AllowNegNumbers(tried.negative);
        counter.control->put_NumberWrap(tried.wrap);
        counter.control->put_CounterValue(tried.start);
        counter.taken();
        EXPECT_TRUE(counter.spin(tried.way, tried.times)) << tried.what;
        EXPECT_EQ(counter.taken(), tried.events) << tried.what;
    }
}

TEST(SpinCounter, CountsOutsideTheirBoundsStillStepAndNeverOverflow) {
    MemoryPropertyBag settings;
    settings.set(u"CounterValue", Integer{-32768});
    settings.set(u"AllowNegNumbers", true);
    Counter low(&settings);
    low.spin(Down);
    EXPECT_EQ(low.taken(), "-32768 ");
    low.control->put_NumberWrap(true);
    low.spin(Down);
    EXPECT_EQ(low.taken(), "999 ");

    settings.set(u"CounterValue", Integer{32767});
    settings.set(u"MaximumLimit", Integer{32767});
    Counter high(&settings);
    EXPECT_EQ(high.shown(), "(32767)");
    high.spin(Up);
    high.control->put_MaximumLimit(5);
    high.spin(Up);
    high.spin(Down);
    EXPECT_EQ(high.taken(), "32767 32767 32766 ");
}

TEST(SpinCounter, HeldDownItRepeatsByTheHostsClock) {
    Counter counter;
    counter.host.input(input::PointerDown{{1200, 100}});
    counter.host.input(input::TimePassed{SpinButton::RepeatDelay});
    counter.host.input(input::TimePassed{2 * SpinButton::RepeatEvery});
    counter.host.input(input::PointerUp{{1200, 100}});
    counter.host.input(input::TimePassed{SpinButton::RepeatDelay});
    EXPECT_EQ(counter.taken(), "1 2 3 4 ");
    counter.host.input(*parseKey(u"Down"));
    EXPECT_EQ(counter.taken(), "3 ");
}

TEST(SpinCounter, MountingsPlaceTheChildrenInPixels) {
    Counter counter;
    struct Case {
        Long handedness;
        const char* places;
    };
    const Case cases[] = {{1, "35 0 65 48 | 0 0 33 48 "},
                          {3, "0 0 65 24 | 0 24 65 48 "},
                          {2, "0 0 65 24 | 67 0 33 48 "},
                          {4, "0 24 65 24 | 0 0 65 48 "}};
    for (const Case& tried : cases) {
        put(*counter.control, u"ControlHandedness", tried.handedness);
        EXPECT_EQ(placesOf(counter), tried.places) << tried.handedness;
        EXPECT_TRUE(counter.spin(Up)) << tried.handedness;
        EXPECT_TRUE(counter.spin(Down)) << "both arrows can be reached in mounting " << tried.handedness;
    }
    for (const Long none : {0, 5, -1, 65537})
        put(*counter.control, u"ControlHandedness", none);
    EXPECT_EQ(counter.host.beeps(), 4U);
    EXPECT_EQ(toLong(get(*counter.control, u"ControlHandedness")), 4);
    EXPECT_EQ(placesOf(counter), cases[3].places);
    EXPECT_EQ(std::count(counter.host.changes().begin(), counter.host.changes().end(), u"ControlHandedness"), 4);
}

TEST(SpinCounter, ItsWidthIsFixedAndItsHeightFree) {
    Counter counter;
    counter.host.resize(3000, 600);
    EXPECT_EQ(counter.control->surface().area().width, 1500);
    EXPECT_EQ(counter.host.extenderObject().get_Width(), 1500);
    EXPECT_EQ(placesOf(counter), "0 0 65 40 | 66 0 33 40 ");
    counter.control->put_UseDefaultSize(false);
    EXPECT_EQ(counter.control->surface().area().height, 600);
    counter.control->put_UseDefaultSize(true);
    EXPECT_FALSE(counter.control->get_UseDefaultSize());
    EXPECT_EQ(counter.host.extenderObject().get_Height(), 360);
    EXPECT_EQ(placesOf(counter), "0 0 65 24 | 66 0 33 24 ");
}

TEST(SpinCounter, SettingsComeBackAndSomeDoNot) {
    Counter counter;
    counter.host.resize(1500, 450);
    counter.control->put_AllowNegNumbers(true);
    counter.control->put_MaximumLimit(20);
    counter.control->put_CounterValue(-7);
    counter.control->put_NumberWrap(true);
    counter.control->put_ControlHandedness(SpinCounterPossibilities::LeftHandSpinCounter);
    const auto font = StdFont::make({.Name = u"Arial", .Size = 8});
    counter.control->putref_Font(font);
    for (const auto store : {MemoryPropertyBag::Defaults::LeftOut, MemoryPropertyBag::Defaults::Kept}) {
        MemoryPropertyBag settings(store);
        counter.host.save(settings);
        Counter again(&settings);
        EXPECT_EQ(again.shown(), "(-007)");
        EXPECT_EQ(again.taken(), "") << "loading reports nothing";
        EXPECT_EQ(again.control->get_MaximumLimit(), 20);
        EXPECT_FALSE(again.control->get_NumberWrap());
        EXPECT_EQ(again.control->surface().area().height, 450);
        EXPECT_EQ(static_cast<Long>(again.control->get_ControlHandedness()), 1);
        EXPECT_EQ(again.label().get_Left(), 0) << "shown as designed until it is set";
        EXPECT_EQ(again.control->get_Font()->get_Name(), u"Arial");
    }
    const MemoryPropertyBag nothing;
    Counter empty(&nothing);
    EXPECT_EQ(empty.shown(), "(000)");
    EXPECT_EQ(empty.control->surface().area().height, 360);
    EXPECT_EQ(empty.control->get_Font(), empty.host.ambientProperties().get_Font());
    MemoryPropertyBag untouched;
    empty.host.save(untouched);
    EXPECT_TRUE(untouched.settings().empty()) << "all of them are the defaults, the ambient font too";
}

TEST(SpinCounter, CarelessStoredValuesLoadOrFailAtTheirStep) {
    const auto ok = Status::Ok;
    struct Case {
        StringView key;
        Variant value;
        Status status;
        Integer limit; ///< read after the count and before the height
    };
    const Case cases[] = {
        {u"CounterValue", Long{1200}, ok, 33},
        {u"CounterValue", u" 12 ", ok, 33},
        {u"CounterValue", Long{40000}, Status::Overflow, 0},
        {u"CounterValue", u"many", Status::TypeMismatch, 0},
        {u"AllowNegNumbers", u"perhaps", Status::TypeMismatch, 0},
        {u"MaximumLimit", Integer{5000}, ok, 5000},
        {u"MaximumLimit", u"1e9", Status::Overflow, 0},
        {u"Height", u"tall", Status::TypeMismatch, 33},
        {u"Height", Integer{-15}, Status::InvalidPropertyValue, 33},
        {u"ControlHandedness", Integer{77}, ok, 33},
        {u"ControlHandedness", u"9999999999", Status::Overflow, 33},
        {u"Font", u"Arial", Status::TypeMismatch, 33},
        {u"Font", FontRef(), Status::InvalidPropertyValue, 33},
    };
    for (const Case& tried : cases) {
        MemoryPropertyBag settings;
        settings.set(u"MaximumLimit", Integer{33});
        settings.set(tried.key, tried.value);
        const auto control = create<SpinCounter>();
        const ControlHost host(control);
        ErrorInfo error;
        EXPECT_EQ(host.control().Load(settings, &error), tried.status) << toUtf8(tried.key) << error.message;
        EXPECT_EQ(control->get_MaximumLimit(), tried.limit) << toUtf8(tried.key) << platform::describe(tried.value);
    }
}

TEST(SpinCounter, AmbientColoursAndASharedFont) {
    Counter counter;
    counter.host.ambientProperties().put_BackColor(Colour{0x00112233});
    counter.host.setAmbient(u"UserMode", false);
    EXPECT_EQ(counter.control->surface().backColor(), Colour{0x00112233});
    EXPECT_EQ(counter.label().get_BackColor(), colours::White);
    Variant nothing(FontRef{});
    EXPECT_EQ(counter.control->Invoke(u"Font", Access::PutReference, {&nothing, 1}, nullptr),
              Status::InvalidPropertyValue);
    EXPECT_EQ(counter.control->Invoke(u"Font", Access::Put, {&nothing, 1}, nullptr), Status::UnknownMember);
}

} // namespace zilvo
