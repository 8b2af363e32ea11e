#include "hosts/console/validate/Driver.h"

#include <algorithm>
#include <limits>
#include <list>

/// Events, and handlers that do what is hard on a control.

namespace zilvo::console {

using namespace platform;

namespace {

/// A handler attached to one event.
class Listener final : public EventSink {
public:
    using Handler = std::function<void(Listener& self, Long number, std::span<Variant> arguments)>;

    Listener(Object& object, const EventDescription& event, Handler handler)
        : event_(event), handler_(std::move(handler)) {
        ErrorInfo error;
        throwUnlessOk(object.Connect(event.number, *this, connection_, &error), error);
    }

    const EventDescription& event() const noexcept { return event_; }
    std::size_t heard() const noexcept { return heard_; }
    void disconnect() noexcept { connection_.disconnect(); }

private:
    void Event(Long number, std::span<Variant> arguments) override {
        ++heard_;
        handler_(*this, number, arguments);
    }

    const EventDescription& event_;
    Handler handler_;
    std::size_t heard_ = 0;
    Connection connection_;
};

/// A control that a handler may close and let go of, and what is being done with it.
struct Subject {
    Subject(const LoadedComponent& component, const ClassEntry& entry)
        : host(std::make_unique<ControlHost>(createInstance(component, entry))) {}

    Object& object() const noexcept { return host->object(); }
    std::size_t heard() const noexcept {
        std::size_t all = 0;
        for (const Listener& listener : listeners)
            all += listener.heard();
        return all;
    }

    std::list<Listener> listeners; ///< one for each event; they stay when the control is gone
    std::unique_ptr<ControlHost> host;
    const Deed* deed = nullptr;
};

/// What the handler of every event does, and what must hold after each deed.
struct Behaviour {
    std::function<void(Subject& subject, Listener& self, Long number, std::span<Variant> arguments)> handle;
    std::function<void(Subject& subject, const Answer& answer, bool heard)> verify;
};

/// When the handlers are attached: before the control is opened, after it, or after its members were used too.
enum class Attached : std::uint8_t { BeforeOpening, New, Prepared };

Deeds deedsFor(Subject& subject, Attached when) {
    if (when != Attached::BeforeOpening) return allDeeds(subject.object());
    const auto open = [&subject] { return attempt([&] { subject.host->open(); }); };
    return {{toUtf8(subject.object().description().name) + ", opened", open}};
}

/// Does everything with a control that has handlers. When one has closed it, the rest is done with another control.
void exercise(Check& check, const LoadedComponent& component, const ClassEntry& entry, Attached when,
              const Behaviour& behaviour) {
    for (std::size_t next = 0, end = 1; next < end;) {
        Subject subject(component, entry);
        if (when != Attached::BeforeOpening) subject.host->open();
        if (when == Attached::Prepared) carryOut(check, memberDeeds(subject.object()));
        for (const EventDescription& event : entry.description.events)
            subject.listeners.emplace_back(subject.object(), event,
                                           [&](Listener& self, Long number, std::span<Variant> arguments) {
                                               behaviour.handle(subject, self, number, arguments);
                                           });
        const Deeds deeds = deedsFor(subject, when);
        for (end = deeds.size(); next < end && subject.host; ++next) {
            subject.deed = &deeds[next];
            check.step(subject.deed->what);
            const std::size_t before = subject.heard();
            const Answer answer = subject.deed->run();
            behaviour.verify(subject, answer, subject.heard() != before);
            if (subject.host) subject.host->extenderObject().put_Visible(true); // it may have hidden itself
        }
    }
}

void exercise(Check& check, const LoadedComponent& component, const ClassEntry& entry, const Behaviour& behaviour) {
    for (const Attached when : {Attached::BeforeOpening, Attached::New, Attached::Prepared})
        exercise(check, component, entry, when, behaviour);
}

} // namespace

void checks::eventConnections(Check& check, LoadedComponent& component) {
    forEachControl(check, component, [&](const ClassEntry& entry) {
        ControlHost host(createInstance(component, entry));
        host.open();
        Object& object = host.object();
        const auto ignore = [](Listener&, Long, std::span<Variant>) {};
        const auto events = entry.description.events;
        const Long behindLast = events.empty() ? 1 : events.back().number + 1;
        for (const Long number : {Long{0}, Long{-1}, behindLast, std::numeric_limits<Long>::max()}) {
            check.step(nameOf(entry) + ", attaching to the unknown event " + std::to_string(number));
            EventDescription unknown;
            unknown.number = number;
            expectStatus(check, attempt([&] { Listener(object, unknown, ignore); }), Status::UnknownMember);
        }
        std::list<Listener> disconnected;
        for (const EventDescription& event : events)
            disconnected.emplace_back(object, event, ignore).disconnect();
        carryOut(check, allDeeds(object));
        check.step(nameOf(entry));
        for (const Listener& listener : disconnected)
            check.expect(listener.heard() == 0,
                         "a handler that was disconnected heard " + toUtf8(listener.event().name));
    });
}

namespace {

void expectAsDeclared(Check& check, const EventDescription& event, Long number, std::span<const Variant> arguments) {
    const auto what = "raises " + toUtf8(event.name);
    check.expect(number == event.number,
                 what + " with the number " + std::to_string(number) + ", not " + std::to_string(event.number));
    if (!check.expect(arguments.size() == event.argumentCount, what + " with " + std::to_string(arguments.size()) +
                                                                   " arguments, not " +
                                                                   std::to_string(event.argumentCount)))
        return;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const ArgumentDescription& declared = event.arguments()[i];
        const auto given = what + " with " + describe(arguments[i]) + " as " + toUtf8(declared.name);
        check.expect(arguments[i].isReference(), given + ", which is no reference");
        check.expect(arguments[i].kind() == declared.type.kind, given + ", not a " + toUtf8(declared.type.name()));
    }
}

} // namespace

void checks::eventsRaised(Check& check, LoadedComponent& component) {
    forEachControl(check, component, [&](const ClassEntry& entry) {
        std::vector<const EventDescription*> raised;
        exercise(check, component, entry,
                 {.handle =
                      [&](Subject&, Listener& self, Long number, std::span<Variant> arguments) {
                          raised.push_back(&self.event());
                          expectAsDeclared(check, self.event(), number, arguments);
                      },
                  .verify = [&](Subject&, const Answer& answer, bool) { expectClean(check, answer); }});
        std::string never;
        for (const EventDescription& event : entry.description.events)
            if (std::find(raised.begin(), raised.end(), &event) == raised.end()) never += " " + toUtf8(event.name);
        check.step(nameOf(entry));
        if (!never.empty()) check.warn("nothing raised" + never);
    });
}

void checks::closingHandlers(Check& check, LoadedComponent& component) {
    forEachControl(check, component, [&](const ClassEntry& entry) {
        exercise(check, component, entry,
                 {.handle = [](Subject& subject, Listener&, Long, std::span<Variant>) { subject.host.reset(); },
                  .verify =
                      [&](Subject& subject, const Answer& answer, bool) {
                          expectClean(check, answer);
                          check.expect(subject.host || component.liveObjects() == 0,
                                       "the control is alive after a handler closed it and let go of it");
                      }});
    });
}

namespace {

/// Gets and puts back every property, then does again what led to the event.
void callBack(Check& check, const Subject& subject) {
    Object& object = subject.object();
    for (const MemberDescription& member : object.description().members) {
        if (!member.accessor(Access::Get)) continue;
        check.step(subject.deed->what + ", whose handler uses " + nameOf(object, member));
        Answer got = invoke(object, member.id, Access::Get, {});
        expectClean(check, got);
        if (const auto setting = accessToSet(member); setting && succeeded(got.status))
            expectClean(check, invoke(object, member.id, *setting, {&got.result, 1}));
    }
    check.step(subject.deed->what + ", whose handler does that again");
    expectClean(check, subject.deed->run());
}

} // namespace

void checks::callingHandlers(Check& check, LoadedComponent& component) {
    constexpr int Deepest = 2;
    int depth = 0;
    forEachControl(check, component, [&](const ClassEntry& entry) {
        exercise(check, component, entry,
                 {.handle =
                      [&](Subject& subject, Listener&, Long, std::span<Variant>) {
                          if (depth == Deepest) return;
                          ++depth;
                          callBack(check, subject);
                          --depth;
                      },
                  .verify = [&](Subject&, const Answer& answer, bool) { expectClean(check, answer); }});
    });
}

void checks::failingHandlers(Check& check, LoadedComponent& component) {
    constexpr Status Planted = Status::FileNotFound;
    forEachControl(check, component, [&](const ClassEntry& entry) {
        exercise(check, component, entry,
                 {.handle = [](Subject&, Listener&, Long,
                               std::span<Variant>) { throw Failure(Planted, "the handler fails"); },
                  .verify =
                      [&](Subject& subject, const Answer& answer, bool heard) {
                          if (!heard) return void(expectClean(check, answer));
                          expectStatus(check, answer, Planted);
                          MemoryPropertyBag settings;
                          expectOk(check, attempt([&] { subject.host->save(settings); }));
                      }});
    });
}

void checks::disconnectingHandlers(Check& check, LoadedComponent& component) {
    forEachControl(check, component, [&](const ClassEntry& entry) {
        exercise(check, component, entry,
                 {.handle = [](Subject&, Listener& self, Long, std::span<Variant>) { self.disconnect(); },
                  .verify =
                      [&](Subject& subject, const Answer& answer, bool) {
                          expectClean(check, answer);
                          for (const Listener& listener : subject.listeners)
                              check.expect(listener.heard() <= 1, "a handler that had disconnected itself heard " +
                                                                      toUtf8(listener.event().name));
                      }});
    });
}

} // namespace zilvo::console
