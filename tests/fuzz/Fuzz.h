#pragma once

#include "tests/support/gallery/GalleryLibrary.h"
#include "zilvo/library/ZilvoButtons.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <iostream>

/// A target is a function that runs the code under test with whatever bytes the fuzzer comes up with, and stops the
/// process where something is wrong; the fuzzer then keeps those bytes in a file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size); // NOLINT: the fuzzer's name

namespace zilvo::fuzz {

inline void require(bool holds, const std::string& what) {
    if (holds) return;
    std::cerr << "It does not hold that " << what << '\n';
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

    std::size_t below(std::size_t count) { return ConsumeIntegralInRange<std::size_t>(0, count - 1); }
    template <class Choices>
    auto& oneOf(Choices&& choices) {
        return choices[below(std::size(choices))];
    }

    template <class Number>
    Number whole() {
        return ConsumeBool() ? ConsumeIntegral<Number>() : ConsumeIntegralInRange<Number>(-2, 20);
    }
    /// Twips, mostly. TODO: beyond 1e7.
    Single single() {
        constexpr Single most = 1e7F;
        return ConsumeBool() ? ConsumeFloatingPointInRange<Single>(-most, most)
                             : static_cast<Single>(ConsumeIntegralInRange<Integer>(-2, 3000));
    }
    Point point() {
        const Single x = single();
        return {x, single()};
    }
    /// Of any UTF-16 units, or of bytes that are shown as text.
    String text() {
        const std::string bytes = ConsumeRandomLengthString(60);
        if (!ConsumeBool()) return platform::toUtf16(bytes);
        String units;
        for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
            units += static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) * 256 +
                                           static_cast<unsigned char>(bytes[i + 1]));
        return units;
    }
    FontRef font() {
        const auto font = StdFont::make({});
        font->put_Name(u"x" + text());
        font->put_Size(ConsumeFloatingPointInRange<Single>(0.01F, 2160));
        font->put_Weight(ConsumeIntegralInRange<Integer>(1, 1000));
        font->put_Underline(ConsumeBool());
        font->put_Italic(ConsumeBool());
        return font;
    }
    BooleanArray array() {
        const auto lower = ConsumeIntegralInRange<Long>(-20, 20);
        return {lower, std::vector(below(20), asBoolean(ConsumeBool()))};
    }
    /// A value of any kind, or a reference to a variable, which stays until the next of its kind.
    Variant value() {
        switch (below(16)) {
        case 0:
            return {};
        case 1:
            return Missing{};
        case 2:
            return static_cast<Boolean>(whole<Integer>());
        case 3:
            return whole<Integer>();
        case 4:
            return whole<Long>();
        case 5:
            return single();
        case 6:
            return text();
        case 7:
            return Colour{ConsumeIntegral<std::uint32_t>()};
        case 8:
            return font();
        case 9:
            return FontRef();
        case 10:
            return array();
        case 11:
            return Variant::to(boolean_ = static_cast<Boolean>(whole<Integer>()));
        case 12:
            return Variant::to(integer_ = whole<Integer>());
        case 13:
            return Variant::to(long_ = whole<Long>());
        case 14:
            return Variant::to(text_ = text());
        default:
            return Variant::to(array_ = array());
        }
    }

    /// A fresh instance of any class of the library and the gallery.
    Ref<Object> object() {
        ComponentModule& module = ConsumeBool() ? galleryModule() : libraryModule();
        return oneOf(module.description().classes).create(module);
    }

private:
    Boolean boolean_{};
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
