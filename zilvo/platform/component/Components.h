#pragma once

#include "zilvo/platform/component/ComponentRuntime.h"

#include <deque>

namespace zilvo::platform {

/// The components of a late-bound host, which creates objects by identifier alone. Owns them, each file once, until it
/// goes away; a component of which anything is alive then stays in the process. All calls throw Failures.
class Components {
public:
    /// Loads a component file, or gives the component that has been loaded from it. Fails as LoadedComponent does.
    const LoadedComponent& add(const std::filesystem::path& file);

    /// Creates an instance by ProgID, class id or class name, without case. What no loaded component has is looked for
    /// in the user's registration store, and its component is loaded. Fails with ClassNotAvailable when the class is
    /// not registered, or its component lacks it after all; with FileNotFound or BadComponent when the registered file
    /// is gone or broken; and as reading the store and the class's Initialize do.
    Ref<Object> create(StringView name);

    /// The one instance of an application object, found in the same way; see LoadedComponent::application().
    Ref<Object> application(StringView name);

    /// In the order in which they were loaded; the first is the host's main one.
    const std::deque<LoadedComponent>& loaded() const noexcept { return loaded_; }
    const LoadedComponent& main() const noexcept { return loaded_.front(); }
    std::size_t liveObjects() const;

private:
    /// The component that has the class, loaded if need be, and the class's name there.
    struct Found {
        const LoadedComponent& component;
        String className;
    };
    Found find(StringView name);
    Found findRegistered(StringView name);

    std::deque<LoadedComponent> loaded_; ///< which leaves them where they are when it grows
};

} // namespace zilvo::platform
