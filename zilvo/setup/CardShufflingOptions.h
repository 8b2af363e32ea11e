#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/framework/Enumerations.h"
#include "zilvo/platform/widgets/ControlArray.h"
#include "zilvo/platform/widgets/OptionButton.h"
#include "zilvo/platform/widgets/SSPanel.h"

namespace zilvo {

/// The player sees five ways of shuffling as option buttons in a row on a captioned panel.
/// The host sets and reads the method through CardShuffleMethod, which is saved, and gets CardShuffleMethodChanged when
/// another one becomes selected. A player's click does not change what the property returns.
class CardShufflingOptions final : public Control {
public:
    static const ObjectDescription Description;
    explicit CardShufflingOptions(ComponentModule& module);

    GenericCardShufflePossibilities get_CardShuffleMethod();
    /// Selects the option button, which raises CardShuffleMethodChanged unless it is selected already. A value without
    /// one fails with MissingElement or Overflow and changes nothing.
    void put_CardShuffleMethod(GenericCardShufflePossibilities CardShuffleMethodNewValue);

    /// Carries the method that became selected, by the player or through CardShuffleMethod.
    Event<Integer> CardShuffleMethodChanged{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void Initialize() override;
    void ReadProperties(const PropertyBag& PropBag) override;
    void WriteProperties(PropertyBag& PropBag) override;

    void optCardShuffleMethod_Click(Integer& Index);

    Long storedCardShuffleMethod = 0;

    // clang-format off
    SSPanel panelCardShufflingOptions{userControl, {
        .Name = u"panelCardShufflingOptions", .Left = 0, .Top = 0, .Width = 8565, .Height = 1250,
        .Caption = u"Card Shuffling Options", .CaptionDown = Alignment::Near, .BackColor = colours::LightGrey,
        .ForeColor = {0x00004000}, .Font = {.Name = u"Comic Sans MS", .Size = 14.25F, .Weight = 700}, .TabIndex = 0,
        .ToolTipText = u"Different Shuffle Methods produce a different \"Flavor\" of Drills."}};

    static OptionButton::Design method(Integer Index, const char16_t* Caption, Single Left, Integer TabIndex, bool Enabled,
                                       const char16_t* ToolTipText) {
        return {.Name = u"optCardShuffleMethod", .Index = Index, .Left = Left, .Top = 550, .Width = 1215, .Height = 500,
                .Caption = Caption, .BackColor = colours::LightGrey,
                .Font = {.Name = u"Comic Sans MS", .Size = 9.75F, .Weight = 700}, .Enabled = Enabled,
                .TabIndex = TabIndex, .ToolTipText = ToolTipText};
    }
    ControlArray<OptionButton, 5> optCardShuffleMethod{panelCardShufflingOptions, {
        method(0, u"No Shuffling",    720, 1, true,  u"No Shuffling produces extreme practice-counts."),
        method(1, u"Strip Shuffle",  2280, 2, true,
               u"Cards are Little-stripped, Big-stripped and then Little-stripped - 3 sets of times."),
        method(2, u"S-Thru Shuffle", 3720, 5, true,
               u"Cards are Little-stripped, followed by a \"perfect\" reverse-intertwine."),
        method(3, u"SM Box Shuffle", 5160, 4, false, u"Cards are Shuffled with the ShuffleMaster BOX."),
        method(4, u"Random Shuffle", 6720, 3, true,  u"Cards are Shuffled \"Randomly\".")},
        calls<&CardShufflingOptions::optCardShuffleMethod_Click>(this)};
    // clang-format on
};

} // namespace zilvo
