#pragma once

#include "zilvo/platform/component/TypeInformation.h"

#include <nlohmann/json.hpp>

namespace zilvo::console {

/// Keys keep the order in which they are documented.
using Json = nlohmann::ordered_json;

/// The type description of a component; of one class only, with the enumerations that it uses, when `only` is
/// given.
Json description(const platform::ComponentDescription& component, const platform::ClassEntry* only = nullptr);

/// The same for people.
std::string descriptionText(const platform::ComponentDescription& component,
                            const platform::ClassEntry* only = nullptr);

/// The part of a component that a description of one class shows: the class and the enumerations that it uses. All of
/// it when `only` is null.
std::vector<const platform::EnumerationDescription*> enumerationsOf(const platform::ComponentDescription& component,
                                                                    const platform::ClassEntry* only);
std::vector<const platform::ClassEntry*> classesOf(const platform::ComponentDescription& component,
                                                   const platform::ClassEntry* only);

/// One line for each class: name, ProgID, class id.
std::string classTable(const platform::ComponentDescription& component);

/// The class of that name, ProgID or class id; fails with ClassNotAvailable.
const platform::ClassEntry& findClass(const platform::ComponentDescription& component, const std::string& name);

/// "0x68030000"
std::string hexadecimal(std::uint32_t number);
/// The shortest decimal that reads back as the same Single; whole numbers without a fraction.
std::string decimal(platform::Single number);

} // namespace zilvo::console
