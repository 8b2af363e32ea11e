#pragma once

#include "tests/support/gallery/GalleryLibrary.h"
#include "zilvo/library/ZilvoButtons.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <iostream>

/// A target runs the code under test with whatever bytes the fuzzer comes up with, and stops the process where
/// something is wrong; the fuzzer then keeps those bytes in a file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size); // NOLINT: the fuzzer's name

namespace zilvo::fuzz {

inline void require(bool holds, const std::string& what) {
    if (holds) return;
    std::clog << "It does not hold that " << what << '\n';
    std::abort();
}

/// Runs what may fail, but only with a status that tells what the caller did wrong.
template <class Body>
bool attempt(const Body& body) {
    try {
        body();
        return true;
    } catch (const Failure& failure) {
        require(failure.status() != Status::Failed && failure.status() != Status::OutOfMemory,
                std::string("a failure is foreseen: ") + failure.what());
        return false;
    }
}

inline void requireNothingAlive() {
    require(libraryModule().canUnload() && galleryModule().canUnload(), "nothing is left alive");
}

/// The fuzzer's bytes, taken apart into values. Once they are used up, each is the first of its range.
class Input : public FuzzedDataProvider {
public:
    using FuzzedDataProvider::FuzzedDataProvider;

    template <class Choices>
    auto& oneOf(Choices&& choices) {
        return choices[ConsumeIntegralInRange<std::size_t>(0, std::size(choices) - 1)];
    }
    /// Mostly small.
    template <class Number>
    Number whole() {
        return ConsumeBool() ? ConsumeIntegral<Number>() : ConsumeIntegralInRange<Number>(-2, 20);
    }
    Single single() {
        static constexpr Single odd[] = {
            1e12F,  -3e38F, std::numeric_limits<Single>::infinity(), std::numeric_limits<Single>::quiet_NaN(),
            1e-40F, 0.5F};
        constexpr Single most = 1e7F;
        if (ConsumeBool()) return ConsumeIntegralInRange<Integer>(-2, 3000);
        return ConsumeBool() ? oneOf(odd) : ConsumeFloatingPointInRange(-most, most);
    }
    Point point() {
        const Single x = single();
        return {x, single()};
    }
    /// Any UTF-16 units, or text.
    String text() {
        const std::string bytes = ConsumeRandomLengthString(60);
        if (!ConsumeBool()) return platform::toUtf16(bytes);
        String units;
        for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
            units += static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) << 8U |
                                           static_cast<unsigned char>(bytes[i + 1]));
        return units;
    }
    FontRef font() {
        auto font = StdFont::make({});
        font->put_Name(u"x" + text());
        font->put_Size(ConsumeFloatingPointInRange(0.01F, 2160.0F));
        font->put_Weight(ConsumeIntegralInRange<Integer>(1, 1000));
        font->put_Underline(ConsumeBool());
        return font;
    }
    BooleanArray array() {
        return {ConsumeIntegralInRange<Long>(-20, 20),
                std::vector(ConsumeIntegralInRange(0U, 20U), asBoolean(ConsumeBool()))};
    }
    /// A value of any kind, or a reference to a variable, which stays until the next of its kind.
    Variant value() {
        static constexpr Variant (*makers[])(Input&) = {
            [](Input&) { return Variant(); },
            [](Input&) { return Variant(Missing{}); },
            [](Input&) { return Variant(FontRef()); },
            [](Input& in) { return Variant(static_cast<Boolean>(in.whole<Integer>())); },
            [](Input& in) { return Variant(in.whole<Integer>()); },
            [](Input& in) { return Variant(in.whole<Long>()); },
            [](Input& in) { return Variant(in.single()); },
            [](Input& in) { return Variant(in.text()); },
            [](Input& in) { return Variant(Colour{in.ConsumeIntegral<std::uint32_t>()}); },
            [](Input& in) { return Variant(in.font()); },
            [](Input& in) { return Variant(in.array()); },
            [](Input& in) { return Variant::to(in.integer_ = in.whole<Integer>()); },
            [](Input& in) { return Variant::to(in.long_ = in.whole<Long>()); },
            [](Input& in) { return Variant::to(in.text_ = in.text()); },
            [](Input& in) { return Variant::to(in.array_ = in.array()); },
        };
        return oneOf(makers)(*this);
    }
    /// A fresh instance of any class of the library or the gallery.
    Ref<Object> object() {
        ComponentModule& module = ConsumeBool() ? galleryModule() : libraryModule();
        return oneOf(module.description().classes).create(module);
    }

private:
    Integer integer_ = 0;
    Long long_ = 0;
    String text_;
    BooleanArray array_;
};

/// All widgets of a surface, those of embedded controls too.
inline void collect(Surface& surface, std::vector<Widget*>& widgets) {
    for (Widget& widget : surface) {
        widgets.push_back(&widget);
        if (Surface* embedded = widget.embeddedSurface()) collect(*embedded, widgets);
    }
}

} // namespace zilvo::fuzz
