#pragma once

#include "zilvo/platform/component/TypeInformation.h"

#include <filesystem>

namespace zilvo::platform {

/// What a component publishes of itself on a machine, so that a host finds its classes without knowing the file.
struct Registration {
    struct TypeLibrary {
        Guid id;
        String name;
        std::string version; ///< "10.0"
        Long locale = 0;
        String helpString;
        String helpDirectory;
        String flags;

        friend bool operator==(const TypeLibrary&, const TypeLibrary&) = default;
    };

    /// The component's file is its server.
    struct Class {
        Guid classId;
        String name;
        String progId;
        Guid libraryId; ///< the type library that describes it, in this version
        std::string version;
        bool isControl = false;
        /// A control has both, another class neither.
        std::optional<Integer> toolboxBitmap;
        std::optional<std::uint32_t> miscStatus;

        friend bool operator==(const Class&, const Class&) = default;
    };

    /// A default or an event interface.
    struct Interface {
        Guid id;
        String name;
        Guid libraryId;
        std::string version;

        friend bool operator==(const Interface&, const Interface&) = default;
    };

    /// Absolute and without links, as registeredPath() gives it.
    std::filesystem::path file;
    /// Null once another component has taken the type library over.
    std::optional<TypeLibrary> library;
    std::vector<Class> classes;
    std::vector<Interface> interfaces;

    friend bool operator==(const Registration&, const Registration&) = default;
};

/// In the order in which they were made. No id, and no file, is in them twice.
using Registrations = std::vector<Registration>;

/// All that the component in that file registers.
Registration registrationOf(const ComponentDescription& component, const std::filesystem::path& file);

/// The one path under which a component file is registered, however it was named. The file may be missing. Fails with
/// FileNotFound for a path that leads nowhere.
std::filesystem::path registeredPath(const std::filesystem::path& file);

/// Takes out what is registered for the file of `own`, and what is registered under an id of `own` for any other file,
/// which keeps the rest. Gives what was taken out, for each file.
Registrations takeOut(const Registration& own, Registrations& from);

/// Enters the newcomer, which takes over what is its own wherever it lies: first it is taken out. Changes nothing when
/// all of that is registered as it is.
void enter(const Registration& newcomer, Registrations& into);

} // namespace zilvo::platform
