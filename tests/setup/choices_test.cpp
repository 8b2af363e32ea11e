#include "tests/support/EventLog.h"
#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"

#include <gtest/gtest.h>

namespace zilvo {

namespace {

using Entries = EventLog::Entries;

/// Deck buttons on a host.
struct Decks {
    Ref<DeckButtons> control = create<DeckButtons>();
    ControlHost host{control};
    EventLog log{host};

    Decks() { host.open(); }
    /// The indexes of the buttons that show as selected.
    std::string selected() {
        return which([](OptionButton& button) { return button.get_Value(); });
    }
    std::string visible() {
        return which([](OptionButton& button) { return button.get_Visible(); });
    }
    /// The index of the casino item with the check mark; several would all stand here.
    std::string checked() {
        std::string all;
        for (Widget& widget : control->surface())
            if (auto* item = dynamic_cast<Menu*>(&widget); item && item->get_Checked())
                all += std::to_string(item->index()) + " ";
        return all;
    }
    bool choose(Integer index) { return host.click(u"menuCasinoDefaults", index); }

private:
    template <class Test>
    std::string which(Test test) {
        std::string all;
        for (Widget& widget : control->surface())
            if (auto* button = dynamic_cast<OptionButton*>(&widget); button && test(*button))
                all += std::to_string(button->index()) + " ";
        return all;
    }
};

} // namespace

TEST(DeckButtons, ANewOneIsWideWithOneDeck) {
    Decks decks;
    EXPECT_EQ(decks.control->get_NumberOfDecks(), 1);
    EXPECT_EQ(static_cast<Long>(decks.control->get_ObjectWidth()), 2);
    EXPECT_EQ(decks.selected(), "1 ");
    EXPECT_EQ(decks.visible(), "1 2 4 5 6 8 10 12 7 9 ");
    EXPECT_FALSE(decks.host.click(u"optDeckCount", 7)) << "greyed out";
    EXPECT_EQ(decks.log.take(), Entries{});
}

TEST(DeckButtons, CountsFromTheHostAndFromTheUser) {
    struct Case {
        const char* what;
        Integer put;
        Entries events;
        Integer reads;
        const char* selected;
        std::size_t beeps;
    };
    const Case cases[] = {
        {"another count", 6, {"NumberOfDecksChanged(6)"}, 6, "6 ", 0},
        {"the same", 6, {}, 6, "6 ", 0},
        {"a disabled one", 9, {"NumberOfDecksChanged(9)"}, 9, "9 ", 0},
        {"none leaves 9 alone", 0, {}, 9, "9 ", 0},
        {"no such count", 3, {}, 9, "9 ", 1},
        {"nor this", 11, {}, 9, "9 ", 2},
        {"nor below zero", -1, {}, 9, "9 ", 3},
        {"nor above twelve", 13, {}, 9, "9 ", 4},
        {"twelve", 12, {"NumberOfDecksChanged(12)"}, 12, "12 ", 4},
        {"none clears it and keeps the count", 0, {}, 12, "", 4},
        {"the count that it has, cleared", 12, {"NumberOfDecksChanged(12)"}, 12, "12 ", 4},
    };
    Decks decks;
    for (const Case& tried : cases) {
        decks.control->put_NumberOfDecks(tried.put);
        EXPECT_EQ(decks.log.take(), tried.events) << tried.what;
        EXPECT_EQ(decks.control->get_NumberOfDecks(), tried.reads) << tried.what;
        EXPECT_EQ(decks.selected(), tried.selected) << tried.what;
        EXPECT_EQ(decks.host.beeps(), tried.beeps) << tried.what;
    }
    EXPECT_TRUE(decks.host.click(u"optDeckCount", 4));
    EXPECT_TRUE(decks.host.input(*parseKey(u"Alt+8")));
    EXPECT_TRUE(decks.host.input(*parseKey(u"Right"))) << "from the last usable count round to the first";
    EXPECT_EQ(decks.log.take(),
              (Entries{"NumberOfDecksChanged(4)", "NumberOfDecksChanged(8)", "NumberOfDecksChanged(1)"}));
    EXPECT_EQ(decks.control->get_NumberOfDecks(), 1);
}

TEST(DeckButtons, NarrowAndWide) {
    Decks decks;
    decks.control->put_NumberOfDecks(7);
    decks.log.take();
    put(*decks.control, u"ObjectWidth", Long{1});
    EXPECT_EQ(decks.visible(), "1 2 4 5 6 8 ");
    EXPECT_EQ(decks.control->surface().find(u"panelDeckCount")->get_Width(), 396);
    EXPECT_EQ(decks.control->surface().area().width, 8115) << "the control's own width stays";
    decks.control->put_NumberOfDecks(9);
    EXPECT_EQ(decks.selected(), "9 ") << "hidden and selected";
    EXPECT_EQ(decks.log.take(), Entries{"NumberOfDecksChanged(9)"});
    decks.host.resize(6000, 1500);
    EXPECT_EQ(decks.control->surface().find(u"panelDeckCount")->get_Width(), 400) << "pixels";
    EXPECT_EQ(decks.control->surface().find(u"panelDeckCount")->get_Height(), 100);
    put(*decks.control, u"ObjectWidth", Long{77});
    EXPECT_EQ(toLong(get(*decks.control, u"ObjectWidth")), 77);
    EXPECT_EQ(decks.visible(), "1 2 4 5 6 8 ");
    put(*decks.control, u"ObjectWidth", Long{2});
    EXPECT_EQ(decks.host.extenderObject().get_Width(), 8115);
    EXPECT_EQ(decks.visible(), "1 2 4 5 6 8 10 12 7 9 ");
    EXPECT_EQ(decks.control->surface().find(u"optDeckCount", 8)->get_Left(), 6600);
}

TEST(DeckButtons, TheCheckMarkFollowsTheCasino) {
    struct Step {
        Integer index;
        Entries events;
        const char* checked;
    };
    const Step steps[] = {
        {20, {"NumberOfDecksChanged(6)"}, "20 "}, {60, {}, "60 "},
        {30, {"NumberOfDecksChanged(1)"}, "30 "}, {0, {}, ""},
        {10, {"NumberOfDecksChanged(8)"}, "10 "}, {25, {"NumberOfDecksChanged(2)"}, "25 "},
    };
    Decks decks;
    for (const Step& step : steps) {
        EXPECT_TRUE(decks.choose(step.index));
        EXPECT_EQ(decks.log.take(), step.events) << step.index;
        EXPECT_EQ(decks.checked(), step.checked) << step.index;
    }
    EXPECT_FALSE(decks.choose(21)) << "a separator";
    EXPECT_FALSE(decks.choose(80)) << "no such item";
    decks.host.click(u"optDeckCount", 5);
    EXPECT_EQ(decks.checked(), "25 ") << "a count by hand leaves it where it is";
}

TEST(DeckButtons, OnlyTheRightButtonPopsTheMenuUp) {
    Decks decks;
    const Point onPanel{7900, 800};
    const auto popup = [&] { return decks.control->lastPopup(); };
    for (const Integer button : {input::LeftButton, input::MiddleButton}) {
        decks.host.input(input::PointerDown{onPanel, button});
        decks.host.input(input::PointerUp{onPanel, button});
    }
    decks.host.input(input::PointerDown{{300, 350}, input::RightButton}); // an option button keeps it for itself
    EXPECT_EQ(popup(), nullptr);
    decks.host.input(input::PointerDown{onPanel, input::RightButton, input::ShiftMask | input::CtrlMask});
    ASSERT_NE(popup(), nullptr);
    EXPECT_EQ(popup()->name(), u"menuDefaultMenu");

    // On its own surface too, where the narrow panel leaves it bare.
    Decks narrow;
    put(*narrow.control, u"ObjectWidth", Long{1});
    narrow.host.input(input::PointerDown{{7000, 500}, input::RightButton});
    EXPECT_NE(narrow.control->lastPopup(), nullptr);
}

/// From the right button to the check mark, with everything that happens on the way.
TEST(DeckButtons, ACasinosChoiceFromEndToEnd) {
    Decks decks;
    decks.choose(30);
    decks.log.take();
    Entries story;
    const auto connection = decks.control->NumberOfDecksChanged.attach([&](Integer& theNumberOfDecks) {
        story.push_back("the host hears " + std::to_string(theNumberOfDecks));
        story.push_back("it reads " + std::to_string(decks.control->get_NumberOfDecks()));
        story.push_back("selected " + decks.selected());
        story.push_back("checked " + decks.checked());
        theNumberOfDecks = 12;
    });
    decks.host.input(input::PointerDown{{7900, 800}, input::RightButton});
    decks.host.input(input::PointerUp{{7900, 800}, input::RightButton});
    for (const StringView key : {u"Down", u"Right", u"V"})
        EXPECT_TRUE(decks.host.input(*parseKey(key)));
    EXPECT_EQ(story, (Entries{"the host hears 6", "it reads 6", "selected 6 ", "checked "}));
    EXPECT_EQ(decks.checked(), "20 ");
    EXPECT_EQ(decks.control->get_NumberOfDecks(), 6);

    story.clear();
    decks.host.input(input::PointerDown{{7900, 800}, input::RightButton});
    for (const StringView key : {u"Down", u"Enter", u"B"})
        EXPECT_TRUE(decks.host.input(*parseKey(key)));
    EXPECT_TRUE(story.empty()) << "six were selected already";
    EXPECT_EQ(decks.checked(), "60 ");
    EXPECT_EQ(decks.log.take(), Entries{"NumberOfDecksChanged(6)"});
}

TEST(DeckButtons, AHandlerMayDestroyItInTheMiddleOfTheChain) {
    std::optional<ControlHost> host(std::in_place, create<DeckButtons>());
    host->open();
    host->on(u"NumberOfDecksChanged", [&](std::span<Variant>) { host.reset(); });
    EXPECT_TRUE(host->click(u"menuCasinoDefaults", 10));
    EXPECT_FALSE(host);
    EXPECT_EQ(libraryModule().liveObjects(), 0U);
}

TEST(CardShufflingOptions, HostAndUserChooseAMethod) {
    const auto control = create<CardShufflingOptions>();
    ControlHost host(control);
    EventLog log(host);
    host.open();
    EXPECT_TRUE(dynamic_cast<OptionButton&>(*control->surface().find(u"optCardShuffleMethod", 0)).get_Value());
    EXPECT_FALSE(host.click(u"optCardShuffleMethod", 3)) << "greyed out";
    put(*control, u"CardShuffleMethod", Long{3});
    put(*control, u"CardShuffleMethod", Long{3});
    EXPECT_TRUE(host.click(u"optCardShuffleMethod", 4));
    EXPECT_EQ(toLong(get(*control, u"CardShuffleMethod")), 3) << "a click is not stored";
    EXPECT_EQ(log.take(), (Entries{"CardShuffleMethodChanged(3)", "CardShuffleMethodChanged(4)"}));
    MemoryPropertyBag settings;
    host.save(settings);
    EXPECT_EQ(toLong(settings.settings().at(0).value), 3);
    EXPECT_TRUE(host.changes().empty());

    struct Refused {
        Long method;
        Status status;
    };
    for (const Refused& tried :
         {Refused{5, Status::MissingElement}, {-1, Status::MissingElement}, {32768, Status::Overflow}}) {
        Variant value(tried.method);
        EXPECT_EQ(control->Invoke(0x68030000, Access::Put, {&value, 1}, nullptr), tried.status);
        EXPECT_EQ(toLong(get(*control, u"CardShuffleMethod")), tried.method) << "stored before the button is looked up";
    }
    EXPECT_EQ(log.take(), Entries{});
}

TEST(CardShufflingOptions, LoadingSelectsAndReports) {
    struct Case {
        Variant stored;
        Status status;
        Entries events;
    };
    const Case cases[] = {
        {Integer{2}, Status::Ok, {"CardShuffleMethodChanged(2)"}},
        {u"4", Status::Ok, {"CardShuffleMethodChanged(4)"}},
        {Long{0}, Status::Ok, {}},
        {Long{7}, Status::MissingElement, {}},
        {Long{70000}, Status::Overflow, {}},
        {u"random", Status::TypeMismatch, {}},
    };
    for (const Case& tried : cases) {
        MemoryPropertyBag settings;
        settings.set(u"CardShuffleMethod", tried.stored);
        ControlHost host(create<CardShufflingOptions>());
        EventLog log(host);
        EXPECT_EQ(host.control().Load(settings), tried.status) << platform::describe(tried.stored);
        EXPECT_EQ(log.take(), tried.events);
    }
}

TEST(CardShufflingOptions, AHandlerMayCloseTheHostWhileLoading) {
    MemoryPropertyBag settings;
    settings.set(u"CardShuffleMethod", Integer{2});
    auto host = std::make_unique<ControlHost>(create<CardShufflingOptions>());
    host->on(u"CardShuffleMethodChanged", [&](std::span<Variant>) { host.reset(); });
    host->open(&settings);
    EXPECT_EQ(host, nullptr);
    EXPECT_EQ(libraryModule().liveObjects(), 0U);
}

} // namespace zilvo
