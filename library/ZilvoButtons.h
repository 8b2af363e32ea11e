#pragma once

#include "buttons/ssOKCancel.h"
#include "framework/Enumerations.h"
#include "framework/Identity.h"
#include "platform/component/ClassFactory.h"

namespace zilvo {

/// The library for hosts that link it: every control's typed interface, and the classes by identifier.

/// The module that typed hosts and the component's entry points share.
ComponentModule& libraryModule() noexcept;

/// A fresh instance of a class of the library: `create<ssOKCancel>()`. Fails as the class's Initialize does.
template <class T>
Ref<T> create() {
    return createControl<T>(libraryModule());
}

} // namespace zilvo
