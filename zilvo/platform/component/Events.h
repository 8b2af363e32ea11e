#pragma once

#include "zilvo/platform/component/Module.h"
#include "zilvo/platform/values/Members.h"

namespace zilvo::platform {

/// A late-bound host's handler of an event: gets the event's number and references to the very variables that a
/// typed handler would see. May throw a Failure, which reaches the call that led to the event.
class EventSink {
public:
    virtual void Event(Long number, std::span<Variant> arguments) = 0;

protected:
    ~EventSink() = default;
};

/// What an event and the handlers attached to it know of each other.
struct EventState {
    unsigned raising = 0; ///< raises that are on; more than one when a handler raises again
    bool hasDetached = false;
};

/// One handler attached to one event, shared by the event and whoever attached it.
class EventSlot {
public:
    EventSlot(ComponentModule& module, EventState& event) noexcept : lock_(module), event_(&event) {}
    EventSlot(const EventSlot&) = delete;
    EventSlot& operator=(const EventSlot&) = delete;

    void AddRef() noexcept { ++references_; }
    void Release() noexcept;

    bool isConnected() const noexcept { return connected_; }
    /// No raise that starts or goes on after this reaches the handler. What the handler holds is let go of at once or,
    /// while the event is being raised, at the end of that.
    void disconnect() noexcept;
    /// The event goes away before the connection does.
    void eventEnds() noexcept;

protected:
    virtual ~EventSlot() = default;
    virtual void forgetHandler() noexcept = 0;

private:
    friend struct std::default_delete<EventSlot>;

    ModuleLock lock_;
    EventState* event_;
    unsigned references_ = 0;
    bool connected_ = true;
};

/// A handler's connection to an event; ends with it. May outlive the control, never the component.
class [[nodiscard]] Connection {
public:
    Connection() = default;
    explicit Connection(Ref<EventSlot> slot) noexcept : slot_(std::move(slot)) {}
    Connection(Connection&&) = default;
    Connection& operator=(Connection&& other) noexcept {
        disconnect();
        slot_ = std::move(other.slot_);
        return *this;
    }
    ~Connection() { disconnect(); }

    void disconnect() noexcept {
        if (const auto slot = std::exchange(slot_, nullptr)) slot->disconnect();
    }
    bool isConnected() const noexcept { return slot_ && slot_->isConnected(); }

private:
    Ref<EventSlot> slot_;
};

} // namespace zilvo::platform
