#include "tests/support/gallery/WidgetGallery.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    property<&WidgetGallery::get_IsReady, &WidgetGallery::put_IsReady>(0x68030000, u"IsReady", u"newIsReady"),
    property<&WidgetGallery::get_Count, &WidgetGallery::put_Count>(0x68030001, u"Count", u"newCount"),
    property<&WidgetGallery::get_Total, &WidgetGallery::put_Total>(0x68030002, u"Total", u"newTotal"),
    property<&WidgetGallery::get_Ratio, &WidgetGallery::put_Ratio>(0x68030003, u"Ratio", u"newRatio"),
    property<&WidgetGallery::get_Title, &WidgetGallery::put_Title>(0x68030004, u"Title", u"newTitle"),
    property<&WidgetGallery::get_Mood, &WidgetGallery::put_Mood>(0x68030005, u"Mood", u"newMood"),
    propertyByReference<&WidgetGallery::get_Font, &WidgetGallery::putref_Font>(0x68030006, u"Font", u"New_Font"),
    property<&WidgetGallery::get_AmbientChanges>(0x68030007, u"AmbientChanges"),
    property<&WidgetGallery::get_KeysSeen>(0x68030008, u"KeysSeen"),
    method<&WidgetGallery::Step>(0x60030000, u"Step", u"Number"),
    method<&WidgetGallery::Divide>(0x60030001, u"Divide", u"Dividend", u"Divisor", u"Remainder"),
    method<&WidgetGallery::Append>(0x60030002, u"Append", u"Text", u"More"),
    method<&WidgetGallery::Flip>(0x60030003, u"Flip", u"Flags"),
    method<&WidgetGallery::FailHalfway>(0x60030004, u"FailHalfway"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<1, &WidgetGallery::CommandClicked>(u"CommandClicked", u"Index"),
    event<2, &WidgetGallery::OptionClicked>(u"OptionClicked", u"Index"),
    event<3, &WidgetGallery::CheckClicked>(u"CheckClicked", u"Index"),
    event<4, &WidgetGallery::SSCheckClicked>(u"SSCheckClicked", u"Index", u"Value"),
    event<5, &WidgetGallery::SSOptionClicked>(u"SSOptionClicked", u"Index", u"Value"),
    event<6, &WidgetGallery::RibbonClicked>(u"RibbonClicked", u"Index", u"Value"),
    event<7, &WidgetGallery::ImageClicked>(u"ImageClicked", u"Index"),
    event<8, &WidgetGallery::MenuClicked>(u"MenuClicked", u"Index"),
    event<9, &WidgetGallery::SpunUp>(u"SpunUp"),
    event<10, &WidgetGallery::SpunDown>(u"SpunDown"),
    event<11, &WidgetGallery::PanelPressed>(u"PanelPressed", u"Button", u"Shift"),
    event<12, &WidgetGallery::SurfacePressed>(u"SurfacePressed", u"Button", u"Shift"),
};

} // namespace

constinit const ObjectDescription WidgetGallery::Description{u"WidgetGallery", members, events};

WidgetGallery::WidgetGallery(ComponentModule& module)
    : Control(module, {.Width = 7080, .Height = 3660, .ScaleMode = ScaleMode::Pixels}) {}

void WidgetGallery::ReadProperties(const PropertyBag& PropBag) {
    storedIsReady = PropBag.ReadProperty<bool>(u"IsReady", true);
    storedCount = PropBag.ReadProperty<Integer>(u"Count", Integer{0});
    storedTotal = PropBag.ReadProperty<Long>(u"Total", Long{0});
    storedRatio = PropBag.ReadProperty<Single>(u"Ratio", Single{1});
    lblTitle.put_Caption(PropBag.ReadProperty<String>(u"Title", u""));
    storedMood = PropBag.ReadProperty<GalleryMood>(u"Mood", toVariant(GalleryMood::CalmMood));
    lblTitle.put_Font(PropBag.ReadProperty<FontRef>(u"Font", userControl.get_Ambient().get_Font()));
}

void WidgetGallery::WriteProperties(PropertyBag& PropBag) {
    PropBag.WriteProperty(u"IsReady", storedIsReady, true);
    PropBag.WriteProperty(u"Count", storedCount, Integer{0});
    PropBag.WriteProperty(u"Total", storedTotal); // always stored
    PropBag.WriteProperty(u"Ratio", storedRatio, Single{1});
    PropBag.WriteProperty(u"Title", lblTitle.get_Caption(), u"");
    PropBag.WriteProperty(u"Mood", toVariant(storedMood), Integer{1}); // a Long, with an Integer default
    PropBag.WriteProperty(u"Font", lblTitle.get_Font(), userControl.get_Ambient().get_Font());
}

void WidgetGallery::AmbientChanged(StringView /*PropertyName*/) {
    ++ambientChanges;
}

bool WidgetGallery::KeyPress(Integer& KeyAscii) {
    keysSeen += toString(KeyAscii) + u" ";
    return false;
}

void WidgetGallery::MouseDown(Integer Button, Integer Shift, Single /*X*/, Single /*Y*/) {
    SurfacePressed.raise(Button, Shift);
}

void WidgetGallery::put_IsReady(bool newIsReady) {
    storedIsReady = newIsReady;
    userControl.PropertyChanged(u"IsReady");
}

void WidgetGallery::put_Count(Integer newCount) {
    storedCount = newCount;
    userControl.PropertyChanged(u"Count");
}

void WidgetGallery::put_Total(Long newTotal) {
    storedTotal = newTotal;
    userControl.PropertyChanged(u"Total");
}

void WidgetGallery::put_Ratio(Single newRatio) {
    storedRatio = newRatio;
    userControl.PropertyChanged(u"Ratio");
}

String WidgetGallery::get_Title() {
    return lblTitle.get_Caption();
}

void WidgetGallery::put_Title(const String& newTitle) {
    lblTitle.put_Caption(newTitle);
    userControl.PropertyChanged(u"Title");
}

void WidgetGallery::put_Mood(GalleryMood newMood) {
    storedMood = newMood;
    userControl.PropertyChanged(u"Mood");
}

FontRef WidgetGallery::get_Font() {
    return lblTitle.get_Font();
}

void WidgetGallery::putref_Font(const FontRef& New_Font) {
    lblTitle.put_Font(New_Font);
    userControl.PropertyChanged(u"Font");
}

void WidgetGallery::Step(Integer& Number) {
    Number = narrow(Long{Number} + 1, u"Number");
}

Long WidgetGallery::Divide(Long Dividend, Long Divisor, Long& Remainder) {
    if (Divisor == 0) throw Failure(Status::Overflow, "the divisor is 0");
    Remainder = Dividend % Divisor;
    return Dividend / Divisor;
}

void WidgetGallery::Append(String& Text, const String& More) {
    Text += More;
}

Integer WidgetGallery::Flip(BooleanArray& Flags) {
    Long set = 0;
    for (std::int64_t i = Flags.LowerBound(); i <= Flags.UpperBound(); ++i) {
        Boolean& flag = Flags.At(static_cast<Long>(i));
        flag = asBoolean(!isTrue(flag));
        if (isTrue(flag)) ++set;
    }
    return narrow(set, u"the number of flags");
}

void WidgetGallery::FailHalfway() {
    ++storedTotal;
    optChoice.Item(99).put_Value(true);
}

void WidgetGallery::cmdPush_Click(Integer& Index) {
    CommandClicked.raise(Index);
}

void WidgetGallery::optChoice_Click(Integer& Index) {
    OptionClicked.raise(Index);
}

void WidgetGallery::chkPick_Click(Integer& Index) {
    CheckClicked.raise(Index);
}

void WidgetGallery::sscToggle_Click(Integer& Index, Integer& Value) {
    SSCheckClicked.raise(Index, Value);
}

void WidgetGallery::ssoSeat_Click(Integer& Index, Integer& Value) {
    SSOptionClicked.raise(Index, Value);
}

void WidgetGallery::ribCard_Click(Integer& Index, Integer& Value) {
    RibbonClicked.raise(Index, Value);
}

void WidgetGallery::imgChip_Click(Integer& Index) {
    ImageClicked.raise(Index);
}

void WidgetGallery::mnuPick_Click(Integer& Index) {
    MenuClicked.raise(Index);
}

void WidgetGallery::spnCount_SpinUp() {
    SpunUp.raise();
}

void WidgetGallery::spnCount_SpinDown() {
    SpunDown.raise();
}

void WidgetGallery::panelOptions_MouseDown(Integer& Button, Integer& Shift, Single& /*X*/, Single& /*Y*/) {
    if (Button == input::RightButton) userControl.PopupMenu(mnuRoot);
    PanelPressed.raise(Button, Shift);
}

} // namespace zilvo
