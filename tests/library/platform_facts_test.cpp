#include "tests/support/Outcome.h"
#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ComponentRuntime.h"
#include "zilvo/platform/component/ControlHost.h"
#include "zilvo/platform/component/Resources.h"
#include "zilvo/platform/painting/FontMetrics.h"

#include <gtest/gtest.h>
#include <map>

namespace zilvo {

namespace {

/// "Name 0, Size 2(newSize)": what a late-bound host knows of a thing's own members.
std::string membersOf(const ClassDescription& description) {
    std::string text;
    for (const MemberDescription& member : description.members) {
        text += (text.empty() ? "" : ", ") + toUtf8(member.name) + " " + std::to_string(member.id);
        if (member.argumentCount > 0) text += "(" + toUtf8(member.argument[0].name) + ")";
    }
    return text;
}

} // namespace

TEST(PlatformFacts, MembersOfWhatHostsMeet) {
    std::map<std::string, std::string> found;
    const auto note = [&](const Described& thing) {
        for (const ClassDescription* at = &thing.description(); at; at = at->base)
            if (!at->members.empty()) found[toUtf8(at->name)] = membersOf(*at);
    };
    note(platform::StandardAmbient());
    note(StdFont({}));
    for (const ClassEntry& entry : libraryModule().description().classes) {
        const Ref<Object> object = entry.create(libraryModule());
        if (!entry.identity.isControl()) continue;
        ControlHost host(object);
        note(host.extenderObject());
        note(host.control().surface().members());
        for (const Widget& widget : host.control().surface())
            note(widget);
    }
    const std::map<std::string, std::string> expected = {
        {"Ambient", "BackColor -701(newBackColor), Font -703(newFont), ForeColor -704(newForeColor), "
                    "UserMode -709(newUserMode), DisplayAsDefault -713(newDisplayAsDefault)"},
        {"StdFont", "Name 0(newName), Size 2(newSize), Bold 3(newBold), Italic 4(newItalic), "
                    "Underline 5(newUnderline), Strikethrough 6(newStrikethrough), Weight 7(newWeight), "
                    "Charset 8(newCharset)"},
        {"Extender", "Left 1(newLeft), Top 2(newTop), Width 3(newWidth), Height 4(newHeight), Visible 5(newVisible), "
                     "Enabled 6(newEnabled)"},
        {"UserControl", "BackColor 1(newBackColor), ForeColor 2(newForeColor), Width 3(newWidth), "
                        "Height 4(newHeight), ScaleWidth 5, ScaleHeight 6"},
        {"Widget", "Name -800, Index -801, Left -802(newLeft), Top -803(newTop), Width -804(newWidth), "
                   "Height -805(newHeight), Visible -806(newVisible), Enabled -807(newEnabled), "
                   "ToolTipText -808(newToolTipText), TabIndex -809(newTabIndex)"},
        {"CaptionedWidget", "Caption -518(newCaption), BackColor -501(newBackColor), ForeColor -513(newForeColor), "
                            "Font -512(newFont)"},
        {"CommandButton", "Default 3(newDefault), Cancel 4(newCancel)"},
        {"OptionButton", "Value 2(newValue)"},
        {"CheckBox", "Value 2(newValue)"},
        {"Threed.SSCheck", "Value 2(newValue)"},
        {"Threed.SSOption", "Value 2(newValue)"},
        {"Threed.SSRibbon", "Value 1(newValue), BackColor 2(newBackColor), Outline 3(newOutline)"},
        {"Menu", "Caption 1(newCaption), Checked 2(newChecked)"},
        {"Shape", "Shape 1(newShape), BorderWidth 2, BorderColor 3, FillColor 4, BackColor 5"},
    };
    for (const auto& [name, members] : expected)
        EXPECT_EQ(found[name], members) << name;
}

TEST(PlatformFacts, TheClassicScheme) {
    const std::string scheme = "C0C0C0 008080 000080 808080 C0C0C0 FFFFFF 000000 000000 000000 FFFFFF C0C0C0 C0C0C0 "
                               "808080 000080 FFFFFF C0C0C0 808080 808080 000000 C0C0C0 FFFFFF 000000 DFDFDF 000000 "
                               "FFFFE1 000000 ";
    std::string text;
    for (std::uint32_t index = 0; index < 26; ++index) {
        const platform::Rgb colour = rgbOf(Colour{0x80000000 + index});
        for (const unsigned part : {colour.red, colour.green, colour.blue})
            for (const unsigned digit : {part >> 4U, part & 15U})
                text += "0123456789ABCDEF"[digit];
        text += ' ';
    }
    EXPECT_EQ(text, scheme);
}

TEST(PlatformFacts, ThePaletteOfToolboxPicturesAndWhatEntryPointsAreAskedFor) {
    std::string text;
    for (const char letter : std::string_view(".W#-RYGCBMrygcbm")) {
        const auto* pixel = platform::ToolboxPicture::colourOf(letter);
        text +=
            std::to_string(pixel->red) + "," + std::to_string(pixel->green) + "," + std::to_string(pixel->blue) + " ";
    }
    EXPECT_EQ(text, "192,192,192 255,255,255 0,0,0 128,128,128 255,0,0 255,255,0 0,255,0 0,255,255 0,0,255 255,0,255 "
                    "128,0,0 128,128,0 0,128,0 0,128,128 0,0,128 128,0,128 ");
    EXPECT_EQ(platform::ApplicationInterface.text(), "{5D1F6C0C-64C2-4B0B-9B3E-5F3E0C6F9A11}");
}

TEST(PlatformFacts, TheBuiltInMetrics) {
    String printable;
    for (char16_t unit = 0x20; unit < 0x7F; ++unit)
        printable += unit;
    struct Case {
        StringView family;
        Integer weight;
        Single width; ///< of all printable characters, in em
        Single ascent, line, capitals;
    };
    // At 75 points an em is a hundred pixels.
    for (const Case& each :
         {Case{u"Arial", 400, 50.058F, 91, 113, 72}, Case{u"Arial", 551, 50.058F * 1.07F, 91, 113, 72},
          Case{u"Comic Sans MS", 550, 50.058F * 1.05F, 111, 141, 72},
          Case{u"Comic Sans MS", 700, 50.058F * 1.05F * 1.07F, 111, 141, 72},
          Case{u"Arial Black", 900, 50.058F * 1.2F, 111, 142, 72}}) {
        const platform::FontLook font{each.family, 75, each.weight, false, false, false};
        EXPECT_NEAR(textWidth(printable, font), each.width * 1500, 0.5) << toUtf8(each.family) << each.weight;
        const platform::LineMetrics line = lineMetrics(font);
        EXPECT_EQ(line.ascent, each.ascent * 15);
        EXPECT_EQ(line.height, each.line * 15);
        EXPECT_EQ(line.capHeight, each.capitals * 15);
    }
}

TEST(PlatformFacts, WidthsOfOtherCharacters) {
    const auto widthOf = [](char32_t point) {
        const platform::FontLook font{u"Arial", 50, 400, false, false, false}; // a twip is a thousandth of an em
        const auto high = static_cast<char16_t>(0xD7C0 + (point >> 10U));
        const auto low = static_cast<char16_t>(0xDC00 + (point & 0x3FFU));
        return std::lround(textWidth(point < 0x10000 ? String{static_cast<char16_t>(point)} : String{high, low}, font));
    };
    struct Range {
        char32_t first, last;
        long width;
    };
    for (const Range& range : {Range{0x9, 0x9, 278}, Range{0xA0, 0xA0, 278}, Range{0x300, 0x36F, 0},
                               Range{0x1100, 0x115F, 1000}, Range{0x200B, 0x200F, 0}, Range{0x2E80, 0xA4CF, 1000},
                               Range{0xAC00, 0xD7A3, 1000}, Range{0xF900, 0xFAFF, 1000}, Range{0xFE00, 0xFE0F, 0},
                               Range{0xFE30, 0xFE6F, 1000}, Range{0xFF00, 0xFF60, 1000}, Range{0xFFE0, 0xFFE6, 1000},
                               Range{0x1F300, 0x1FAFF, 1000}, Range{0x20000, 0x3FFFF, 1000}}) {
        EXPECT_EQ(widthOf(range.first - 1), 600) << std::uint32_t{range.first};
        EXPECT_EQ(widthOf(range.first), range.width) << std::uint32_t{range.first};
        EXPECT_EQ(widthOf(range.last), range.width) << std::uint32_t{range.last};
        EXPECT_EQ(widthOf(range.last + 1), 600) << std::uint32_t{range.last};
    }
}

TEST(PlatformFacts, StatusesInWords) {
    std::string text;
    for (const std::uint32_t code :
         {0U,          1U,          0x80004001U, 0x80004002U, 0x80004003U, 0x80004005U, 0x8000FFFFU, 0x80020003U,
          0x8002000EU, 0x80070002U, 0x8007000EU, 0x800700C1U, 0x800700AAU, 0x80040111U, 0x80040150U, 0x80040151U,
          0x800A0006U, 0x800A0009U, 0x800A000DU, 0x800A0154U, 0x800A017CU, 0x800A017FU, 0x800A018AU, 5U})
        text += std::string(nameOf(Status{code})) + ", ";
    EXPECT_EQ(text,
              "ok, no, not implemented, no such interface, null pointer, failed, unexpected call, unknown member, "
              "argument count, file not found, out of memory, not a component, in use, class not available, "
              "registrations unreadable, registrations unwritable, overflow, subscript out of range, type mismatch, "
              "missing element, invalid property value, read-only property, write-only property, unknown status, ");
}

TEST(PlatformFacts, MessagesSayWhatFailed) {
    LoadedComponent component(COMPONENT_FILE);
    const auto object = component.create(u"ssOKCancel");
    const std::string file = component.file().string();
    const BooleanArray array(2, {true});
    const auto outOfMemory = [] {
        ErrorInfo error;
        throwUnlessOk(platform::atTheEdge(
                          &error, [] { return std::string("X"); }, [] { throw std::bad_alloc(); }),
                      error);
    };
    struct Case {
        std::function<void()> failing;
        std::string message;
    };
    for (const Case& each : std::vector<Case>{
             {outOfMemory, "X: out of memory"},
             {[&] { component.unload(); }, file +
                                               " cannot be unloaded: 1 of its objects are alive, or a class factory or "
                                               "event connection is"},
             {[&] { component.create(u"Nothing"); }, file + " has no class Nothing"},
             {[] { LoadedComponent("/nowhere/X.Ocx"); }, "there is no component file /nowhere/X.Ocx"},
             {[] { LoadedComponent("/proc"); }, "/proc is not a component: it is no file"},
             {[] { LoadedComponent("/proc/self/status"); },
              "/proc/self/status is not a component: at offset 0: the file is empty"},
             {[] { StdFont({}).put_Name(u""); }, "Font.Name cannot be \"\" (String)"},
             {[] { StdFont({}).put_Size(0); }, "Font.Size cannot be 0 (Single)"},
             {[] { StdFont({}).put_Weight(1001); }, "Font.Weight cannot be 1001 (Integer)"},
             {[] { platform::Bitmap(0, 1); }, "the bitmap's width of 0 pixels is not 1 to 4096"},
             {[] { platform::Bitmap(1, 5000); }, "the bitmap's height of 5000 pixels is not 1 to 4096"},
             {[&] { (void)array.At(1); }, "there is no element 1 in an array from 2 to 2"},
             {[] { (void)BooleanArray(1, {}).UpperBound(); }, "the array has no elements"},
         })
        EXPECT_EQ(platform::outcomeOf(each.failing).message, each.message);
}

} // namespace zilvo
