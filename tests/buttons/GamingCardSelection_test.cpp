#include "tests/support/EventLog.h"
#include "zilvo/library/ZilvoButtons.h"

#include <gtest/gtest.h>

namespace zilvo {

namespace {

SSRibbon& ribbon(Control& control, Integer index) {
    return dynamic_cast<SSRibbon&>(*control.surface().find(u"GamingCardButtons", index));
}

/// The buttons that are pressed: "2", or "" for none.
std::string pressed(Control& control) {
    std::string all;
    for (Integer index = 1; index <= 3; ++index)
        if (ribbon(control, index).get_Value()) all += std::to_string(index);
    return all;
}

} // namespace

TEST(GamingCardSelection, PressingRaisesTheDestinationsEventAndRaisingNothing) {
    struct Step {
        Integer index;
        EventLog::Entries events;
        const char* pressed;
    };
    const Step steps[] = {{3, {"CardsToShoeClicked()"}, "3"},
                          {3, {}, ""},
                          {1, {"CardsToDiscardTrayClicked()"}, "1"},
                          {2, {"CardsToTableClicked()"}, "2"},
                          {2, {}, ""}};
    const auto control = create<GamingCardSelection>();
    ControlHost host(control);
    EventLog log(host);
    host.open();
    for (const Step& step : steps) {
        ribbon(*control, step.index).put_Outline(true);
        EXPECT_TRUE(host.click(u"GamingCardButtons", step.index));
        EXPECT_EQ(log.take(), step.events);
        EXPECT_EQ(pressed(*control), step.pressed);
        EXPECT_EQ(ribbon(*control, step.index).get_Outline(), step.events.empty()) << "cleared after the event only";
    }
    EXPECT_FALSE(host.click(u"cmdLoadCards")) << "hidden";
    control->surface().find(u"cmdLoadCards")->put_Visible(true);
    EXPECT_TRUE(host.click(u"cmdLoadCards"));
    EXPECT_EQ(log.take(), EventLog::Entries{"LoadCardsRequested()"});

    for (const Integer index : {Integer{0}, Integer{1}, Integer{1}, Integer{0}}) {
        EXPECT_TRUE(host.click(u"chkXButton", index));
        EXPECT_FALSE(host.extenderObject().get_Visible());
        EXPECT_FALSE(host.click(u"GamingCardButtons", 1)) << "the control is hidden";
        host.extenderObject().put_Visible(true);
    }
    EXPECT_TRUE(log.take().empty());
}

TEST(GamingCardSelection, TheHostPressesAButtonWithoutAnEvent) {
    struct Case {
        Long which;
        Status status;
        const char* pressed;
    };
    const Case cases[] = {{2, Status::Ok, "2"},
                          {2, Status::Ok, "2"},
                          {4, Status::MissingElement, "2"},
                          {0, Status::MissingElement, "2"},
                          {3, Status::Ok, "3"},
                          {65537, Status::Overflow, "3"}};
    const auto control = create<GamingCardSelection>();
    ControlHost host(control);
    EventLog log(host);
    host.open();
    for (const Case& tried : cases) {
        Long which = tried.which;
        Variant argument = Variant::to(which);
        EXPECT_EQ(control->Invoke(u"SelectThisButton", Access::Method, {&argument, 1}, nullptr), tried.status);
        EXPECT_EQ(which, tried.which);
        EXPECT_EQ(pressed(*control), tried.pressed) << tried.which;
    }
    EXPECT_TRUE(log.take().empty());
}

TEST(GamingCardSelection, AHandlerThatFailsOrDestroys) {
    Ref<GamingCardSelection> control = create<GamingCardSelection>();
    std::optional<ControlHost> host(std::in_place, control);
    host->open();
    for (const Integer index : {Integer{1}, Integer{2}})
        ribbon(*control, index).put_Outline(true);
    const auto failing =
        control->CardsToDiscardTrayClicked.attach([] { throw Failure(Status::Overflow, "the host's own"); });
    EXPECT_THROW(host->click(u"GamingCardButtons", 1), Failure);
    EXPECT_EQ(pressed(*control), "1");
    EXPECT_TRUE(ribbon(*control, 1).get_Outline()) << "the step after the event is not reached";

    GamingCardSelection& raw = *control;
    const auto destroying = raw.CardsToTableClicked.attach([&] {
        host.reset();
        control = nullptr;
    });
    raw.Input(input::Act{ribbon(raw, 2)}, nullptr, nullptr);
    EXPECT_EQ(libraryModule().liveObjects(), 0U);
}

TEST(Pictures, DrawnOnceAndOnBothGroundsTheSame) {
    EXPECT_EQ(plusPicture().deviceIndependent().size(), 40U + 92U * 30U) << "rows of 90 bytes, padded";
    EXPECT_NE(plusPicture().at(15, 9), minusPicture().at(15, 9));
    for (const auto picture : {discardTrayPicture, tablePicture, shoePicture}) {
        const Bitmap& white = picture(Ground::White);
        const Bitmap& yellow = picture(Ground::Yellow);
        EXPECT_EQ(&white, &picture(Ground::White));
        EXPECT_EQ(yellow.at(0, 0), (Bitmap::Pixel{255, 255, 0}));
        for (int at = 0; at < 32 * 32; ++at) { // yellow is white without its blue
            const Bitmap::Pixel one = white.at(at % 32, at / 32), other = yellow.at(at % 32, at / 32);
            EXPECT_TRUE(one.red == other.red && one.green == other.green && one.blue >= other.blue);
        }
    }
}

} // namespace zilvo
