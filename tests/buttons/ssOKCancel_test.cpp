#include "zilvo/buttons/ssOKCancel.h"

#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"

#include <gtest/gtest.h>

namespace zilvo {

namespace {

/// An ssOKCancel with a host that logs its events: "O" for OK, "C" for Cancel.
struct Pair {
    Ref<ssOKCancel> control = create<ssOKCancel>();
    std::string log;
    Connection ok = control->OKWasClicked.attach([this] { log += 'O'; });
    Connection cancel = control->CancelWasClicked.attach([this] { log += 'C'; });
    ControlHost host{control};
};

bool italic(const Pair& pair, StringView button) {
    auto& widget = static_cast<CommandButton&>(*pair.control->surface().find(button));
    return widget.get_Font()->get_Italic();
}

std::string stored(const MemoryPropertyBag& bag) {
    std::string all;
    for (const auto& setting : bag.settings())
        all += toUtf8(setting.name) + "=" + toUtf8(toString(setting.value)) + " ";
    return all;
}

} // namespace

TEST(OKCancel, NewAndLoadedFromNothing) {
    Pair fresh;
    fresh.host.open();
    EXPECT_FALSE(fresh.control->get_OKEnabled());
    EXPECT_FALSE(fresh.control->get_ItalicOK());
    EXPECT_TRUE(fresh.control->get_ItalicCancel());

    Pair loaded;
    const MemoryPropertyBag nothing;
    loaded.host.open(&nothing);
    EXPECT_TRUE(loaded.control->get_ItalicOK()) << "the read default, not the designed one";
    EXPECT_TRUE(loaded.control->get_ItalicCancel());
    for (const Pair* pair : {&fresh, &loaded}) {
        EXPECT_TRUE(pair->control->get_Default());
        EXPECT_TRUE(pair->control->get_Cancel());
        EXPECT_FALSE(pair->control->get_OKEnabled());
        EXPECT_EQ(pair->control->get_OKToolTipText(), u"");
        EXPECT_TRUE(pair->host.changes().empty());
        EXPECT_EQ(pair->log, "");
    }
}

TEST(OKCancel, UserInputAgainstExpectedEvents) {
    struct Step {
        const char* what;
        InputEvent input;
        const char* events;
        bool acted;
    };
    const auto key = [](StringView name) { return *parseKey(name); };
    const Point onOK{700, 500}, onCancel{700, 1100}, onRim{30, 30};
    const Step disabled[] = {
        {"press on the disabled OK", input::PointerDown{onOK}, "", false},
        {"release there", input::PointerUp{onOK}, "", false},
        {"Enter, although OK is disabled", input::KeyTyped{13}, "O", true},
        {"Escape", input::KeyTyped{27}, "C", true},
        {"another key", input::KeyTyped{u'o'}, "", false},
        {"the access key of the disabled OK", key(u"Alt+O"), "", false},
        {"that of Cancel", key(u"Alt+c"), "C", true},
        {"Space on Cancel, which has the keyboard now", key(u"Space"), "C", true},
        {"Enter on Cancel is still the control's OK", key(u"Enter"), "O", true},
    };
    const Step enabled[] = {
        {"press on OK", input::PointerDown{onOK}, "", true},
        {"leave it", input::PointerMove{onCancel}, "", true},
        {"release elsewhere", input::PointerUp{onCancel}, "", false},
        {"press again", input::PointerDown{onOK}, "", true},
        {"release on it", input::PointerUp{onOK}, "O", true},
        {"the right button", input::PointerDown{onOK, input::RightButton}, "", true},
        {"its release", input::PointerUp{onOK, input::RightButton}, "", false},
        {"the panel's rim", input::PointerDown{onRim}, "", true},
        {"release on the rim", input::PointerUp{onRim}, "", false},
        {"Alt+O", key(u"Alt+o"), "O", true},
    };
    Pair pair;
    pair.host.open();
    const auto run = [&](std::span<const Step> steps) {
        for (const Step& step : steps) {
            pair.log.clear();
            EXPECT_EQ(pair.host.input(step.input), step.acted) << step.what;
            EXPECT_EQ(pair.log, step.events) << step.what;
        }
    };
    run(disabled);
    pair.control->put_OKEnabled(true);
    run(enabled);
    pair.host.extenderObject().put_Visible(false);
    EXPECT_FALSE(pair.host.input(input::KeyTyped{13})) << "hidden by its host";
}

TEST(OKCancel, SettersReportWhatIsSavedAndOnlyThat) {
    Pair pair;
    pair.host.open();
    pair.control->put_OKEnabled(true);
    pair.control->put_Default(false);
    pair.control->put_Cancel(false);
    EXPECT_EQ(pair.host.changes(), (std::vector<String>{u"Default", u"Cancel"}));
    pair.control->SetDefaultDefaults();
    EXPECT_TRUE(pair.control->get_Default());
    EXPECT_TRUE(pair.control->get_Cancel());
    pair.control->put_ItalicOK(true);
    pair.control->put_ItalicCancel(false);
    pair.control->put_OKToolTipText(u"yes");
    pair.control->put_CancelToolTipText(u"no");
    EXPECT_EQ(pair.host.changes(), (std::vector<String>{u"Default", u"Cancel", u"ItalicOK", u"ItalicCancel",
                                                        u"OKToolTipText", u"CancelToolTipText"}));
    EXPECT_TRUE(italic(pair, u"cmdOK"));
    EXPECT_FALSE(italic(pair, u"cmdCancel"));
    EXPECT_EQ(toolTipAt(pair.host.control(), {700, 1100}), u"no");
}

TEST(OKCancel, SavedSettingsComeBackWhateverTheStoreLeavesOut) {
    Pair untouched;
    untouched.host.open();
    MemoryPropertyBag sparse;
    MemoryPropertyBag full(MemoryPropertyBag::Defaults::Kept);
    untouched.host.save(sparse);
    untouched.host.save(full);
    EXPECT_EQ(stored(sparse), "ItalicOK=False ItalicCancel=True ");
    EXPECT_EQ(stored(full),
              "Default=True Cancel=True ItalicOK=False ItalicCancel=True OKToolTipText= CancelToolTipText= ");

    Pair changed;
    changed.host.open();
    changed.control->put_OKEnabled(true);
    changed.control->put_Default(false);
    changed.control->put_CancelToolTipText(u"no");
    for (MemoryPropertyBag* bag : {&sparse, &full}) {
        changed.host.save(*bag);
        Pair again;
        again.host.open(bag);
        EXPECT_FALSE(again.control->get_Default());
        EXPECT_TRUE(again.control->get_Cancel());
        EXPECT_FALSE(again.control->get_ItalicOK());
        EXPECT_TRUE(again.control->get_ItalicCancel());
        EXPECT_EQ(again.control->get_CancelToolTipText(), u"no");
        EXPECT_FALSE(again.control->get_OKEnabled()) << "never saved";
    }
}

TEST(OKCancel, AStoredValueThatDoesNotConvertFailsAtItsStep) {
    const auto some = StdFont::make({});
    struct Case {
        StringView key;
        Variant value;
        const char* message;
    };
    const Case cases[] = {
        {u"Default", u"maybe", "ssOKCancel.ReadProperties: Default: \"maybe\" (String) does not convert to Boolean"},
        {u"ItalicCancel", Variant(some),
         "ssOKCancel.ReadProperties: ItalicCancel: the font MS Sans Serif does not "
         "convert to Boolean"},
        {u"CancelToolTipText", Variant(some),
         "ssOKCancel.ReadProperties: CancelToolTipText: the font MS Sans Serif "
         "does not convert to String"},
    };
    for (const Case& tried : cases) {
        MemoryPropertyBag bag;
        bag.set(u"Cancel", false);
        bag.set(u"ItalicOK", Integer{0});
        bag.set(u"OKToolTipText", Integer{42});
        bag.set(tried.key, tried.value);
        Pair pair;
        ErrorInfo error;
        EXPECT_EQ(pair.host.control().Load(bag, &error), Status::TypeMismatch);
        EXPECT_EQ(error.message, tried.message);
        const bool reachedTheEnd = tried.key == u"CancelToolTipText";
        EXPECT_EQ(pair.control->get_Cancel(), tried.key == u"Default") << "earlier keys stay, later ones are not read";
        EXPECT_EQ(pair.control->get_OKToolTipText(), reachedTheEnd ? u"42" : u"");
    }
}

TEST(OKCancel, DispatchConvertsAndNamesWhatIsWrong) {
    Pair pair;
    pair.host.open();
    Object& object = *pair.control;
    const auto put = [&](StringView name, std::vector<Variant> arguments) {
        ErrorInfo error;
        const Status status = object.Invoke(name, Access::Put, arguments, nullptr, &error);
        return std::string(nameOf(status)) + " | " + error.message;
    };
    EXPECT_EQ(put(u"okenabled", {Variant(u"TRUE")}), "ok | ");
    EXPECT_TRUE(pair.control->get_OKEnabled());
    EXPECT_EQ(put(u"OKEnabled", {Variant(u"on")}),
              "type mismatch | ssOKCancel.OKEnabled: \"on\" (String) does not convert to Boolean");
    EXPECT_EQ(put(u"OKEnabled", {}), "argument count | ssOKCancel.OKEnabled: takes 1 argument, not 0");
    EXPECT_EQ(put(u"Enabled", {Variant(true)}), "unknown member | ssOKCancel: there is no Enabled");
    EXPECT_EQ(put(u"SetDefaultDefaults", {Variant(true)}),
              "unknown member | ssOKCancel.SetDefaultDefaults: is a method, not a property");
    Variant result;
    ErrorInfo error;
    EXPECT_EQ(object.Invoke(0x68030001, Access::Get, {}, &result), Status::Ok);
    EXPECT_TRUE(toBoolean(result));
    EXPECT_EQ(object.Invoke(0x6803007F, Access::Get, {}, &result, &error), Status::UnknownMember);
    EXPECT_EQ(error.message, "ssOKCancel: there is no member 0x6803007f");
}

TEST(OKCancel, AFailingHandlerFailsTheInputThatRaisedTheEvent) {
    Pair pair;
    pair.host.open();
    const auto connection =
        pair.control->OKWasClicked.attach([] { throw Failure(Status::SubscriptOutOfRange, "the host's own"); });
    ErrorInfo error;
    EXPECT_EQ(pair.host.control().Input(input::KeyTyped{13}, nullptr, &error), Status::SubscriptOutOfRange);
    EXPECT_EQ(error.message, "ssOKCancel.Input: the host's own");
    EXPECT_TRUE(pair.host.input(input::KeyTyped{27}));
    EXPECT_EQ(pair.log, "OC");
}

} // namespace zilvo
