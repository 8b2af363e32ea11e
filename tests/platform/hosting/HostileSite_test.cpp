#include "tests/support/Deeds.h"
#include "tests/support/gallery/GalleryLibrary.h"
#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/Components.h"
#include "zilvo/platform/component/ControlHost.h"

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
    bool ShowPopup(Menu&, Point) override { return told(), false; }
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

/// An instance of a class with a site and a handler of every event, which calls the site too.
struct Guest : EventSink {
    explicit Guest(const ClassEntry& entry, ComponentModule& module) : object(entry.create(module)) {
        for (const EventDescription& event : object->description().events)
            connections.push_back(connect(*object, event.name, *this));
    }
    void Event(Long /*number*/, std::span<Variant> /*arguments*/) override { site.told(); }
    void open() {
        HostedControl* control = object->hostedControl();
        if (!control) return;
        ASSERT_EQ(control->SetSite(site), Status::Ok);
        ASSERT_EQ(control->InitNew(), Status::Ok);
        ASSERT_EQ(control->SetSize(2400, 2400), Status::Ok);
    }
    /// Lets go of it, and lets nothing be heard of it.
    void end() {
        connections.clear();
        if (object && object->hostedControl()) object->hostedControl()->Close();
        object = nullptr;
    }

    Site site;
    Ref<Object> object;
    std::vector<Connection> connections;
};

/// Each class of the library and of the gallery, with all that can be done to one of its objects.
void forEachClass(const std::function<void(const std::function<Guest()>& make, const std::vector<Deed>& deeds)>& body) {
    for (ComponentModule* module : {&libraryModule(), &galleryModule()})
        for (const ClassEntry& entry : module->description().classes) {
            SCOPED_TRACE(toUtf8(entry.identity.name));
            Guest any(entry, *module);
            const auto deeds = deedsOf(*any.object);
            any.end();
            body([&] { return Guest(entry, *module); }, deeds);
            EXPECT_TRUE(module->canUnload());
        }
}

TEST(HostileSite, MayFailInAnyCall) {
    bool failed = false;
    forEachClass([&](const auto& make, const auto& deeds) {
        const auto fail = [] { throw Failure(Status::Overflow, "planted"); };
        Guest refused = make();
        refused.site.happens = fail;
        refused.site.mayFail = true;
        HostedControl* control = refused.object->hostedControl();
        const bool kept = !control || control->SetSite(refused.site) != Status::Overflow;
        EXPECT_TRUE(kept || control->InitNew() == Status::UnexpectedCall) << "a site that failed is not kept";
        refused.end();

        Guest guest = make();
        guest.open();
        guest.site.mayFail = true;
        for (const Deed& deed : deeds) {
            deed.prepare(*guest.object);
            guest.site.happens = fail;
            failed = deed.run(*guest.object) == Status::Overflow || failed;
            guest.site.happens = nullptr;
            const Status after = deed.run(*guest.object);
            EXPECT_TRUE(after != Status::Overflow && after != Status::Failed) << nameOf(after);
        }
        guest.end();
    });
    EXPECT_TRUE(failed);
}

TEST(HostileSite, MayLetGoOfTheControlInAnyCall) {
    int heardLater = 0;
    forEachClass([&](const auto& make, const auto& deeds) {
        for (const Deed& deed : deeds)
            for (const bool ends : {false, true})
                for (int patience = 0; patience < 3; ++patience) { // in the first call of the host, or in a later one
                    Guest guest = make();
                    guest.open();
                    deed.prepare(*guest.object);
                    int told = 0;
                    guest.site.happens = [&] {
                        if (told++ == patience) ends ? guest.end() : void(guest.object = nullptr);
                    };
                    Object& object = *guest.object;
                    deed.run(object);
                    EXPECT_TRUE(!ends || told <= patience + 1) << "nothing is told after it";
                    heardLater += !ends && told > patience + 1;
                    guest.end();
                }
    });
    EXPECT_GT(heardLater, 0) << "what is begun is done to its end";
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
        void line(Point, Point, Colour, Single) override {}
        void text(const TextRun&) override {}
        void bitmap(const Bitmap&, const Rectangle&) override {}
        void enter(const Rectangle&) override {}
        void leave() override { fail("leave"); }
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
