#include "zilvo/framework/Event.h"
#include "zilvo/library/ZilvoButtons.h"

#include <gtest/gtest.h>

namespace zilvo {

namespace {

/// An object with an event and nothing else.
class Raiser final : public Object {
public:
    Raiser() : Object(libraryModule()) {}
    const ObjectDescription& description() const noexcept override;

    Event<Long> Changed{*this};
};

constexpr std::array raiserEvents = {event<1, &Raiser::Changed>(u"Changed", u"Value")};
constinit const ObjectDescription raiserDescription{u"Raiser", {}, raiserEvents};

const ObjectDescription& Raiser::description() const noexcept {
    return raiserDescription;
}

Ref<Raiser> makeRaiser() {
    return Ref<Raiser>(*std::make_unique<Raiser>().release());
}

class AddingSink final : public EventSink {
public:
    void Event(Long number, std::span<Variant> arguments) override {
        EXPECT_EQ(number, 1);
        variable = arguments[0].findVariable<Long>();
        arguments[0].assign(Variant(toLong(arguments[0]) + 10));
    }
    Long* variable = nullptr;
};

} // namespace

TEST(Events, TypedAndLateBoundHandlersShareOneVariableInTheOrderOfAttaching) {
    const auto raiser = makeRaiser();
    AddingSink sink;
    Connection late;
    Long seenLast = 0;
    const auto first = raiser->Changed.attach([](Long& value) { value *= 2; });
    ASSERT_EQ(raiser->Connect(1, sink, late), Status::Ok);
    const auto last = raiser->Changed.attach([&](Long& value) { seenLast = value; });

    Long value = 5;
    raiser->Changed.raise(value);
    EXPECT_EQ(sink.variable, &value);
    EXPECT_EQ(seenLast, 20);
    EXPECT_EQ(value, 20);

    ErrorInfo error;
    EXPECT_EQ(raiser->Connect(2, sink, late, &error), Status::UnknownMember);
    EXPECT_EQ(error.message, "Raiser: there is no event 2");
}

TEST(Events, AttachingAndDetachingDuringARaise) {
    const auto raiser = makeRaiser();
    std::string log;
    Connection detachedByFirst;
    std::vector<Connection> added;
    const auto first = raiser->Changed.attach([&](Long&) {
        log += 'a';
        detachedByFirst.disconnect();
        for (int i = 0; i < 20; ++i) // enough to move the list while it is gone through
            added.push_back(raiser->Changed.attach([&](Long&) { log += 'n'; }));
    });
    detachedByFirst = raiser->Changed.attach([&](Long&) { log += 'b'; });
    const auto last = raiser->Changed.attach([&](Long&) { log += 'c'; });
    Long value = 0;
    raiser->Changed.raise(value);
    EXPECT_EQ(log, "ac");
    added.resize(1);
    log.clear();
    raiser->Changed.raise(value);
    EXPECT_EQ(log, "acn");
}

TEST(Events, AHandlerMayDetachItselfAndWhatItHoldsIsLetGoOfAtItsEnd) {
    const auto raiser = makeRaiser();
    auto held = std::make_shared<int>(7);
    const std::weak_ptr<int> watched = held;
    Connection connection;
    connection = raiser->Changed.attach([&connection, held = std::move(held)](Long& value) {
        connection.disconnect();
        value = *held; // still there
    });
    Long value = 0;
    raiser->Changed.raise(value);
    EXPECT_EQ(value, 7);
    EXPECT_TRUE(watched.expired());
}

TEST(Events, RaisingAgainInsideAHandler) {
    const auto raiser = makeRaiser();
    std::vector<Long> seen;
    Connection shortLived;
    const auto connection = raiser->Changed.attach([&](Long& value) {
        seen.push_back(value);
        if (value < 3) {
            Long next = value + 1;
            raiser->Changed.raise(next);
        } else {
            shortLived.disconnect();
        }
    });
    shortLived = raiser->Changed.attach([&](Long& value) { seen.push_back(-value); });
    Long value = 1;
    raiser->Changed.raise(value);
    EXPECT_EQ(seen, (std::vector<Long>{1, 2, 3}));
}

TEST(Events, AFailureStopsTheRaiseAndLeavesTheEventUsable) {
    const auto raiser = makeRaiser();
    std::string log;
    bool fail = true;
    const auto first = raiser->Changed.attach([&](Long&) {
        log += 'a';
        if (fail) throw Failure(Status::Overflow, "too much");
    });
    const auto second = raiser->Changed.attach([&](Long&) { log += 'b'; });
    Long value = 0;
    EXPECT_THROW(raiser->Changed.raise(value), Failure);
    fail = false;
    raiser->Changed.raise(value);
    EXPECT_EQ(log, "aab");
    EXPECT_THROW((void)raiser->Changed.attach(nullptr), Failure);
}

} // namespace zilvo
