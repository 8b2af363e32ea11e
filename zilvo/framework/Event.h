#pragma once

#include "zilvo/framework/Platform.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace zilvo {

/// An event of a control. Raising is synchronous and passes every argument by reference. Handlers run in the order
/// in which they were attached; one that is attached during a raise is not called by it, one that is detached is
/// called no more. A handler may raise again, destroy the control or throw: a Failure stops the raise and goes on
/// through the control.
template <class... Arguments>
class Event {
public:
    using Handler = std::function<void(Arguments&...)>;

    explicit Event(Object& owner) noexcept : owner_(owner) {}
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;
    ~Event() {
        for (std::size_t i = 0; i < slots_.size(); ++i) // what a handler held may attach another as it goes
            Ref<Slot>(slots_[i])->eventEnds();
    }

    /// The handler stays attached as long as the connection. An empty one fails with InvalidPropertyValue.
    Connection attach(Handler handler) {
        if (!handler) throw Failure(Status::InvalidPropertyValue, "an event handler cannot be empty");
        if (state_.raising == 0) sweep();
        const Ref<Slot> slot(*std::make_unique<Slot>(owner_.module(), state_, std::move(handler)).release());
        slots_.push_back(slot);
        return Connection(slot);
    }

    /// For the control that owns the event. The control lives until the raise has ended; the caller touches nothing
    /// of it afterwards unless it holds the control itself.
    void raise(Arguments&... arguments) {
        if (slots_.empty()) return;
        const Ref<Object> alive(owner_);
        const Raise raise(*this);
        const std::size_t attached = slots_.size();
        for (std::size_t i = 0; i < attached; ++i)
            if (Slot& slot = *slots_[i]; slot.isConnected()) slot.handler(arguments...);
    }

private:
    struct Slot final : EventSlot {
        Slot(ComponentModule& module, EventState& event, Handler attached)
            : EventSlot(module, event), handler(std::move(attached)) {}
        /// Empty before what it holds is let go of, which may come back here.
        void forgetHandler() noexcept override { const Handler gone = std::exchange(handler, nullptr); }

        Handler handler;
    };

    /// While one is on, no slot leaves the list and no handler goes away.
    class Raise {
    public:
        explicit Raise(Event& event) noexcept : event_(event) { ++event_.state_.raising; }
        Raise(const Raise&) = delete;
        Raise& operator=(const Raise&) = delete;
        ~Raise() {
            if (--event_.state_.raising == 0 && event_.state_.hasDetached) event_.sweep();
        }

    private:
        Event& event_;
    };

    /// Kept out of the way of raises in which nobody detaches.
    [[gnu::cold, gnu::noinline]] void sweep() noexcept {
        while (std::exchange(state_.hasDetached, false)) {
            std::stable_partition(slots_.begin(), slots_.end(),
                                  [](const Ref<Slot>& slot) { return slot->isConnected(); });
            while (!slots_.empty() && !slots_.back()->isConnected()) {
                // Out of the list before what its handler holds is let go of, which may come back here.
                const Ref<Slot> detached = std::move(slots_.back());
                slots_.pop_back();
                state_.hasDetached = true;
                detached->eventEnds();
            }
        }
    }

    Object& owner_;
    EventState state_;
    std::vector<Ref<Slot>> slots_;
};

/// An argument of an event: its published name and, for a Long that carries one, its enumeration.
struct EventArgument {
    constexpr EventArgument(const char16_t* argumentName, const EnumerationDescription* carried = nullptr) noexcept
        : name(argumentName), enumeration(carried) {}
    StringView name;
    const EnumerationDescription* enumeration;
};

namespace describing {

template <class Control, class... Arguments, class... Given>
constexpr EventDescription describeEvent(Event<Arguments...> Control::* /*event*/, const Given&... given) noexcept {
    static_assert(sizeof...(Given) == sizeof...(Arguments), "a name for each argument");
    EventDescription description;
    ((description.argument[description.argumentCount++] =
          ArgumentDescription{given.name, {platform::detail::typeOf<Arguments>().kind, given.enumeration}, true}),
     ...);
    return description;
}

/// Attaches a late-bound sink: it gets references to the variables that typed handlers get.
template <class Control, class... Arguments>
Connection connectSink(Event<Arguments...> Control::*event, Object& object, Long number, EventSink& sink) {
    return (static_cast<Control&>(object).*event).attach([number, &sink](Arguments&... arguments) {
        std::array<Variant, sizeof...(Arguments)> references{Variant::to(arguments)...};
        sink.Event(number, references);
    });
}

} // namespace describing

/// Describes an event: `event<1, &ssOKCancel::CancelWasClicked>(u"CancelWasClicked")`.
template <Long Number, auto Member, class... Names>
constexpr EventDescription event(StringView name, const Names&... argumentNames) noexcept {
    auto description = describing::describeEvent(Member, EventArgument(argumentNames)...);
    description.number = Number;
    description.name = name;
    description.connect = [](Object& object, EventSink& sink) {
        return describing::connectSink(Member, object, Number, sink);
    };
    return description;
}

} // namespace zilvo
