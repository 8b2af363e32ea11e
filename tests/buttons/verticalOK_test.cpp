#include "tests/support/EventLog.h"
#include "zilvo/library/ZilvoButtons.h"

#include <gtest/gtest.h>

namespace zilvo {

TEST(VerticalOK, ClicksAndCaption) {
    ControlHost host(create<verticalOK>());
    EventLog log(host);
    host.open();
    host.put(u"Caption", u"&No");
    EXPECT_TRUE(host.click(u"commandVerticalOK"));
    EXPECT_TRUE(host.input(*parseKey(u"Alt+n")));
    EXPECT_EQ(log.take(), (EventLog::Entries{"OKWasClicked()", "OKWasClicked()"}));
    MemoryPropertyBag settings(MemoryPropertyBag::Defaults::Kept);
    host.save(settings);
    EXPECT_TRUE(settings.settings().empty());
    EXPECT_TRUE(host.changes().empty());
}

TEST(VerticalOK, FontsAreSharedAndTheirChangesShow) {
    const auto control = create<verticalOK>();
    const auto other = create<verticalOK>();
    ControlHost host(control), otherHost(other);
    host.open();
    otherHost.open();
    const auto repaints = [&](const auto& change) {
        const auto before = host.repaints(), otherBefore = otherHost.repaints();
        change();
        return std::pair(host.repaints() - before, otherHost.repaints() - otherBefore);
    };
    using Pair = std::pair<std::size_t, std::size_t>;
    const FontRef designed = control->get_Font();
    const FontRef given = StdFont::make({.Name = u"Arial", .Size = 10});
    EXPECT_EQ(repaints([&] { designed->put_Size(9); }), Pair(1, 0));
    EXPECT_EQ(repaints([&] { control->put_Font(given); }), Pair(1, 0));
    EXPECT_EQ(control->get_Font(), given) << "the very object";
    EXPECT_EQ(repaints([&] { designed->put_Size(8); }), Pair(0, 0)) << "no longer the button's";
    EXPECT_EQ(repaints([&] { otherHost.put(u"Font", Variant(control->get_Font())); }), Pair(0, 1));
    EXPECT_EQ(repaints([&] { given->put_Bold(true); }), Pair(1, 1)) << "one font on two buttons";
    EXPECT_EQ(repaints([&] { given->put_Bold(true); }), Pair(0, 0));
    EXPECT_TRUE(host.changes().empty());
}

TEST(VerticalOK, WhatIsNoFontFailsAndTheFontOutlivesTheButton) {
    FontRef font;
    {
        ControlHost host(create<verticalOK>());
        font = toFont(host.get(u"Font"));
        for (const Variant& wrong : {Variant(u"Arial"), Variant(Long{12}), Variant(), Variant(FontRef())})
            EXPECT_THROW(host.put(u"Font", wrong), Failure);
        EXPECT_EQ(toFont(host.get(u"Font")), font);
    }
    font->put_Size(20);
    EXPECT_EQ(font->get_Name(), u"Arial Black");
}

} // namespace zilvo
