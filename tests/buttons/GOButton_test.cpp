#include "tests/support/EventLog.h"
#include "zilvo/library/ZilvoButtons.h"

#include <gtest/gtest.h>

namespace zilvo {

TEST(GOButtons, TakeTheSixFormsAndRefuseTheRestByName) {
    const std::string inner = "GOButton.GOButtonShape: ";
    struct Case {
        Variant given;
        Status status;
        Long shape;
        std::string message;
    };
    const Case cases[] = {
        {Long{3}, Status::Ok, 3, ""},
        {Long{6}, Status::InvalidPropertyValue, 3, inner + "theGOButton.Shape cannot be 6 (Integer)"},
        {Long{0}, Status::Ok, 0, ""},
        {Long{-1}, Status::InvalidPropertyValue, 0, inner + "theGOButton.Shape cannot be -1 (Integer)"},
        {Integer{5}, Status::Ok, 5, ""},
        {Long{32767}, Status::InvalidPropertyValue, 5, inner + "theGOButton.Shape cannot be 32767 (Integer)"},
        {Long{32768}, Status::Overflow, 5, inner + "32768 (Long) is out of the range of Integer"},
        {Long{40000}, Status::Overflow, 5, inner + "40000 (Long) is out of the range of Integer"},
        {u"4", Status::Ok, 4, ""},
    };
    for (const bool paneled : {false, true}) {
        const Ref<Object> control =
            paneled ? Ref<Object>(*create<paneledGOButton>()) : Ref<Object>(*create<GOButton>());
        ControlHost host(control);
        EventLog log(host);
        host.open();
        EXPECT_EQ(toLong(host.get(u"GOButtonShape")), 2);
        for (const Case& tried : cases) {
            Variant argument = tried.given;
            ErrorInfo error;
            const auto repaints = host.repaints();
            EXPECT_EQ(control->Invoke(u"gobuttonshape", Access::Put, {&argument, 1}, nullptr, &error), tried.status);
            EXPECT_EQ(error.message,
                      (paneled && !tried.message.empty() ? "paneledGOButton.GOButtonShape: " : "") + tried.message);
            EXPECT_EQ(host.repaints() - repaints, tried.status == Status::Ok ? 1U : 0U);
            EXPECT_EQ(toLong(host.get(u"GOButtonShape")), tried.shape);
        }
        host.input(input::PointerDown{{700, 400}});
        host.input(input::PointerUp{{700, 400}});
        host.input(*parseKey(u"Alt+g"));
        EXPECT_TRUE(log.take().empty());
        EXPECT_TRUE(host.changes().empty());
    }
}

TEST(SwitchCardsButton, EveryClickOnTheButtonAndNoneOnItsRim) {
    ControlHost host(create<SwitchCardsButton>());
    EventLog log(host);
    host.open();
    for (const Point at : {Point{900, 300}, Point{30, 300}, Point{900, 300}, Point{900, 670}, Point{900, 300}}) {
        host.input(input::PointerDown{at});
        host.input(input::PointerUp{at});
    }
    EXPECT_EQ(log.take(), EventLog::Entries(3, "SwitchCardsButtonWasPressed()"));
    EXPECT_EQ(toolTipAt(host.control(), {900, 300}), u"   Click here to switch your 2nd-Cards...");
    EXPECT_EQ(toolTipAt(host.control(), {30, 300}), u"Use Alt-V+S to hide this button");
}

} // namespace zilvo
