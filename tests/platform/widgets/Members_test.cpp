#include "tests/support/gallery/GalleryHost.h"

#include <cmath>

namespace zilvo {
namespace {

Status statusOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const Failure& failure) {
        return failure.status();
    }
    return Status::Ok;
}

TEST(WidgetMembers, PlacesAreInTheUnitOfTheContainer) {
    const GalleryHost g;
    g.put({u"panelOptions"}, u"Left", 10); // directly on the surface: pixels
    g.put({u"panelOptions"}, u"Width", 170.5F);
    g.put({u"optChoice", 2}, u"Left", 10);  // in a panel: twips
    g.put({u"chkPick", 2}, u"Height", 345); // in a frame: twips
    EXPECT_EQ(g.widget({u"panelOptions"}).bounds().left, 150);
    EXPECT_EQ(g.widget({u"panelOptions"}).bounds().width, 2557.5F);
    EXPECT_EQ(g.widget({u"optChoice", 2}).bounds().left, 10);
    EXPECT_EQ(g.widget({u"chkPick", 2}).bounds().height, 345);
    EXPECT_EQ(toSingle(g.get({u"panelOptions"}, u"Left")), 10);
    EXPECT_EQ(toSingle(g.get({u"optChoice", 2}, u"Left")), 10);
    EXPECT_EQ(toSingle(g.get({u"panelOptions"}, u"Top")), 8);
}

TEST(WidgetMembers, RefuseWhatTheyCannotHoldAndKeepWhatTheyHad) {
    struct Case {
        At at;
        StringView member;
        Variant value;
        Status status;
    };
    const std::vector<Case> cases = {
        {{u"cmdPush", 0}, u"Width", -1, Status::InvalidPropertyValue},
        {{u"cmdPush", 0}, u"Height", -0.5F, Status::InvalidPropertyValue},
        {{u"cmdPush", 0}, u"Left", std::nanf(""), Status::InvalidPropertyValue},
        {{u"cmdPush", 0}, u"TabIndex", -1, Status::InvalidPropertyValue},
        {{u"cmdPush", 0}, u"TabIndex", 40000, Status::Overflow},
        {{u"cmdPush", 0}, u"Enabled", u"maybe", Status::TypeMismatch},
        {{u"cmdPush", 0}, u"Caption", FontRef(), Status::TypeMismatch},
        {{u"cmdPush", 0}, u"Font", FontRef(), Status::InvalidPropertyValue},
        {{u"shpTable"}, u"Shape", 6, Status::InvalidPropertyValue},
        {{u"shpTable"}, u"Shape", -1, Status::InvalidPropertyValue},
        {{u"mnuRoot"}, u"Checked", true, Status::InvalidPropertyValue},
        {{u"mnuMore"}, u"Checked", true, Status::InvalidPropertyValue},
        {{u"mnuBar"}, u"Checked", true, Status::InvalidPropertyValue},
    };
    const GalleryHost g;
    for (const Case& c : cases) {
        SCOPED_TRACE(toUtf8(c.at.name) + "." + toUtf8(c.member));
        const Variant before = g.get(c.at, c.member);
        EXPECT_EQ(statusOf([&] { g.put(c.at, c.member, c.value); }), c.status);
        EXPECT_TRUE(equalByValue(g.get(c.at, c.member), before));
    }
    EXPECT_EQ(statusOf([&] { g.put({u"cmdPush", 0}, u"Name", u"x"); }), Status::ReadOnlyProperty);
    EXPECT_EQ(statusOf([&] { g.get({u"cmdPush", 0}, u"Value"); }), Status::UnknownMember);
    EXPECT_EQ(statusOf([&] { g.get({u"sscToggle"}, u"Index"); }), Status::UnknownMember);
    EXPECT_EQ(toLong(g.get({u"optChoice", 4}, u"index")), 4);
}

TEST(WidgetMembers, AMissingArrayElementFailsTheCallInTheMiddle) {
    const GalleryHost g;
    EXPECT_EQ(statusOf([&] { g->call(u"FailHalfway"); }), Status::MissingElement);
    EXPECT_EQ(toLong(g->get(u"Total")), 1);
    EXPECT_EQ(g.heard(), Heard{});
}

TEST(WidgetMembers, AreFoundByNameWithoutCaseAndByIndex) {
    const GalleryHost g;
    EXPECT_EQ(g.surface().find(u"OPTCHOICE", 2), g.surface().find(u"optChoice", 2));
    EXPECT_EQ(g.surface().find(u"optChoice"), nullptr) << "an element needs its index";
    EXPECT_EQ(g.surface().find(u"sscToggle", 0), nullptr);
}

TEST(WidgetMembers, AMenuOffersItsShownItemsInOrder) {
    const GalleryHost g;
    const auto names = [](const Menu& menu) {
        std::string all;
        for (const Menu* item : menu.items())
            all += toUtf8(captionOf(item->get_Caption()).text) + " ";
        return all;
    };
    const auto& root = dynamic_cast<const Menu&>(g.widget({u"mnuRoot"}));
    EXPECT_EQ(names(root), "Open Locked Ticked - More ");
    g.put({u"mnuPick", 1}, u"Visible", false);
    g.put({u"mnuMore"}, u"Caption", u"Yet &more");
    EXPECT_EQ(names(root), "Open Ticked - Yet more ");
    EXPECT_EQ(names(dynamic_cast<const Menu&>(g.widget({u"mnuMore"}))), "First Second ");
}

} // namespace
} // namespace zilvo
