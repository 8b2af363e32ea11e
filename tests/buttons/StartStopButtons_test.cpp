#include "tests/support/EventLog.h"
#include "zilvo/library/ZilvoButtons.h"

#include <gtest/gtest.h>

namespace zilvo {

namespace {

/// "[START] stop": a disabled button is in small letters, the default one in brackets.
std::string state(StartStopButtons& control) {
    const auto shown = [&](StringView name, std::string enabled, std::string disabled) {
        auto& button = dynamic_cast<CommandButton&>(*control.surface().find(name));
        const std::string caption = button.get_Enabled() ? enabled : disabled;
        return button.get_Default() ? "[" + caption + "]" : caption;
    };
    return shown(u"StartButton", "START", "start") + " " + shown(u"StopButton", "STOP", "stop");
}

std::string stored(const MemoryPropertyBag& bag) {
    std::string all;
    for (const auto& setting : bag.settings())
        all += toUtf8(setting.name) + "=" + toUtf8(toString(setting.value)) + " ";
    return all;
}

} // namespace

TEST(StartStopButtons, UserInputAgainstEventsAndState) {
    struct Step {
        const char* what;
        std::vector<InputEvent> input;
        EventLog::Entries events;
        const char* state;
    };
    const auto press = [](Point at) { return std::vector<InputEvent>{input::PointerDown{at}, input::PointerUp{at}}; };
    const EventLog::Entries none, started{"StartButtonWasClicked()"}, stopped{"StopButtonWasClicked()"};
    const Step steps[] = {
        {"new", {}, none, "[START] STOP"},
        {"STOP, enabled as designed", press({1980, 490}), stopped, "[START] stop"},
        {"Enter is START", {*parseKey(u"Enter")}, started, "start [STOP]"},
        {"the disabled START", press({740, 490}), none, "start [STOP]"},
        {"a panel", press({130, 130}), none, "start [STOP]"},
        {"Enter is STOP now", {*parseKey(u"Enter")}, stopped, "[START] stop"},
        {"START", press({740, 490}), started, "start [STOP]"},
    };
    const auto control = create<StartStopButtons>();
    ControlHost host(control);
    EventLog log(host);
    host.open();
    for (const Step& step : steps) {
        for (const InputEvent& event : step.input)
            host.input(event);
        EXPECT_EQ(log.take(), step.events) << step.what;
        EXPECT_EQ(state(*control), step.state) << step.what;
    }
    for (const StringView method : {u"SetupForStarting", u"Reset"}) {
        host.call(method);
        EXPECT_EQ(state(*control), "[START] stop");
    }
    EXPECT_EQ(log.take(), none);
    EXPECT_TRUE(host.changes().empty());

    std::string seen;
    const auto connection = control->StartButtonWasClicked.attach([&] {
        seen = state(*control);
        throw Failure(Status::Overflow, "the host's own");
    });
    EXPECT_THROW(host.click(u"StartButton"), Failure);
    EXPECT_EQ(seen, "start [STOP]") << "changed over before the event";
    EXPECT_EQ(state(*control), seen) << "and not rolled back";
}

TEST(StartStopButtons, ToolTipsAreSavedWhateverTheStoreLeavesOut) {
    for (const auto defaults : {MemoryPropertyBag::Defaults::LeftOut, MemoryPropertyBag::Defaults::Kept}) {
        MemoryPropertyBag settings(defaults);
        const auto control = create<StartStopButtons>();
        ControlHost fresh(control), bare(create<StartStopButtons>()), again(create<StartStopButtons>());
        fresh.open();
        EXPECT_EQ(control->get_StartButtonToolTip(), u"Click Start to Begin Operation");
        fresh.save(settings);
        EXPECT_EQ(stored(settings), "StartButtonToolTip= StopButtonToolTip= ") << "only what was given is saved";
        bare.open(&settings);
        EXPECT_EQ(toString(bare.get(u"StartButtonToolTip")) + toString(bare.get(u"StopButtonToolTip")), u"");
        EXPECT_EQ(state(dynamic_cast<StartStopButtons&>(bare.object())), "[START] stop");

        control->put_StopButtonToolTip(u"halt");
        control->put_StartButtonToolTip(u"go");
        EXPECT_EQ(fresh.changes(), (std::vector<String>{u"StopButtonToolTip", u"StartButtonToolTip"}));
        fresh.save(settings);
        again.open(&settings);
        EXPECT_EQ(toolTipAt(again.control(), {740, 490}), u"go");
        EXPECT_EQ(toolTipAt(again.control(), {1980, 490}), u"halt");
    }
}

TEST(StartStopButtons, AStoredValueThatIsNoTextFailsAtItsKey) {
    MemoryPropertyBag settings, saved;
    settings.set(u"StopButtonToolTip", Integer{42});
    settings.set(u"StartButtonToolTip", StdFont::make({}));
    ControlHost host(create<StartStopButtons>());
    EXPECT_THROW(host.open(&settings), Failure);
    EXPECT_EQ(toString(host.get(u"StopButtonToolTip")), u"Click Stop to End Operation") << "set after both reads";
    host.save(saved);
    EXPECT_EQ(stored(saved), "StartButtonToolTip= StopButtonToolTip=42 ");
}

} // namespace zilvo
