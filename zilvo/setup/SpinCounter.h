#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/framework/Enumerations.h"
#include "zilvo/platform/widgets/Label.h"
#include "zilvo/platform/widgets/SpinButton.h"
#include "zilvo/setup/CounterKeeper.h"

namespace zilvo {

/// The player sees a whole number in parentheses, "(007)", beside a spin button that steps it.
/// The host reads, sets and bounds the count, chooses the mounting, and gets CounterValueHasChanged after every
/// accepted set and every spin. All but NumberWrap and UseDefaultSize is saved. The width is fixed.
class SpinCounter final : public Control {
public:
    static const ObjectDescription Description;
    explicit SpinCounter(ComponentModule& module);

    /// Whether the count may be set below 0 and, without NumberWrap, spun below it.
    bool get_AllowNegNumbers();
    void put_AllowNegNumbers(bool AllowNegNumbersNewValue);
    /// Where the spin button is: left or right of the number, below it (top mount) or above it (bottom mount). What is
    /// loaded moves nothing until it is set.
    SpinCounterPossibilities get_ControlHandedness();
    /// A value that is no mounting beeps and changes nothing.
    void put_ControlHandedness(SpinCounterPossibilities ControlHandednessNewValue);
    /// At most MaximumLimit when it is set; below 0 only with AllowNegNumbers.
    Integer get_CounterValue();
    /// A value out of bounds is ignored.
    void put_CounterValue(Integer NewCounterValue);
    FontRef get_Font();
    /// The number shares that object from now on. To set none fails with InvalidPropertyValue.
    void putref_Font(FontRef New_Font);
    /// The end of spinning up. A count above a new limit stays.
    Integer get_MaximumLimit();
    /// A value outside 1 to 999 is ignored.
    void put_MaximumLimit(Integer NewMaximumLimit);
    /// Whether a spin down from 0 goes to MaximumLimit. Not saved.
    bool get_NumberWrap();
    void put_NumberWrap(bool NumberWrapNewValue);
    /// Makes the control 360 twips high.
    void ResetSizeToDefault();
    /// Always False.
    bool get_UseDefaultSize();
    /// True does what ResetSizeToDefault does.
    void put_UseDefaultSize(bool DefaultSizeIndicated);

    /// Carries the count. A spin at a bound raises it, too, and so does setting the count that there is.
    Event<Integer> CounterValueHasChanged{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void InitProperties() override;
    void ReadProperties(const PropertyBag& PropBag) override;
    void WriteProperties(PropertyBag& PropBag) override;
    void Resize() override;
    void AmbientChanged(StringView PropertyName) override;

    void SpinButton_SpinUp();
    void SpinButton_SpinDown();

    CounterKeeper& counter();
    void ReportTheNewCounterValue();
    void ShowTheCounterValue();
    void ArrangeTheSpinCounter();
    void PlaceTheLowerChild();
    Single halfTheInnerHeight() const;
    void UseTheAmbientColors();

    std::optional<CounterKeeper> theCounter; ///< made on first use
    Integer storedMaximumLimit = 0;
    bool storedAllowNegNumbers = false;
    bool storedNumberWrap = false;
    Long storedControlHandedness = 0;
    Widget* lowerChild = nullptr; ///< the one that is mounted under the other; null while they are side by side

    // clang-format off
    Label labelCardsInStack{userControl, {
        .Name = u"labelCardsInStack", .Left = 0, .Top = 0, .Width = 975, .Height = 360, .Caption = u"(###)",
        .Align = Alignment::Centre, .Sunken = true, .BackColor = colours::White,
        .Font = {.Name = u"Comic Sans MS", .Size = 9.75F, .Weight = 700, .Italic = true}, .TabIndex = 1}};

    platform::SpinButton SpinButton{userControl, {
        .Name = u"SpinButton", .Left = 991, .Top = 0, .Width = 495, .Height = 345, .TabIndex = 0,
        .Spoken = u"Cards in stack"},
        calls<&SpinCounter::SpinButton_SpinUp>(this), calls<&SpinCounter::SpinButton_SpinDown>(this)};
    // clang-format on
};

} // namespace zilvo
