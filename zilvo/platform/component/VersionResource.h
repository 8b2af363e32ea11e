#pragma once

#include "zilvo/platform/component/ByteReader.h"
#include "zilvo/platform/component/TypeInformation.h"

#include <deque>

namespace zilvo::platform {

/// A version record in the binary form of version resources: its number in a fixed part, then its strings in US
/// English.
Bytes versionResourceOf(const VersionRecord& record);

/// A version record that was read from such bytes.
class VersionResource {
public:
    /// Takes all that is left. Fails with BadComponent and the offset.
    explicit VersionResource(ByteReader bytes);
    VersionResource(const VersionResource&) = delete;
    VersionResource& operator=(const VersionResource&) = delete;

    const VersionRecord& record() const noexcept { return record_; }

private:
    std::deque<String> texts_;
    std::vector<VersionString> strings_;
    VersionRecord record_;
};

} // namespace zilvo::platform
