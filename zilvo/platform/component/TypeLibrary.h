#pragma once

#include "zilvo/platform/component/ByteReader.h"
#include "zilvo/platform/component/TypeInformation.h"

#include <deque>
#include <tuple>

namespace zilvo::platform {

/// A component's description in the binary form in which its file carries it; docs/component-file.md describes it.
Bytes typeLibraryOf(const ComponentDescription& component);

/// A description that was read from such bytes. Its objects are only described: an accessor or event that is used, and
/// a class that is created, fail with NotImplemented.
class TypeLibrary {
public:
    /// Takes all that is left. The version record becomes part of the description and must stay. Fails with
    /// BadComponent and the offset.
    TypeLibrary(ByteReader bytes, const VersionRecord& version);
    TypeLibrary(const TypeLibrary&) = delete;
    TypeLibrary& operator=(const TypeLibrary&) = delete;

    const ComponentDescription& description() const noexcept { return description_; }

private:
    class Reader;

    /// What the description points at, which stays where it is.
    std::deque<String> texts_;
    std::deque<EnumerationDescription> enumerations_;
    std::vector<const EnumerationDescription*> published_;
    std::deque<ClassIdentity> identities_;
    std::deque<ObjectDescription> objects_;
    std::vector<ClassEntry> classes_;
    std::tuple<std::deque<std::vector<EnumerationMember>>, std::deque<std::vector<MemberDescription>>,
               std::deque<std::vector<EventDescription>>>
        lists_;
    LibraryIdentity library_;
    ComponentDescription description_;
};

} // namespace zilvo::platform
