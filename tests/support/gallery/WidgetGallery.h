#pragma once

#include "tests/support/gallery/GalleryPictures.h"
#include "zilvo/framework/Control.h"
#include "zilvo/platform/widgets/CheckBox.h"
#include "zilvo/platform/widgets/CommandButton.h"
#include "zilvo/platform/widgets/ControlArray.h"
#include "zilvo/platform/widgets/Image.h"
#include "zilvo/platform/widgets/Label.h"
#include "zilvo/platform/widgets/Menu.h"
#include "zilvo/platform/widgets/OptionButton.h"
#include "zilvo/platform/widgets/SSCheck.h"
#include "zilvo/platform/widgets/SSFrame.h"
#include "zilvo/platform/widgets/SSOption.h"
#include "zilvo/platform/widgets/SSPanel.h"
#include "zilvo/platform/widgets/SSRibbon.h"
#include "zilvo/platform/widgets/Shape.h"
#include "zilvo/platform/widgets/SpinButton.h"

namespace zilvo {

enum class GalleryMood : Long {
    CalmMood = 1,
    LivelyMood = 2,
};

inline constexpr std::array<EnumerationMember, 2> galleryMoodMembers = {{
    {u"CalmMood", static_cast<Long>(GalleryMood::CalmMood)},
    {u"LivelyMood", static_cast<Long>(GalleryMood::LivelyMood)},
}};
inline constexpr EnumerationDescription galleryMoodDescription{
    u"GalleryMood", "{5A1E0F10-3B52-4C6E-9B10-77A0C1D20001}"_guid, galleryMoodMembers};
constexpr const EnumerationDescription& descriptionOf(GalleryMood) noexcept {
    return galleryMoodDescription;
}

/// The player sees every kind of widget once or in an array.
/// The host gets an event for whatever a widget reports, and properties and methods of every kind of value and
/// argument. The properties up to Font are saved.
class WidgetGallery final : public Control {
public:
    static const ObjectDescription Description;
    explicit WidgetGallery(ComponentModule& module);

    bool get_IsReady() { return storedIsReady; }
    void put_IsReady(bool newIsReady);
    Integer get_Count() { return storedCount; }
    void put_Count(Integer newCount);
    Long get_Total() { return storedTotal; }
    void put_Total(Long newTotal);
    Single get_Ratio() { return storedRatio; }
    void put_Ratio(Single newRatio);
    String get_Title();
    void put_Title(const String& newTitle);
    GalleryMood get_Mood() { return storedMood; }
    void put_Mood(GalleryMood newMood);
    FontRef get_Font();
    void putref_Font(const FontRef& New_Font);

    Long get_AmbientChanges() { return ambientChanges; }
    /// The codes given to KeyPress, a blank behind each.
    String get_KeysSeen() { return keysSeen; }

    void Step(Integer& Number);
    Long Divide(Long Dividend, Long Divisor, Long& Remainder);
    void Append(String& Text, const String& More);
    /// Turns each flag over; gives how many are set then.
    Integer Flip(BooleanArray& Flags);
    /// Adds one to Total, then asks for a widget that is not there.
    void FailHalfway();

    Event<Integer> CommandClicked{*this};
    Event<Integer> OptionClicked{*this};
    Event<Integer> CheckClicked{*this};
    Event<Integer, Integer> SSCheckClicked{*this};
    Event<Integer, Integer> SSOptionClicked{*this};
    Event<Integer, Integer> RibbonClicked{*this};
    Event<Integer> ImageClicked{*this};
    Event<Integer> MenuClicked{*this};
    Event<> SpunUp{*this};
    Event<> SpunDown{*this};
    Event<Integer, Integer> PanelPressed{*this};
    Event<Integer, Integer> SurfacePressed{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void ReadProperties(const PropertyBag& PropBag) override;
    void WriteProperties(PropertyBag& PropBag) override;
    void AmbientChanged(StringView PropertyName) override;
    bool KeyPress(Integer& KeyAscii) override;
    void MouseDown(Integer Button, Integer Shift, Single X, Single Y) override;

    void cmdPush_Click(Integer& Index);
    void optChoice_Click(Integer& Index);
    void chkPick_Click(Integer& Index);
    void sscToggle_Click(Integer& Index, Integer& Value);
    void ssoSeat_Click(Integer& Index, Integer& Value);
    void ribCard_Click(Integer& Index, Integer& Value);
    void imgChip_Click(Integer& Index);
    void mnuPick_Click(Integer& Index);
    void spnCount_SpinUp();
    void spnCount_SpinDown();
    void panelOptions_MouseDown(Integer& Button, Integer& Shift, Single& X, Single& Y);

    bool storedIsReady = true;
    Integer storedCount = 0;
    Long storedTotal = 0;
    Single storedRatio = 1;
    GalleryMood storedMood = GalleryMood::CalmMood;
    Long ambientChanges = 0;
    String keysSeen;

    // clang-format off
    SSPanel panelOptions{userControl, {
        .Name = u"panelOptions", .Left = 120, .Top = 120, .Width = 2400, .Height = 1650, .Caption = u"Options",
        .CaptionDown = Alignment::Near, .TabIndex = 0, .ToolTipText = u"Right button for the menu"},
        calls<&WidgetGallery::panelOptions_MouseDown>(this)};

    ControlArray<OptionButton, 4> optChoice{panelOptions, {
        {.Name = u"optChoice", .Index = 1, .Left = 150, .Top = 300, .Width = 900, .Height = 270, .Caption = u"&One", .Value = true, .TabIndex = 1},
        {.Name = u"optChoice", .Index = 2, .Left = 150, .Top = 600, .Width = 900, .Height = 270, .Caption = u"&Two", .TabIndex = 2},
        {.Name = u"optChoice", .Index = 3, .Left = 150, .Top = 900, .Width = 900, .Height = 270, .Caption = u"T&hree", .TabIndex = 3},
        {.Name = u"optChoice", .Index = 4, .Left = 150, .Top = 1200, .Width = 900, .Height = 270, .Caption = u"&Four", .TabIndex = 4}},
        calls<&WidgetGallery::optChoice_Click>(this)};

    SSFrame frameChecks{userControl, {
        .Name = u"frameChecks", .Left = 2640, .Top = 120, .Width = 2400, .Height = 1650, .Caption = u"Checks",
        .TabIndex = 5}};

    ControlArray<CheckBox, 3> chkPick{frameChecks, {
        {.Name = u"chkPick", .Index = 0, .Left = 150, .Top = 300, .Width = 1650, .Height = 300, .Caption = u"&Left mark", .TabIndex = 6},
        {.Name = u"chkPick", .Index = 1, .Left = 150, .Top = 690, .Width = 1650, .Height = 300, .Caption = u"&Right mark", .Value = CheckBox::Checked, .Mark = look::MarkSide::Right, .TabIndex = 7},
        {.Name = u"chkPick", .Index = 2, .Left = 150, .Top = 1080, .Width = 1650, .Height = 300, .Caption = u"Gre&y", .Value = CheckBox::Greyed, .TabIndex = 8}},
        calls<&WidgetGallery::chkPick_Click>(this)};

    SSPanel panelThreeD{userControl, {
        .Name = u"panelThreeD", .Left = 120, .Top = 1890, .Width = 2400, .Height = 1650, .TabIndex = 9}};

    SSCheck sscToggle{panelThreeD, {
        .Name = u"sscToggle", .Left = 150, .Top = 120, .Width = 1200, .Height = 300, .Caption = u"&Toggle", .TabIndex = 10},
        calls<&WidgetGallery::sscToggle_Click>(this)};

    ControlArray<SSOption, 3> ssoSeat{panelThreeD, {
        {.Name = u"ssoSeat", .Index = 1, .Left = 150, .Top = 510, .Width = 1200, .Height = 300, .Caption = u"Seat &1", .TabIndex = 11},
        {.Name = u"ssoSeat", .Index = 2, .Left = 150, .Top = 870, .Width = 1200, .Height = 300, .Caption = u"Seat &2", .Value = true, .TabIndex = 12},
        {.Name = u"ssoSeat", .Index = 3, .Left = 150, .Top = 1230, .Width = 1200, .Height = 300, .Caption = u"Seat &3", .Mark = look::MarkSide::Right, .TabIndex = 13}},
        calls<&WidgetGallery::ssoSeat_Click>(this)};

    SSPanel panelRibbons{userControl, {
        .Name = u"panelRibbons", .Left = 2640, .Top = 1890, .Width = 2400, .Height = 750, .TabIndex = 14}};

    ControlArray<SSRibbon, 3> ribCard{panelRibbons, {
        {.Name = u"ribCard", .Index = 0, .Left = 120, .Top = 120, .Width = 510, .Height = 510, .PictureUp = &cardPicture(false), .PictureDown = &cardPicture(true), .TabIndex = 15},
        {.Name = u"ribCard", .Index = 1, .Left = 720, .Top = 120, .Width = 510, .Height = 510, .PictureUp = &cardPicture(false), .PictureDown = &cardPicture(true), .Value = true, .Outline = true, .TabIndex = 16},
        {.Name = u"ribCard", .Index = 2, .Left = 1320, .Top = 120, .Width = 510, .Height = 510, .PictureUp = &cardPicture(false), .TabIndex = 17}},
        calls<&WidgetGallery::ribCard_Click>(this)};

    ControlArray<Image, 2> imgChip{userControl, {
        {.Name = u"imgChip", .Index = 0, .Left = 5160, .Top = 120, .Width = 720, .Height = 720, .Picture = &chipPicture(), .ToolTipText = u"The chip behind"},
        {.Name = u"imgChip", .Index = 1, .Left = 5460, .Top = 300, .Width = 720, .Height = 720, .Picture = &chipPicture(), .ToolTipText = u"The chip in front"}},
        calls<&WidgetGallery::imgChip_Click>(this)};

    Label lblTable{userControl, {
        .Name = u"lblTable", .Left = 5460, .Top = 1500, .Width = 1200, .Height = 240, .Caption = u"Table",
        .Align = Alignment::Centre, .Transparent = true, .ForeColor = colours::White,
        .Font = {.Name = u"Arial", .Size = 9.75F, .Weight = 700}, .TabIndex = 18, .ZOrder = 1}};

    Shape shpTable{userControl, {
        .Name = u"shpTable", .Left = 5160, .Top = 1170, .Width = 1800, .Height = 900, .Shape = Shape::IsOval,
        .BorderWidth = 2, .Filled = true, .FillColor = Colour{0x00006000}}};

    Label lblTitle{userControl, {
        .Name = u"lblTitle", .Left = 2640, .Top = 2760, .Width = 2400, .Height = 480, .Caption = u"Blanks && breaks in a label",
        .Sunken = true, .BackColor = colours::White, .TabIndex = 19}};

    SpinButton spnCount{userControl, {
        .Name = u"spnCount", .Left = 5160, .Top = 2250, .Width = 300, .Height = 600, .TabIndex = 20},
        calls<&WidgetGallery::spnCount_SpinUp>(this), calls<&WidgetGallery::spnCount_SpinDown>(this)};

    ControlArray<CommandButton, 3> cmdPush{userControl, {
        {.Name = u"cmdPush", .Index = 0, .Left = 5610, .Top = 2250, .Width = 1350, .Height = 375, .Caption = u"&Go", .Default = true, .TabIndex = 21, .ToolTipText = u"Goes"},
        {.Name = u"cmdPush", .Index = 1, .Left = 5610, .Top = 2700, .Width = 1350, .Height = 375, .Caption = u"&Quit", .Cancel = true, .TabIndex = 22},
        {.Name = u"cmdPush", .Index = 2, .Left = 5610, .Top = 3150, .Width = 1350, .Height = 375, .Caption = u"&Plain", .TabIndex = 23}},
        calls<&WidgetGallery::cmdPush_Click>(this)};

    Menu mnuRoot{userControl, {.Name = u"mnuRoot", .Visible = false}};

    ControlArray<Menu, 3> mnuPick{mnuRoot, {
        {.Name = u"mnuPick", .Index = 0, .Caption = u"&Open"},
        {.Name = u"mnuPick", .Index = 1, .Caption = u"&Locked", .Enabled = false},
        {.Name = u"mnuPick", .Index = 2, .Caption = u"&Ticked", .Checked = true}},
        calls<&WidgetGallery::mnuPick_Click>(this)};

    Menu mnuBar{mnuRoot, {.Name = u"mnuBar", .Caption = u"-"}};

    Menu mnuMore{mnuRoot, {.Name = u"mnuMore", .Caption = u"&More"}};

    ControlArray<Menu, 2> mnuMorePick{mnuMore, {
        {.Name = u"mnuMorePick", .Index = 10, .Caption = u"&First"},
        {.Name = u"mnuMorePick", .Index = 11, .Caption = u"&Second"}},
        calls<&WidgetGallery::mnuPick_Click>(this)};
    // clang-format on
};

} // namespace zilvo
