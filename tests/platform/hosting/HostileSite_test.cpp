#include "tests/support/gallery/GalleryLibrary.h"
#include "zilvo/platform/component/Components.h"
#include "zilvo/platform/component/ControlHost.h"
#include "zilvo/platform/painting/SvgPainter.h"

#include <gtest/gtest.h>

namespace zilvo {
namespace {

Ref<Object> make(StringView className) {
    return galleryModule().description().find(className)->create(galleryModule());
}

/// A site that does something unexpected whenever it is called.
struct Site final : ControlSite {
    struct Place final : Extender {};

    Ambient& ambient() override { return told(), ambientProperties; }
    Extender& extender() override { return told(), place; }
    void PropertyChanged(StringView) override { told(); }
    void SizeChanged(Single, Single) override { told(); }
    void Beep() override { told(); }
    bool ShowPopup(Menu&) override { return told(), false; }
    void ViewChanged() noexcept override {
        if (!mayFail) told();
    }
    void told() {
        if (happens) happens();
    }

    std::function<void()> happens;
    bool mayFail = false; ///< then ViewChanged, which must not, does nothing
    StandardAmbient ambientProperties;
    Place place;
};

/// All that a host and its user do to a control, every call a chance for the site.
std::vector<std::function<Status(HostedControl&)>> deedsOf(HostedControl& described) {
    std::vector<std::function<Status(HostedControl&)>> deeds;
    for (const StringView key : {u"Tab", u"Space", u"Enter", u"Escape", u"Down", u"9", u"1", u"Alt+P", u"Alt+1"})
        deeds.emplace_back([=](HostedControl& control) { return control.Input(*parseKey(key), nullptr); });
    for (const Integer button : {input::LeftButton, input::RightButton})
        deeds.emplace_back([=](HostedControl& control) {
            return control.Input(input::PointerDown{{1400, 700}, button}, nullptr);
        });
    for (const StringView member : {u"BackColor", u"ForeColor", u"Width", u"Height"})
        deeds.emplace_back([=](HostedControl& control) {
            Variant value{Integer{1234}};
            return invoke(control.surfaceMembers(), member, Access::Put, {&value, 1}, nullptr);
        });
    int number = 0;
    for (const Widget& each : described.surface()) {
        const auto widgetOf = [at = number++](HostedControl& control) -> Widget& {
            return *std::next(control.surface().begin(), at);
        };
        deeds.emplace_back(
            [=](HostedControl& control) { return control.Input(input::Act{widgetOf(control)}, nullptr); });
        for (const auto& [member, set] : {std::pair<StringView, Integer>{u"Width", 1500}, {u"Value", 1}})
            if (each.description().find(member))
                deeds.emplace_back([=, name = member, number = set](HostedControl& control) {
                    Variant value{number};
                    return invoke(widgetOf(control), name, Access::Put, {&value, 1}, nullptr);
                });
    }
    deeds.emplace_back([](HostedControl& control) { return control.SetSize(2000, 1000); });
    deeds.emplace_back([](HostedControl& control) { return control.AmbientPropertyChanged(u"UserMode"); });
    deeds.emplace_back([](HostedControl& control) {
        SvgPainter painter(2000, 2000);
        return control.Paint(painter);
    });
    deeds.emplace_back([](HostedControl& control) { return control.focus(), Status::Ok; });
    return deeds;
}

constexpr StringView galleryClasses[] = {u"WidgetGallery", u"Small", u"Outer"};

TEST(HostileSite, MayFailInAnyCall) {
    for (const StringView className : galleryClasses) {
        Site site;
        site.mayFail = true;
        const auto object = make(className);
        HostedControl& control = *object->hostedControl();
        const auto deeds = deedsOf(control);
        const auto fail = [] { throw Failure(Status::Overflow, "planted"); };

        site.happens = fail;
        if (control.SetSite(site) != Status::Ok) {
            EXPECT_EQ(control.InitNew(), Status::UnexpectedCall) << "the site was not kept";
            site.happens = nullptr;
            EXPECT_EQ(control.SetSite(site), Status::Ok);
        }
        site.happens = nullptr;
        ASSERT_EQ(control.InitNew(), Status::Ok);
        ASSERT_EQ(control.SetSize(2400, 2400), Status::Ok);
        bool failed = false;
        for (const auto& deed : deeds) {
            site.happens = fail;
            const Status status = deed(control);
            failed = failed || status == Status::Overflow;
            site.happens = nullptr;
            EXPECT_TRUE(status == Status::Ok || status == Status::Overflow) << nameOf(status);
            EXPECT_EQ(deed(control), Status::Ok);
        }
        EXPECT_TRUE(failed);
        control.Close();
    }
}

TEST(HostileSite, MayLetGoOfTheControlInAnyCall) {
    for (const StringView className : galleryClasses) {
        const auto deeds = deedsOf(*make(className)->hostedControl());
        for (std::size_t i = 0; i < deeds.size(); ++i)
            for (int patience = 0; patience < 3; ++patience) { // in the first call of the site, or in a later one
                Site site;
                auto object = make(className);
                HostedControl& control = *object->hostedControl();
                ASSERT_EQ(control.SetSite(site), Status::Ok);
                ASSERT_EQ(control.InitNew(), Status::Ok);
                ASSERT_EQ(control.SetSize(2400, 2400), Status::Ok);
                int left = patience;
                site.happens = [&] {
                    if (left-- == 0) object = nullptr;
                };
                deeds[i](control);
                if (object) control.Close();
                object = nullptr;
                EXPECT_EQ(galleryModule().liveObjects(), 0U);
            }
    }
}

TEST(HostileSite, MayLetGoOfWhoeverSharesAFontThatChanges) {
    std::array<Site, 3> sites;
    std::array<Ref<Object>, 3> objects;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        objects[i] = make(u"Small");
        ASSERT_EQ(objects[i]->hostedControl()->SetSite(sites[i]), Status::Ok);
    }
    const Variant font = get(*objects[0], u"Font");
    for (const auto& object : objects)
        put(*object, u"Font", font);
    StdFont& shared = **font.find<FontRef>();
    sites[1].happens = [&] { objects = {}; };
    shared.put_Size(12);
    EXPECT_EQ(galleryModule().liveObjects(), 0U);
    shared.put_Size(14);

    // One that has it alone, and goes with its font.
    objects[0] = make(u"Small");
    ASSERT_EQ(objects[0]->hostedControl()->SetSite(sites[0]), Status::Ok);
    StdFont& own = **get(*objects[0], u"Font").find<FontRef>();
    sites[0].happens = [&] { objects[0] = nullptr; };
    own.put_Name(u"Arial");
    EXPECT_EQ(galleryModule().liveObjects(), 0U);
}

TEST(HostileSite, APainterMayFailToLeaveAnArea) {
    class Failing final : public Painter {
    public:
        void rectangle(const Rectangle&, const ShapeStyle&, Single) override { fail("rectangle"); }
        void ellipse(const Rectangle&, const ShapeStyle&) override {}
        void polygon(std::span<const Point>, const ShapeStyle&) override {}
        void line(Point, Point, Rgb, Single) override {}
        void text(const TextRun&) override {}
        void bitmap(const Bitmap&, const Rectangle&) override {}
        void enter(const Rectangle&) override {}
        void leave() override { fail("leave"); }
        Single measure(StringView, const FontLook&) const override { return 0; }
        std::string first;

    private:
        void fail(const char* what) {
            if (first == "leave" && first != what) return;
            throw Failure(Status::Overflow, what);
        }
    };
    const auto object = make(u"WidgetGallery");
    Failing painter;
    for (const char* first : {"leave", "rectangle"}) {
        painter.first = first;
        ErrorInfo error;
        EXPECT_EQ(object->hostedControl()->Paint(painter, &error), Status::Overflow);
        EXPECT_EQ(error.message, std::string("WidgetGallery.Paint: ") + first) << "the first failure";
    }
}

TEST(HostileSite, AHostMayEndWhenItHearsOfASize) {
    class Ending final : public ControlHost {
    public:
        explicit Ending(std::unique_ptr<ControlHost>& owner) : ControlHost(make(u"Outer")), owner_(owner) {}

    private:
        void SizeChanged(Single, Single) override { owner_.reset(); }
        std::unique_ptr<ControlHost>& owner_;
    };
    std::unique_ptr<ControlHost> host;
    host = std::make_unique<Ending>(host);
    host->open(nullptr, 500, 500);
    EXPECT_EQ(host, nullptr);
    EXPECT_EQ(galleryModule().liveObjects(), 0U);
}

// Static objects of the program go after those of a component that was loaded later, or before those of one that was
// loaded earlier.
std::optional<LoadedComponent> loaded;
Ref<Object> kept;
std::unique_ptr<ControlHost> keptHost;

TEST(Exit, WithControlsAlive) {
    const auto end = [](bool componentFirst) {
        loaded.emplace(COMPONENT_FILE);
        keptHost = std::make_unique<ControlHost>(loaded->create(u"DeckButtons"));
        keptHost->on(u"NumberOfDecksChanged", [](std::span<Variant>) {});
        keptHost->open();
        kept = loaded->application(u"ZilvoButtonGoodies");
        static const Ref<Object> last = loaded->create(u"GOButton");
        if (componentFirst) loaded.reset();
        std::exit(keptHost->click(u"optDeckCount", 8) ? 0 : 1);
    };
    EXPECT_EXIT(end(false), testing::ExitedWithCode(0), "^$");
    EXPECT_EXIT(end(true), testing::ExitedWithCode(0), "^$");
}

TEST(Exit, AComponentIsUnloadedAndLoadedAgain) {
    for (int round = 0; round < 20; ++round) {
        LoadedComponent component(COMPONENT_FILE);
        ControlHost(component.create(u"SpinCounter")).open();
        component.unload();
    }
}

} // namespace
} // namespace zilvo
