#include "zilvo/platform/component/Events.h"

#include <memory>

namespace zilvo::platform {

void EventSlot::Release() noexcept {
    if (--references_ == 0) std::default_delete<EventSlot>()(this);
}

void EventSlot::disconnect() noexcept {
    connected_ = false;
    if (!event_) return;
    event_->hasDetached = true;
    if (event_->raising == 0) forgetHandler();
}

void EventSlot::eventEnds() noexcept {
    connected_ = false;
    event_ = nullptr;
    forgetHandler();
}

} // namespace zilvo::platform
