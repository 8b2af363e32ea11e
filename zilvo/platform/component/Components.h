#pragma once

#include "zilvo/platform/component/ComponentFile.h"
#include "zilvo/platform/component/ComponentRuntime.h"

#include <deque>

namespace zilvo::platform {

/// A component that a host knows: what its file says, and the loaded component from the first object on that is made of
/// it. All calls throw Failures.
class KnownComponent {
public:
    /// Reads the file. Fails as ComponentFile does.
    explicit KnownComponent(const std::filesystem::path& file) : file_(file) {}

    const std::filesystem::path& file() const noexcept { return file_.file(); }
    /// What the file says.
    const ComponentDescription& description() const noexcept { return file_.description(); }
    std::size_t liveObjects() const { return loaded_ ? loaded_->liveObjects() : 0; }

    /// Load the component on first use, and fail as LoadedComponent does.
    Ref<Object> create(StringView className) { return loaded().create(className); }
    Ref<Object> application(StringView className) { return loaded().application(className); }

private:
    LoadedComponent& loaded() { return loaded_ ? *loaded_ : loaded_.emplace(file()); }

    ComponentFile file_;
    std::optional<LoadedComponent> loaded_;
};

/// Where components are installed: the folder `zilvo` beside the library of the platform, wherever that was moved to.
std::filesystem::path installedComponents();

/// The components of a late-bound host, which creates objects by identifier alone. Owns them, each file once, until it
/// goes away; a component of which anything is alive then stays in the process. All calls throw Failures.
class Components {
public:
    /// Reads a component file, or gives the component that has been read from it. Fails as ComponentFile does.
    KnownComponent& add(const std::filesystem::path& file);
    /// Adds the component files of a folder (*.Ocx) by their names. One that cannot be read is left out, and not missed
    /// until its class is asked for.
    void addFrom(const std::filesystem::path& folder);

    /// Creates an instance by ProgID, class id or class name, without case. What no known component has is looked for
    /// in the registration stores, the user's first, then among the installed components, and its component is added.
    /// Fails with ClassNotAvailable when there is no such class, or its registered component lacks it after all; with
    /// FileNotFound or BadComponent when the registered file is gone or broken; and as reading the stores and the
    /// class's Initialize do.
    Ref<Object> create(StringView name);

    /// The one instance of an application object, found in the same way; see LoadedComponent::application().
    Ref<Object> application(StringView name);

    /// In the order in which they were added; the first is the host's main one.
    std::deque<KnownComponent>& known() noexcept { return known_; }
    const KnownComponent& main() const noexcept { return known_.front(); }
    std::size_t liveObjects() const;

private:
    /// The component that has the class, added if need be, and the class's name there.
    struct Found {
        KnownComponent& component;
        String className;
    };
    Found find(StringView name);
    std::optional<Found> findKnown(StringView name);
    std::optional<Found> findRegistered(StringView name);

    std::deque<KnownComponent> known_; ///< which leaves them where they are when it grows
};

} // namespace zilvo::platform
