#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"

#include <cmath>
#include <gtest/gtest.h>

namespace zilvo {

namespace {

/// A host and a typed handler of a counter's event, which writes down what it carries.
template <class Host = ControlHost>
struct Counter {
    Ref<SpinCounter> control = create<SpinCounter>();
    std::vector<Integer> heard;
    Connection connection = control->CounterValueHasChanged.attach([this](Integer& count) { heard.push_back(count); });
    Host host{control};

    Counter() { host.open(); }
    Widget& child(StringView name) { return *control->surface().find(name); }
    bool spinsBothWays() {
        using input::Action;
        Widget& spinner = child(u"SpinButton");
        heard.clear();
        return host.input(input::Act{spinner, Action::SpinUp}) && host.input(input::Act{spinner, Action::SpinDown}) &&
               heard == std::vector<Integer>{1, 0};
    }
};

} // namespace

TEST(SpinCounter, HeldDownItRepeatsByTheHostsClock) {
    Counter counter;
    counter.host.input(input::PointerDown{{1200, 100}});
    counter.host.input(input::TimePassed{SpinButton::RepeatDelay + SpinButton::RepeatEvery});
    EXPECT_EQ(counter.heard, (std::vector<Integer>{1, 2, 3}));
}

TEST(SpinCounter, MountedAboveOrBelowBothArrowsCanBePressedInAnyHeight) {
    Counter counter;
    for (const Long side : {3, 4, 3})
        for (Single height = 240; height <= 3000; height += 16) {
            put(*counter.control, u"ControlHandedness", side);
            ASSERT_TRUE(counter.spinsBothWays()) << side << ", before it is resized to " << height;
            counter.host.resize(1500, height);
            ASSERT_TRUE(counter.spinsBothWays()) << side << ", " << height;
            Widget& lower = counter.child(side == 3 ? u"SpinButton" : u"labelCardsInStack");
            ASSERT_EQ(lower.get_Top(), std::floor(std::nearbyint(height / 15) / 2)) << height;
        }
}

TEST(SpinCounter, NoFontIsNoFont) {
    Counter counter;
    Variant none(FontRef{});
    EXPECT_EQ(counter.control->Invoke(u"Font", Access::PutReference, {&none, 1}, nullptr),
              Status::InvalidPropertyValue);
}

TEST(SpinCounter, AFailingHostOrStoreEndsTheStepsThere) {
    struct Host final : ControlHost {
        using ControlHost::ControlHost;
        void PropertyChanged(StringView name) override {
            if (name != u"MaximumLimit") throw Failure(Status::Failed, "no");
        }
    };
    struct Store final : PropertyBag {
        std::vector<String> written;
        std::optional<Variant> read(StringView) const override { return std::nullopt; }
        void write(StringView name, const Variant&, bool) override {
            if (written.size() == 2) throw Failure(Status::Failed, "full");
            written.emplace_back(name);
        }
    };
    Counter<Host> counter;
    EXPECT_THROW(counter.host.put(u"CounterValue", Integer{5}), Failure);
    EXPECT_EQ(counter.control->get_CounterValue(), 5);
    EXPECT_TRUE(counter.heard.empty());
    Store store;
    EXPECT_THROW(counter.host.save(store), Failure);
    EXPECT_EQ(store.written, (std::vector<String>{u"Height", u"CounterValue"}));
}

TEST(CardShufflingOptions, AHandlerMayCloseTheHostWhileLoading) {
    MemoryPropertyBag settings;
    settings.set(u"CardShuffleMethod", Integer{2});
    std::optional<ControlHost> host(std::in_place, create<CardShufflingOptions>());
    host->on(u"CardShuffleMethodChanged", [&](std::span<Variant>) { host.reset(); });
    host->open(&settings);
    EXPECT_EQ(libraryModule().liveObjects(), 0U);
}

} // namespace zilvo
