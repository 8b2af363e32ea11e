#include "platform/component/Events.h"

#include <memory>

namespace zilvo::platform {

void EventSlot::Release() noexcept {
    if (--references_ == 0) std::default_delete<EventSlot>()(this);
}

void EventSlot::disconnect() noexcept {
    connected_ = false;
    if (running_ == 0) forgetHandler();
}

} // namespace zilvo::platform
