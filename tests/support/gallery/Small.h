#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/platform/widgets/ControlArray.h"
#include "zilvo/platform/widgets/Label.h"
#include "zilvo/platform/widgets/Menu.h"
#include "zilvo/platform/widgets/SSOption.h"

namespace zilvo {

enum class GalleryMood : Long { CalmMood = 1, LivelyMood = 2 };
inline constexpr std::array<EnumerationMember, 2> galleryMoodMembers = {{{u"CalmMood", 1}, {u"LivelyMood", 2}}};
inline constexpr EnumerationDescription galleryMoodDescription{
    u"GalleryMood", "{5A1E0F10-3B52-4C6E-9B10-77A0C1D20001}"_guid, galleryMoodMembers};
constexpr const EnumerationDescription& descriptionOf(GalleryMood) noexcept {
    return galleryMoodDescription;
}

/// The player sees a title and three picks, of which the first so many are allowed; the right button opens a menu of
/// two, the left one picks where it is pressed; 0 or Escape picks none. The host gets Picked and properties and methods
/// of every kind of value and argument. Its colours are the host's. The properties up to Font are saved; the loaded
/// control gives itself its width.
class Small final : public Control {
public:
    static constexpr MemberId AllowedId = 0x68030002, StepId = 0x60030000, FlipId = 0x60030003;
    static constexpr Long MostPicks = 3;
    static constexpr Single LoadedWidth = 1500;

    static const ObjectDescription Description;
    explicit Small(ComponentModule& module)
        : Control(module, {.Width = 1200, .Height = 1200, .ScaleMode = ScaleMode::Twips}) {}

    bool get_IsReady() { return storedIsReady; }
    void put_IsReady(bool newIsReady) { store(storedIsReady, newIsReady, u"IsReady"); }
    Integer get_Count() { return storedCount; }
    void put_Count(Integer newCount) { store(storedCount, newCount, u"Count"); }
    Long get_Allowed() { return storedAllowed; }
    /// Above MostPicks the call fails after the first MostPicks were allowed.
    void put_Allowed(Long newAllowed) {
        storedAllowed = newAllowed;
        for (Integer i = 1; i <= MostPicks; ++i)
            ssoPick.Item(i).put_Enabled(i <= newAllowed);
        if (newAllowed > MostPicks) ssoPick.Item(narrow(newAllowed)).put_Enabled(true);
    }
    /// The control's own width.
    Single get_Breadth() { return userControl.get_Width(); }
    void put_Breadth(Single newBreadth) {
        userControl.put_Width(newBreadth);
        userControl.PropertyChanged(u"Breadth");
    }
    String get_Title() { return lblTitle.get_Caption(); }
    void put_Title(const String& newTitle) {
        lblTitle.put_Caption(newTitle);
        userControl.PropertyChanged(u"Title");
    }
    GalleryMood get_Mood() { return storedMood; }
    void put_Mood(GalleryMood newMood) { store(storedMood, newMood, u"Mood"); }
    FontRef get_Font() { return lblTitle.get_Font(); }
    void putref_Font(const FontRef& New_Font) {
        lblTitle.put_Font(New_Font);
        userControl.PropertyChanged(u"Font");
    }
    Colour get_Ground() { return userControl.get_BackColor(); }
    void put_Ground(Colour newGround) { userControl.put_BackColor(newGround); }
    bool get_Shown() { return userControl.get_Extender().get_Visible(); }
    /// Beeps, then shows or hides the control through the host's extender.
    void put_Shown(bool newShown) {
        userControl.Beep();
        userControl.get_Extender().put_Visible(newShown);
    }
    bool get_RunsInUserMode() { return userControl.get_Ambient().get_UserMode(); }

    void Step(Integer& Number) { Number = narrow(Long{Number} + 1, u"Number"); }
    Long Divide(Long Dividend, Long Divisor, Long& Remainder) {
        if (Divisor == 0) throw Failure(Status::Overflow, "the divisor is 0");
        Remainder = Dividend % Divisor;
        return Dividend / Divisor;
    }
    void Append(String& Text, const String& More) { Text += More; }
    /// Turns each flag over; gives how many are set then.
    Integer Flip(BooleanArray& Flags) {
        Long set = 0;
        for (std::int64_t i = Flags.LowerBound(); i <= Flags.UpperBound(); ++i) {
            Boolean& flag = Flags.At(static_cast<Long>(i));
            flag = asBoolean(!isTrue(flag));
            if (isTrue(flag)) ++set;
        }
        return narrow(set, u"the number of flags");
    }

    Event<Long> Picked{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void ReadProperties(const PropertyBag& PropBag) override {
        storedIsReady = PropBag.ReadProperty<bool>(u"IsReady", true);
        storedCount = PropBag.ReadProperty<Integer>(u"Count", Integer{0});
        put_Allowed(PropBag.ReadProperty<Long>(u"Allowed", MostPicks));
        userControl.put_Width(PropBag.ReadProperty<Single>(u"Breadth", LoadedWidth));
        lblTitle.put_Caption(PropBag.ReadProperty<String>(u"Title", u""));
        storedMood = PropBag.ReadProperty<GalleryMood>(u"Mood", toVariant(GalleryMood::CalmMood));
        lblTitle.put_Font(PropBag.ReadProperty<FontRef>(u"Font", userControl.get_Ambient().get_Font()));
        AmbientChanged(u"");
    }
    void WriteProperties(PropertyBag& PropBag) override {
        PropBag.WriteProperty(u"IsReady", storedIsReady, true);
        PropBag.WriteProperty(u"Count", storedCount, Integer{0});
        PropBag.WriteProperty(u"Allowed", storedAllowed); // always stored
        PropBag.WriteProperty(u"Breadth", get_Breadth(), LoadedWidth);
        PropBag.WriteProperty(u"Title", get_Title(), u"");
        PropBag.WriteProperty(u"Mood", toVariant(storedMood), Integer{1}); // a Long, with an Integer default
        PropBag.WriteProperty(u"Font", get_Font(), userControl.get_Ambient().get_Font());
    }
    void Resize() override { lblTitle.put_Width(userControl.get_ScaleWidth() - 120); }
    void AmbientChanged(StringView /*PropertyName*/) override {
        userControl.put_BackColor(userControl.get_Ambient().get_BackColor());
        userControl.put_ForeColor(userControl.get_Ambient().get_ForeColor());
    }
    bool KeyPress(Integer& KeyAscii) override {
        constexpr Integer Escape = 27;
        if (KeyAscii != u'0' && KeyAscii != Escape) return false;
        Long Which = 0;
        Picked.raise(Which);
        return true;
    }
    void MouseDown(Integer Button, Integer /*Shift*/, Single X, Single /*Y*/) override {
        if (Button == input::RightButton) return userControl.PopupMenu(mnuRoot);
        Long Which = toLong(Variant(X));
        Picked.raise(Which);
    }
    void ssoPick_Click(Integer& Index, Integer& /*Value*/) {
        Long Which = Index;
        Picked.raise(Which);
        if (Which != Index) ssoPick.Item(narrow(Which)).put_Value(true); // the host chose another
    }
    void mnuPick_Click(Integer& Index) {
        Long Which = Index;
        Picked.raise(Which);
    }
    template <class T>
    void store(T& stored, T given, StringView name) {
        stored = given;
        userControl.PropertyChanged(name);
    }

    bool storedIsReady = true;
    Integer storedCount = 0;
    Long storedAllowed = MostPicks;
    GalleryMood storedMood = GalleryMood::CalmMood;

    // clang-format off
    ControlArray<SSOption, MostPicks> ssoPick{userControl, {
        {.Name = u"ssoPick", .Index = 1, .Left = 60, .Top = 60, .Width = 900, .Height = 270, .Caption = u"Pick &1", .TabIndex = 0},
        {.Name = u"ssoPick", .Index = 2, .Left = 60, .Top = 360, .Width = 900, .Height = 270, .Caption = u"Pick &2", .TabIndex = 1},
        {.Name = u"ssoPick", .Index = 3, .Left = 60, .Top = 660, .Width = 900, .Height = 270, .Caption = u"Pick &3", .TabIndex = 2}},
        calls<&Small::ssoPick_Click>(this)};
    Label lblTitle{userControl, {
        .Name = u"lblTitle", .Left = 60, .Top = 960, .Width = 1080, .Height = 210, .Sunken = true, .BackColor = colours::White, .TabIndex = 3}};
    Menu mnuRoot{userControl, {.Name = u"mnuRoot", .Visible = false}};
    ControlArray<Menu, 2> mnuPick{mnuRoot, {
        {.Name = u"mnuPick", .Index = 11, .Caption = u"&Eleven"},
        {.Name = u"mnuPick", .Index = 12, .Caption = u"&Twelve"}},
        calls<&Small::mnuPick_Click>(this)};
    // clang-format on
};

inline constexpr std::array smallMembers = {
    property<&Small::get_IsReady, &Small::put_IsReady>(0x68030000, u"IsReady", u"newIsReady"),
    property<&Small::get_Count, &Small::put_Count>(0x68030001, u"Count", u"newCount"),
    property<&Small::get_Allowed, &Small::put_Allowed>(Small::AllowedId, u"Allowed", u"newAllowed"),
    property<&Small::get_Breadth, &Small::put_Breadth>(0x68030003, u"Breadth", u"newBreadth"),
    property<&Small::get_Title, &Small::put_Title>(0x68030004, u"Title", u"newTitle"),
    property<&Small::get_Mood, &Small::put_Mood>(0x68030005, u"Mood", u"newMood"),
    propertyByReference<&Small::get_Font, &Small::putref_Font>(0x68030006, u"Font", u"New_Font"),
    property<&Small::get_Ground, &Small::put_Ground>(0x68030007, u"Ground", u"newGround"),
    property<&Small::get_Shown, &Small::put_Shown>(0x68030008, u"Shown", u"newShown"),
    property<&Small::get_RunsInUserMode>(0x68030009, u"RunsInUserMode"),
    method<&Small::Step>(Small::StepId, u"Step", u"Number"),
    method<&Small::Divide>(0x60030001, u"Divide", u"Dividend", u"Divisor", u"Remainder"),
    method<&Small::Append>(0x60030002, u"Append", u"Text", u"More"),
    method<&Small::Flip>(Small::FlipId, u"Flip", u"Flags"),
};
static_assert(idsAndNamesAreUnique(smallMembers));
inline constexpr std::array smallEvents = {event<1, &Small::Picked>(u"Picked", u"Which")};
inline constinit const ObjectDescription Small::Description{u"Small", smallMembers, smallEvents};

} // namespace zilvo
