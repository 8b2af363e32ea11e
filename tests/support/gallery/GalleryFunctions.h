#pragma once

#include "zilvo/framework/Platform.h"

namespace zilvo {

/// Two functions without a surface.
class GalleryFunctions final : public Object {
public:
    static const ObjectDescription Description;
    explicit GalleryFunctions(ComponentModule& module) noexcept : Object(module) {}

    bool IsBitSet(Long Number, Integer Bit);
    void SetBit(Long& Number, Integer Bit);

private:
    const ObjectDescription& description() const noexcept override { return Description; }
};

} // namespace zilvo
