#include "tests/support/EventLog.h"
#include "zilvo/library/ZilvoButtons.h"

#include <gtest/gtest.h>

namespace zilvo {

namespace {

/// The mode and the picture that is shown, by its index: "3, picture 3".
std::string state(PlusMinusButton& control) {
    std::string shown = std::to_string(static_cast<Long>(control.get_PlusMinusButtonIs())) + ", picture ";
    for (const Integer index : {Integer{2}, Integer{3}})
        if (control.surface().find(u"ImagePlusMinus", index)->get_Visible()) shown += std::to_string(index);
    return shown;
}

} // namespace

TEST(PlusMinusButton, ModesPicturesAndEvents) {
    const auto control = create<PlusMinusButton>();
    ControlHost host(control);
    EventLog log(host);
    host.open();
    EXPECT_EQ(state(*control), "0, picture 2");
    const auto check = [&](const char* expected, const EventLog::Entries& events) {
        EXPECT_EQ(state(*control), expected);
        EXPECT_EQ(log.take(), events);
    };
    const auto click = [&] {
        host.input(input::PointerDown{{225, 225}});
        host.input(input::PointerUp{{225, 225}});
    };
    click();
    check("3, picture 3", {"WasClicked(3)"});
    click();
    check("2, picture 2", {"WasClicked(2)"});
    host.call(u"RestartYourself");
    check("2, picture 2", {"WasClicked(2)"});
    EXPECT_FALSE(host.click(u"ImagePlusMinus", 3)) << "hidden";

    auto connection = control->WasClicked.attach([&](Long& WhichButton) {
        EXPECT_EQ(state(*control), "3, picture 3") << "the host sees the new mode";
        WhichButton = 7;
    });
    click();
    check("3, picture 3", {"WasClicked(3)"});
    connection = control->WasClicked.attach([](Long&) { throw Failure(Status::TypeMismatch, "the host's own"); });
    EXPECT_THROW(control->RestartYourself(), Failure);
    check("2, picture 2", {"WasClicked(2)"});
    connection = control->WasClicked.attach([&](Long& WhichButton) {
        if (WhichButton == 3) control->RestartYourself();
    });
    click();
    check("2, picture 2", {"WasClicked(3)", "WasClicked(2)"});
}

TEST(PlusMinusButton, HoldsWhenItsHostCallsItAndDestroysItInTheEvent) {
    for (const bool clicked : {false, true}) {
        Ref<PlusMinusButton> control = create<PlusMinusButton>();
        std::optional<ControlHost> host(std::in_place, control);
        host->open();
        PlusMinusButton* raw = control.get();
        int heard = 0;
        const auto connection = raw->WasClicked.attach([&](Long& WhichButton) {
            if (++heard == 1) raw->RestartYourself();
            host.reset();
            control = nullptr;
            WhichButton = 7;
        });
        if (clicked)
            raw->Input(input::Act{*raw->surface().find(u"ImagePlusMinus", 2)}, nullptr, nullptr);
        else
            raw->RestartYourself();
        EXPECT_EQ(heard, 2);
        EXPECT_EQ(libraryModule().liveObjects(), 0U);
    }
}

} // namespace zilvo
