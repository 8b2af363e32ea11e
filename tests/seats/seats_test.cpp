#include "tests/support/Outcome.h"
#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"

#include <gtest/gtest.h>

namespace zilvo {

namespace {

const MemoryPropertyBag nothing;

/// Loads a control whose odd seats were hidden and whose number of seats was changed before: how it ended, which
/// seats are shown then, how high the control is, and whether it took the host's colour.
template <class T>
std::string loaded(StringView seats, Long count) {
    const auto control = create<T>();
    control->put_NumberOfSeatsAllowed(static_cast<SeatSelectionPossibilities>(count));
    for (Integer k = 1; k <= 10; k += 2)
        control->surface().find(seats, k)->put_Visible(false);
    ControlHost host(control);
    host.ambientProperties().put_BackColor(Colour{0x00123456});
    std::string text = nameOf(platform::outcomeOf([&] { host.open(&nothing); }).status);
    text += ' ';
    for (Integer k = 1; k <= 10; ++k)
        text += control->surface().find(seats, k)->get_Visible() ? 'o' : '-';
    text += ' ' + std::to_string(static_cast<int>(control->surface().area().height));
    return text + (control->surface().backColor() == Colour{0x00123456} ? " coloured" : "");
}

/// Lets go of the host and of the control in the first event of a call that has more to do; counts the events.
template <class T>
int heardAfterLettingGo() {
    auto control = create<T>();
    std::optional<ControlHost> host(std::in_place, control);
    host->open();
    BooleanArray seats(1, {true, true});
    control->AvailableSeatsAre(seats);
    const Surface* surface = &control->surface();
    if (Widget* embedded = surface->find(u"SpreadSeatBoxes")) surface = embedded->embeddedSurface();
    for (Integer k = 1; k <= 2; ++k)
        host->input(input::Act{*surface->find(u"checkSeatSelected", k)});
    int heard = 0;
    T& alive = *control;
    const auto connection = alive.SeatSpreadToWas.attach([&](Long& /*SelectedSeat*/) {
        ++heard;
        host.reset();
        control = nullptr;
    });
    alive.AvailableSeatsAre(seats);
    return heard;
}

} // namespace

TEST(Seats, TheLayoutIsThatOfTheNumberOfSeatsAtLoading) {
    struct Case {
        Long count;
        const char* boxes;
        const char* options;
    };
    for (const Case& tried : {
             Case{-32769, "overflow -o-o-o-o-o 2385", "overflow -o-o-o-o-o 2385"},
             Case{-1, "ok ---------- 2385 coloured", "missing element -o-o-o-o-o 2385"},
             Case{0, "ok ---------- 2385 coloured", "ok ---------- 2385 coloured"},
             Case{1, "ok o--------- 2385 coloured", "ok o--------- 2385 coloured"},
             Case{9, "ok ooooooooo- 2385 coloured", "ok ooooooooo- 2385 coloured"},
             Case{10, "ok oooooooooo 2385 coloured", "ok oooooooooo 2385 coloured"},
             Case{11, "missing element oooooooooo 2385", "missing element oooooooooo 2385"},
             Case{32768, "overflow -o-o-o-o-o 2385", "overflow -o-o-o-o-o 2385"},
         }) {
        EXPECT_EQ(loaded<SeatCheckBoxes>(u"checkSeatSelected", tried.count), tried.boxes) << tried.count;
        EXPECT_EQ(loaded<SitDownButton>(u"optSeatSelected", tried.count), tried.options) << tried.count;
    }
}

TEST(SitDownButton, LoadingClosesTheSelectorInADesignerOnly) {
    for (const bool userMode : {false, true}) {
        ControlHost host(create<SitDownButton>());
        Widget& selector = *host.control().surface().find(u"frameSeatSelector");
        selector.put_Visible(true);
        host.ambientProperties().put_UserMode(userMode);
        host.open(&nothing);
        EXPECT_EQ(selector.get_Visible(), userMode);
    }
}

TEST(Seats, AHandlerMayLetGoOfTheControl) {
    EXPECT_EQ(heardAfterLettingGo<SeatCheckBoxes>(), 2);
    EXPECT_EQ(heardAfterLettingGo<paneledSeatBoxes>(), 2);
    EXPECT_EQ(heardAfterLettingGo<SpreadSeatButtons>(), 2);
    auto control = create<PlayerButtons>();
    PlayerButtons& alive = *control;
    const auto connection = alive.PlayerSeatSelected.attach([&](Integer& /*Index*/) { control = nullptr; });
    Integer seat = 4;
    alive.SelectButton(seat);
    EXPECT_EQ(libraryModule().liveObjects(), 0U);
}

} // namespace zilvo
