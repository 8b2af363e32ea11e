#pragma once

#include "zilvo/platform/component/TypeInformation.h"

namespace zilvo::console {

/// The type library in the interface definition language, as a compiler for it makes a type library of it again; with
/// one class only, and the enumerations that it uses, when `only` is given.
std::string interfaceDefinition(const platform::ComponentDescription& component,
                                const platform::ClassEntry* only = nullptr);

} // namespace zilvo::console
