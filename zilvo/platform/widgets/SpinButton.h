#pragma once

#include "zilvo/platform/widgets/Widget.h"

namespace zilvo::platform {

/// Two arrows, up over down, or, on a wide button, down beside up. A press of the user spins, and spins again
/// while it is held, by the host's clock; arrow keys spin too. Nothing done in code does.
class SpinButton final : public Widget {
public:
    struct Design {
        platform::Name Name;
        Integer Index = NoIndex;
        Twips Left, Top, Width, Height;
        Colour BackColor = colours::ButtonFace;
        bool Enabled = true;
        bool Visible = true;
        Integer TabIndex = 0;
        const char16_t* ToolTipText = u"";
        const char16_t* Spoken = u"";
        Integer ZOrder = 0;
    };
    using SpinHandler = Delegate<>;
    enum class Spin : std::uint8_t { None, Up, Down };

    /// How long a press is held before it repeats, and then between repeats.
    static constexpr std::chrono::milliseconds RepeatDelay{400};
    static constexpr std::chrono::milliseconds RepeatEvery{100};

    SpinButton(Container& container, const Design& design, SpinHandler spinUp, SpinHandler spinDown);

    /// Where a press spins that way; twips from the widget's corner.
    Rectangle half(Spin way) const noexcept;

    const ClassDescription& description() const noexcept override;
    Role role() const noexcept override { return Role::SpinButton; }
    bool takesFocus() const noexcept override { return true; }
    void pointerDown(Integer button, Integer shift, Point at) override;
    void pointerUp() override;
    void held(std::chrono::milliseconds elapsed) override;
    std::optional<std::chrono::milliseconds> untilHeld() const noexcept override;
    bool arrowKey(Direction direction) override;
    void paint(Painter& painter) const override;

private:
    void spin(Spin way);
    /// With room for two buttons of 30 pixels: also where something covers its lower half, both can be reached.
    bool isSideBySide() const noexcept { return bounds().width >= 60 * TwipsPerPixel; }

    SpinHandler spinUp_;
    SpinHandler spinDown_;
    Colour backColor_;
    Spin spinning_ = Spin::None;
    std::chrono::milliseconds untilRepeat_{};
};

} // namespace zilvo::platform
