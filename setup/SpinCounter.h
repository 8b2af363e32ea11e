#pragma once

#include "framework/Control.h"
#include "framework/Enumerations.h"
#include "platform/widgets/Label.h"
#include "platform/widgets/SpinButton.h"
#include "setup/CounterKeeper.h"

namespace zilvo {

/// The player sees a whole number in parentheses, "(007)", beside a spin button that steps it.
/// The host reads, sets and bounds the count, chooses the mounting, and gets CounterValueHasChanged after every
/// accepted set and every spin. All but NumberWrap is saved. The width is fixed.
class SpinCounter final : public Control {
public:
    static const ObjectDescription Description;
    explicit SpinCounter(ComponentModule& module);

    bool get_AllowNegNumbers();
    void put_AllowNegNumbers(bool AllowNegNumbersNewValue);
    SpinCounterPossibilities get_ControlHandedness();
    /// A value that is no mounting beeps and changes nothing.
    void put_ControlHandedness(SpinCounterPossibilities ControlHandednessNewValue);
    Integer get_CounterValue();
    /// A value out of bounds is ignored.
    void put_CounterValue(Integer NewCounterValue);
    FontRef get_Font();
    void putref_Font(FontRef New_Font);
    Integer get_MaximumLimit();
    /// A value outside 1 to 999 is ignored.
    void put_MaximumLimit(Integer NewMaximumLimit);
    bool get_NumberWrap();
    void put_NumberWrap(bool NumberWrapNewValue);
    void ResetSizeToDefault();
    bool get_UseDefaultSize();
    void put_UseDefaultSize(bool DefaultSizeIndicated);

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
    void UseTheAmbientColors();

    std::optional<CounterKeeper> theCounter; ///< made on first use
    Integer storedMaximumLimit = 0;
    bool storedAllowNegNumbers = false;
    bool storedNumberWrap = false;
    Long storedControlHandedness = 0;
    Integer referenceHeight = 0; ///< twips

    // clang-format off
    Label labelCardsInStack{userControl, {
        .Name = u"labelCardsInStack", .Left = 0, .Top = 0, .Width = 975, .Height = 360, .Caption = u"(###)",
        .Align = Alignment::Centre, .Sunken = true, .BackColor = colours::White,
        .Font = {.Name = u"Comic Sans MS", .Size = 9.75F, .Weight = 700, .Italic = true}, .TabIndex = 1, .ZOrder = 1}};

    platform::SpinButton SpinButton{userControl, {
        .Name = u"SpinButton", .Left = 991, .Top = 0, .Width = 495, .Height = 345, .TabIndex = 0},
        calls<&SpinCounter::SpinButton_SpinUp>(this), calls<&SpinCounter::SpinButton_SpinDown>(this)};
    // clang-format on
};

} // namespace zilvo
