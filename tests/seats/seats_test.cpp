#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"

#include <gtest/gtest.h>

namespace zilvo {

namespace {

/// A control with a host that writes every event into one log: "SeatSpreadToWas(3) ".
template <class T>
struct Table {
    Ref<T> control = create<T>();
    std::string log;
    std::optional<ControlHost> host{std::in_place, control};

    explicit Table(bool loaded = false) {
        for (const EventDescription& event : T::Description.events)
            host->on(event.name, [this, name = toUtf8(event.name)](std::span<Variant> arguments) {
                log += name;
                if (!arguments.empty()) log += "(" + toUtf8(toString(arguments[0])) + ")";
                log += " ";
            });
        const MemoryPropertyBag nothing;
        host->open(loaded ? &nothing : nullptr);
    }
    std::string taken() { return std::exchange(log, {}); }
};

/// The check box or option of a seat, also of an embedded control's.
template <class Kind>
Kind& seat(Control& control, StringView array, Integer index, StringView embedded = {}) {
    Surface* surface = &control.surface();
    if (!embedded.empty()) surface = surface->find(embedded)->embeddedSurface();
    return dynamic_cast<Kind&>(*surface->find(array, index));
}

CheckBox& box(Control& control, Integer index, StringView embedded = {}) {
    return seat<CheckBox>(control, u"checkSeatSelected", index, embedded);
}

std::string shownBoxes(Control& control, StringView embedded = {}) {
    std::string shown;
    for (Integer k = 1; k <= 10; ++k)
        shown += !box(control, k, embedded).get_Visible() ? '-' : box(control, k, embedded).get_Enabled() ? 'o' : '.';
    return shown;
}

/// Calls AvailableSeatsAre late bound and gives the status.
Status seatsAre(Object& control, BooleanArray seats, StringView member = u"AvailableSeatsAre") {
    Variant argument = Variant::to(seats);
    return control.Invoke(member, Access::Method, {&argument, 1}, nullptr);
}

} // namespace

TEST(SeatCheckBoxes, NewAndLoaded) {
    Table<SeatCheckBoxes> fresh;
    EXPECT_EQ(shownBoxes(*fresh.control), "..........");
    EXPECT_EQ(fresh.control->surface().area().height, 1740);
    fresh.control->put_NumberOfSeatsAllowed(SeatSelectionPossibilities::Seat10WasSelected);
    EXPECT_EQ(static_cast<Long>(fresh.control->get_NumberOfSeatsAllowed()), 10);
    EXPECT_TRUE(fresh.host->changes().empty());

    Table<SeatCheckBoxes> loaded(true);
    EXPECT_EQ(shownBoxes(*loaded.control), ".......---");
    EXPECT_EQ(loaded.control->surface().area().height, 2385);
    EXPECT_EQ(loaded.control->surface().foreColor(), colours::WindowText) << "the ambient colours are taken";
    EXPECT_EQ(loaded.taken() + fresh.taken(), "");
}

TEST(SeatCheckBoxes, TicksAndUnticksAreReportedAtOnce) {
    Table<SeatCheckBoxes> table;
    EXPECT_FALSE(table.host->click(u"checkSeatSelected", 3)) << "disabled until the host says that it is free";
    EXPECT_EQ(seatsAre(*table.control, BooleanArray(1, {true, false, true, true, false, true, true})), Status::Ok);
    EXPECT_EQ(shownBoxes(*table.control), "o.oo.oo...");
    EXPECT_EQ(static_cast<Long>(table.control->get_NumberOfSeatsAllowed()), 7);
    EXPECT_TRUE(table.host->click(u"checkSeatSelected", 3));
    EXPECT_TRUE(table.host->click(u"checkSeatSelected", 3));
    EXPECT_FALSE(table.host->click(u"checkSeatSelected", 2));
    EXPECT_EQ(table.taken(), "SeatSpreadToWas(3) SeatSpreadToWas(-3) ");

    table.host->click(u"checkSeatSelected", 6);
    table.host->click(u"checkSeatSelected", 1);
    table.taken();
    EXPECT_EQ(seatsAre(*table.control, BooleanArray(0, {false, true, true, true, true, true})), Status::Ok);
    EXPECT_EQ(table.taken(), "SeatSpreadToWas(-1) ") << "seat 6 is above the bound and keeps its tick";
    EXPECT_EQ(box(*table.control, 6).get_Value(), CheckBox::Checked);
    EXPECT_EQ(seatsAre(*table.control, BooleanArray(1, std::vector<Boolean>(10, Boolean{7}))), Status::Ok);
    EXPECT_EQ(table.taken(), "SeatSpreadToWas(-6) ");
    EXPECT_EQ(shownBoxes(*table.control), "oooooooooo");
    EXPECT_TRUE(table.host->click(u"checkSeatSelected", 10));
}

TEST(SeatCheckBoxes, TheEventComesBeforeTheBoxIsDisabled) {
    Table<SeatCheckBoxes> table;
    seatsAre(*table.control, BooleanArray(1, {true, true}));
    table.host->click(u"checkSeatSelected", 1);
    std::string seen;
    const auto connection = table.control->SeatSpreadToWas.attach([&](Long&) {
        seen = shownBoxes(*table.control) + " of " +
               std::to_string(static_cast<Long>(table.control->get_NumberOfSeatsAllowed()));
    });
    seatsAre(*table.control, BooleanArray(1, {false}));
    EXPECT_EQ(seen, "oo........ of 1");
    EXPECT_EQ(shownBoxes(*table.control), ".o........");
}

TEST(Seats, ArraysThatCannotBeRead) {
    struct Case {
        const char* what;
        BooleanArray seats;
        Status status;
        const char* boxes; ///< of SeatCheckBoxes afterwards
        Long count;
    };
    const Case cases[] = {
        {"no elements", BooleanArray(), Status::SubscriptOutOfRange, "..........", 7},
        {"from 2 to 5", BooleanArray(2, {true, true, true, true}), Status::SubscriptOutOfRange, "..........", 5},
        {"eleven", BooleanArray(1, std::vector<Boolean>(11, Boolean::True)), Status::MissingElement, "oooooooooo", 11},
        {"40,000", BooleanArray(1, std::vector<Boolean>(40000, Boolean::True)), Status::Overflow, "..........", 40000},
        {"an upper bound below 1", BooleanArray(-2, {true, true}), Status::Ok, "..........", -1},
    };
    for (const Case& tried : cases) {
        Table<SeatCheckBoxes> boxes;
        EXPECT_EQ(seatsAre(*boxes.control, tried.seats), tried.status) << tried.what;
        EXPECT_EQ(shownBoxes(*boxes.control), tried.boxes) << tried.what;
        EXPECT_EQ(toLong(get(*boxes.control, u"NumberOfSeatsAllowed")),
                  tried.status == Status::SubscriptOutOfRange && !tried.seats.hasElements() ? 7 : tried.count);

        Table<paneledSeatBoxes> paneled;
        EXPECT_EQ(seatsAre(*paneled.control, tried.seats), tried.status) << tried.what;
        Table<SpreadSeatButtons> spread;
        EXPECT_EQ(seatsAre(*spread.control, tried.seats), tried.status) << tried.what;
        Table<SitDownButton> sit;
        EXPECT_EQ(seatsAre(*sit.control, tried.seats), tried.status) << tried.what;
        Table<PlayerButtons> player;
        EXPECT_EQ(seatsAre(*player.control, tried.seats, u"SetupTheRadioButtons"), tried.status) << tried.what;
    }
    Table<paneledSeatBoxes> paneled;
    for (Variant& wrong : std::array{Variant(), Variant(true), Variant(u"seats")})
        EXPECT_EQ(paneled.control->Invoke(u"AvailableSeatsAre", Access::Method, {&wrong, 1}, nullptr),
                  Status::TypeMismatch);
}

TEST(SeatCheckBoxes, TheMarkerCoversThePlayersOwnSeat) {
    Table<SeatCheckBoxes> table;
    auto& marker = dynamic_cast<OptionButton&>(*table.control->surface().find(u"buttonSeatOwner"));
    const auto mark = [&](Long k) {
        table.control->MySeatIS(static_cast<SeatSpreadPossibilities>(k));
        return marker.get_Visible() ? toUtf8(marker.get_Caption()) + " at " + std::to_string(int(marker.get_Left())) +
                                          "," + std::to_string(int(marker.get_Top()))
                                    : "hidden";
    };
    EXPECT_EQ(mark(8), "8 at 1040,1140");
    EXPECT_EQ(mark(5), "5 at 310,880");
    for (const Long none : {0, -3, 11, 65544})
        EXPECT_EQ(mark(none), "hidden");
    EXPECT_EQ(marker.get_Caption(), u"5") << "hidden with what it had";

    seatsAre(*table.control, BooleanArray(1, std::vector<Boolean>(10, Boolean::True)));
    mark(3);
    const Hit hit = table.control->surface().hitTest({1300, 950});
    EXPECT_EQ(hit.widget, &marker) << "it takes the clicks that fall on it";
    table.host->input(input::PointerDown{{1300, 950}});
    table.host->input(input::PointerUp{{1300, 950}});
    EXPECT_EQ(table.taken(), "");
    EXPECT_EQ(box(*table.control, 3).get_Value(), CheckBox::Unchecked);
}

TEST(SeatContainers, PassOnWhatTheBoxesSayAndAreAsked) {
    Table<paneledSeatBoxes> paneled;
    Table<SpreadSeatButtons> spread;
    const auto check = [](auto& table) {
        Control& control = *table.control;
        EXPECT_EQ(toLong(get(control, u"NumberOfSeatsAllowed")), 7);
        put(control, u"NumberOfSeatsAllowed", Long{9});
        EXPECT_EQ(toLong(get(control, u"NumberOfSeatsAllowed")), 9);
        EXPECT_EQ(shownBoxes(control, u"SpreadSeatBoxes"), ".......---");
        EXPECT_EQ(seatsAre(control, BooleanArray(1, {false, true, true, true, true, true, true})), Status::Ok);
        EXPECT_EQ(shownBoxes(control, u"SpreadSeatBoxes"), ".oooooo---");
        EXPECT_TRUE(table.host->input(input::Act{box(control, 6, u"SpreadSeatBoxes")}));
        EXPECT_TRUE(table.host->input(input::Act{box(control, 6, u"SpreadSeatBoxes")}));
        EXPECT_FALSE(table.host->input(input::Act{box(control, 1, u"SpreadSeatBoxes")}));
        EXPECT_EQ(table.taken(), "SeatSpreadToWas(6) SeatSpreadToWas(-6) ");
    };
    check(paneled);
    check(spread);

    paneled.control->MySeatIS(SeatSpreadPossibilities::SpreadToSeat3Requested);
    const Surface& inner = *paneled.control->surface().find(u"SpreadSeatBoxes")->embeddedSurface();
    EXPECT_TRUE(inner.find(u"buttonSeatOwner")->get_Visible());
    EXPECT_TRUE(paneled.host->click(u"commandDoneButton")) << "in front of the boxes";
    EXPECT_EQ(paneled.taken(), "DoneButtonWasClicked ");

    spread.host->click(u"commandSpreadToSeats");
    spread.host->click(u"commandSpreadToSeats");
    EXPECT_EQ(spread.taken(), "TellMeWhichSeatsAreAvailable TellMeWhichSeatsAreAvailable ");
    spread.control->surface().find(u"SpreadSeatBoxes")->put_Visible(false);
    spread.host->click(u"commandSpreadToSeats");
    EXPECT_FALSE(spread.host->input(input::Act{box(*spread.control, 6, u"SpreadSeatBoxes")}));
    EXPECT_EQ(spread.taken(), "");
}

TEST(SeatContainers, TheVeryReferenceGoesThrough) {
    Table<paneledSeatBoxes> table;
    seatsAre(*table.control, BooleanArray(1, {true, true, true}));
    std::vector<const Long*> variables;
    const auto first = table.control->SeatSpreadToWas.attach([&](Long& SelectedSeat) {
        variables.push_back(&SelectedSeat);
        SelectedSeat = 99;
    });
    Long seenInside = 0;
    const auto last = table.control->SeatSpreadToWas.attach([&](Long& SelectedSeat) {
        variables.push_back(&SelectedSeat);
        seenInside = SelectedSeat;
    });
    table.host->input(input::Act{box(*table.control, 2, u"SpreadSeatBoxes")});
    ASSERT_EQ(variables.size(), 2U);
    EXPECT_EQ(variables[0], variables[1]);
    EXPECT_EQ(seenInside, 99);
    EXPECT_EQ(box(*table.control, 2, u"SpreadSeatBoxes").get_Value(), CheckBox::Checked) << "and changes no box";
}

TEST(PaneledSeatBoxes, TheDoneButtonsVisibilityIsSavedButNotReported) {
    Table<paneledSeatBoxes> table;
    MemoryPropertyBag settings;
    table.host->save(settings);
    EXPECT_TRUE(settings.settings().empty());
    table.control->put_DoneButtonIsVisible(false);
    EXPECT_TRUE(table.host->changes().empty());
    table.host->save(settings);
    for (const Variant& stored : {settings.settings().at(0).value, Variant(u"0"), Variant(Long{0})}) {
        settings.set(u"DoneButtonIsVisible", stored);
        Table<paneledSeatBoxes> again;
        ControlHost host(create<paneledSeatBoxes>());
        host.open(&settings);
        EXPECT_FALSE(toBoolean(host.get(u"DoneButtonIsVisible")));
        EXPECT_FALSE(host.click(u"commandDoneButton"));
    }
    settings.set(u"DoneButtonIsVisible", u"maybe");
    ControlHost host(create<paneledSeatBoxes>());
    EXPECT_THROW(host.open(&settings), Failure);
}

TEST(SpreadSeatButtons, AmbientColoursOnAChangeOnly) {
    Table<SpreadSeatButtons> table;
    EXPECT_EQ(table.control->surface().backColor(), colours::ButtonFace);
    table.host->ambientProperties().put_ForeColor(Colour{0x00FF0000});
    table.host->setAmbient(u"Font", StdFont::make({}));
    EXPECT_EQ(table.control->surface().foreColor(), Colour{0x00FF0000}) << "whatever property changed";
}

TEST(SitDownButton, OpensAsksAndCloses) {
    Table<SitDownButton> table;
    const auto& selector = *table.control->surface().find(u"frameSeatSelector");
    EXPECT_FALSE(selector.get_Visible());
    EXPECT_FALSE(table.host->click(u"optSeatSelected", 4)) << "the selector is closed";
    table.host->click(u"cmdSitDown");
    EXPECT_TRUE(selector.get_Visible());
    EXPECT_EQ(table.taken(), "SitdownButtonWasClicked TellMeWhichSeatsAreAvailable ");
    EXPECT_EQ(seatsAre(*table.control, BooleanArray(1, {true, true, false, true, true, true, false})), Status::Ok);
    EXPECT_EQ(table.taken(), "") << "clearing in code is no click";
    EXPECT_FALSE(table.host->click(u"optSeatSelected", 3));
    EXPECT_TRUE(table.host->click(u"optSeatSelected", 4));
    EXPECT_FALSE(selector.get_Visible());
    EXPECT_EQ(table.taken(), "SeatSelectedWas(4) ");

    table.host->click(u"cmdSitDown");
    table.taken();
    EXPECT_TRUE(table.host->click(u"optSeatSelected", 4)) << "the seat that he has is a choice like the others";
    EXPECT_EQ(table.taken(), "SeatSelectedWas(4) ");
    table.host->click(u"cmdSitDown");
    table.host->click(u"cmdSitDown");
    EXPECT_EQ(table.taken(), "SitdownButtonWasClicked TellMeWhichSeatsAreAvailable SitdownButtonWasClicked ");
}

TEST(SitDownButton, AHostThatHidesTheSelectorInTheFirstEventIsNotAsked) {
    Table<SitDownButton> table;
    Widget& selector = *table.control->surface().find(u"frameSeatSelector");
    const auto connection = table.control->SitdownButtonWasClicked.attach([&] { selector.put_Visible(false); });
    table.host->click(u"cmdSitDown");
    EXPECT_EQ(table.taken(), "SitdownButtonWasClicked ");
}

TEST(SitDownButton, LoadedInADesignerAndAtRunTime) {
    for (const bool userMode : {false, true}) {
        ControlHost host(create<SitDownButton>());
        host.ambientProperties().put_UserMode(userMode);
        host.ambientProperties().put_BackColor(Colour{0x00123456});
        const MemoryPropertyBag nothing;
        host.open(&nothing);
        EXPECT_FALSE(host.control().surface().find(u"frameSeatSelector")->get_Visible());
        EXPECT_EQ(host.control().surface().area().height, 2385);
        EXPECT_EQ(host.control().surface().backColor(), Colour{0x00123456});
        EXPECT_FALSE(host.control().surface().find(u"optSeatSelected", 8)->get_Visible());
    }
}

TEST(PlayerButtons, SelectionByHostAndUser) {
    Table<PlayerButtons> table;
    const auto select = [&](Integer which) {
        Integer given = which;
        table.control->SelectButton(given);
        EXPECT_EQ(given, which);
        return table.taken();
    };
    EXPECT_EQ(select(4), "PlayerSeatSelected(4) ");
    EXPECT_EQ(select(4), "");
    for (const Integer outside : {Integer{0}, Integer{-3}, Integer{8}}) {
        EXPECT_EQ(select(outside), "PlayerSeatSelected(1) ");
        EXPECT_EQ(select(2), "PlayerSeatSelected(2) ");
    }
    EXPECT_EQ(seatsAre(*table.control, BooleanArray(1, {true, false, false}), u"SetupTheRadioButtons"), Status::Ok);
    EXPECT_TRUE(seat<OptionButton>(*table.control, u"optPlayerSeatSelector", 2).get_Value()) << "disabled and selected";
    EXPECT_FALSE(table.host->click(u"optPlayerSeatSelector", 3));
    EXPECT_TRUE(table.host->click(u"optPlayerSeatSelector", 6));
    EXPECT_FALSE(table.host->input(*parseKey(u"Alt+2")));
    EXPECT_TRUE(table.host->input(*parseKey(u"Alt+7")));
    EXPECT_TRUE(table.host->input(*parseKey(u"Right"))) << "from seat 7 on to the first that can be picked";
    EXPECT_TRUE(table.host->input(*parseKey(u"Right"))) << "past the disabled ones";
    EXPECT_EQ(table.taken(),
              "PlayerSeatSelected(6) PlayerSeatSelected(7) PlayerSeatSelected(1) PlayerSeatSelected(4) ");
}

TEST(Seats, KeyboardReachesEverySeatControl) {
    struct Case {
        const char* what;
        const char* keys;
        const char* events;
    };
    const auto type = [](auto& table, const std::string& keys) {
        std::istringstream in(keys);
        for (std::string key; in >> key;)
            table.host->input(*parseKey(toUtf16(key)));
        return table.taken();
    };
    Table<SeatCheckBoxes> boxes;
    seatsAre(*boxes.control, BooleanArray(1, {true, false, true}));
    EXPECT_EQ(type(boxes, "Tab Space Tab Space Tab Space"),
              "SeatSpreadToWas(3) SeatSpreadToWas(1) SeatSpreadToWas(-3) ")
        << "box 2 is disabled and passed over";
    Table<paneledSeatBoxes> paneled;
    seatsAre(*paneled.control, BooleanArray(1, {false, true}));
    EXPECT_EQ(type(paneled, "Tab Space Tab Enter Shift+Tab Space"),
              "SeatSpreadToWas(2) DoneButtonWasClicked SeatSpreadToWas(-2) ");
    Table<SitDownButton> sit;
    EXPECT_EQ(type(sit, "Tab Enter"), "SitdownButtonWasClicked TellMeWhichSeatsAreAvailable ");
    EXPECT_EQ(type(sit, "Alt+0"), "SeatSelectedWas(10) ");
    EXPECT_EQ(type(sit, "Alt+5"), "") << "the selector is closed again";
    EXPECT_EQ(type(sit, "Space Shift+Tab Down"),
              "SitdownButtonWasClicked TellMeWhichSeatsAreAvailable SeatSelectedWas(1) ")
        << "from seat 10, which was taken, on to the first";
}

TEST(Seats, AHandlerThatCallsBackOrDestroys) {
    {
        Table<SeatCheckBoxes> table;
        seatsAre(*table.control, BooleanArray(1, {true, true, true}));
        table.host->click(u"checkSeatSelected", 1);
        table.host->click(u"checkSeatSelected", 2);
        table.taken();
        const auto connection = table.control->SeatSpreadToWas.attach([&](Long&) {
            seatsAre(*table.control, BooleanArray(1, {false, true}));
        });
        seatsAre(*table.control, BooleanArray(1, {true, true, true}));
        EXPECT_EQ(table.taken(), "SeatSpreadToWas(-1) SeatSpreadToWas(-2) ");
        EXPECT_EQ(shownBoxes(*table.control), "ooo.......") << "the outer call goes on where it was";
    }
    // The host and the last reference go in the middle of a call that goes on.
    for (const bool late : {false, true}) {
        Table<paneledSeatBoxes> table;
        seatsAre(*table.control, BooleanArray(1, {true, true}));
        table.host->input(input::Act{box(*table.control, 1, u"SpreadSeatBoxes")});
        table.host->input(input::Act{box(*table.control, 2, u"SpreadSeatBoxes")});
        paneledSeatBoxes* control = table.control.get();
        int heard = 0;
        const auto connection = control->SeatSpreadToWas.attach([&](Long&) {
            ++heard;
            table.host.reset();
            table.control = nullptr;
        });
        BooleanArray seats(1, {true, true});
        if (late)
            EXPECT_EQ(seatsAre(*control, seats), Status::Ok);
        else
            control->AvailableSeatsAre(seats);
        EXPECT_EQ(heard, 2);
    }
    EXPECT_EQ(libraryModule().liveObjects(), 0U);
}

} // namespace zilvo
