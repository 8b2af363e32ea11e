#include "tests/support/Outcome.h"
#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"
#include "zilvo/platform/painting/SvgPainter.h"

#include <gtest/gtest.h>

namespace zilvo {

namespace {

/// Logs the handlers that run, and fails in one on request.
class Logger final : public Control {
public:
    explicit Logger(ComponentModule& module)
        : Control(module, {.Width = 1500, .Height = 720, .ScaleMode = ScaleMode::Pixels}) {}
    const ObjectDescription& description() const noexcept override;

    UserControl& own() { return userControl; }
    std::string log;
    std::string failIn;
    bool reads = false;
    Event<> Nothing{*this};

private:
    void note(const std::string& what) {
        log += what + " ";
        if (what == failIn) throw Failure(Status::Overflow, "planted");
    }
    void Initialize() override { note("Initialize"); }
    void InitProperties() override { note("InitProperties"); }
    void ReadProperties(const PropertyBag& PropBag) override {
        if (reads) PropBag.ReadProperty(u"First", Integer{1});
        note("ReadProperties");
    }
    void WriteProperties(PropertyBag& PropBag) override {
        PropBag.WriteProperty(u"First", Integer{1});
        note("WriteProperties");
    }
    void Resize() override {
        note("Resize");
        userControl.put_Width(1500); // asks for a width of its own; comes to rest by itself
    }
    void AmbientChanged(StringView PropertyName) override { note("AmbientChanged(" + toUtf8(PropertyName) + ")"); }
    bool KeyPress(Integer& /*KeyAscii*/) override {
        note("KeyPress");
        return false;
    }
    void MouseDown(Integer Button, Integer Shift, Single X, Single Y) override {
        note("MouseDown(" + std::to_string(Button) + "," + std::to_string(Shift) + "," +
             std::to_string(static_cast<int>(X)) + "," + std::to_string(static_cast<int>(Y)) + ")");
    }
};

constinit const ObjectDescription loggerDescription{u"Logger", {}, {}};
const ObjectDescription& Logger::description() const noexcept {
    return loggerDescription;
}

Ref<Logger> makeLogger() {
    return createObject<Logger>(libraryModule());
}

} // namespace

TEST(Lifecycle, IllegalAndRepeatedTransitionsChangeNothing) {
    const auto control = makeLogger();
    HostedControl& hosted = *control;
    MemoryPropertyBag settings;
    ErrorInfo error;
    EXPECT_EQ(hosted.InitNew(&error), Status::UnexpectedCall);
    EXPECT_EQ(error.message, "Logger.InitProperties: the call is not legal: the control has no site");
    EXPECT_EQ(hosted.Load(settings), Status::UnexpectedCall);
    EXPECT_EQ(hosted.SetSize(1, 1), Status::UnexpectedCall);
    EXPECT_EQ(hosted.Save(settings), Status::UnexpectedCall);
    {
        ControlHost host(control); // gives the site
        EXPECT_EQ(hosted.Input(input::KeyTyped{65}, nullptr), Status::UnexpectedCall);
        EXPECT_EQ(hosted.SetSize(1, 1), Status::UnexpectedCall);
        EXPECT_EQ(hosted.InitNew(), Status::Ok);
        EXPECT_EQ(hosted.InitNew(), Status::UnexpectedCall);
        EXPECT_EQ(hosted.Load(settings), Status::UnexpectedCall);
        EXPECT_EQ(hosted.AmbientPropertyChanged(u"Font"), Status::UnexpectedCall);
        EXPECT_EQ(hosted.Save(settings), Status::Ok);
        EXPECT_EQ(hosted.SetSize(1500, 700), Status::Ok);
        EXPECT_TRUE(platform::outcomeOf([&] { ControlHost{control}; }).says("Logger.SetSite: the call is not legal"));
        EXPECT_EQ(control->own().get_Ambient().get_UserMode(), true) << "the second host took nothing away";
    }
    EXPECT_EQ(hosted.SetSize(1, 1), Status::UnexpectedCall) << "closed with its host";
    EXPECT_EQ(hosted.Input(input::KeyTyped{65}, nullptr), Status::UnexpectedCall);
    EXPECT_EQ(control->log, "Initialize InitProperties WriteProperties Resize ");
}

TEST(Lifecycle, IsLiveOnlyWhenItIsLoadedAndSized) {
    struct Bag final : PropertyBag {
        std::optional<Variant> read(StringView) const override {
            MemoryPropertyBag saved;
            for (const Status status : {loaded->SetSize(5, 5), loaded->AmbientPropertyChanged(u"Font"),
                                        loaded->Save(saved), loaded->Load(saved)})
                EXPECT_EQ(status, Status::UnexpectedCall);
            return std::nullopt;
        }
        void write(StringView, const Variant&, bool) override {}
        HostedControl* loaded = nullptr;
    };
    const auto control = makeLogger();
    const ControlHost host(control);
    HostedControl& hosted = *control;
    Bag bag;
    bag.loaded = &hosted;
    control->reads = true;
    EXPECT_EQ(hosted.Load(bag), Status::Ok);
    EXPECT_EQ(hosted.SetSize(-1, 5), Status::InvalidPropertyValue);
    EXPECT_EQ(hosted.AmbientPropertyChanged(u"Font"), Status::UnexpectedCall) << "a refused size is none";
    EXPECT_EQ(hosted.SetSize(1500, 5), Status::Ok);
    EXPECT_EQ(hosted.SetSize(1500, std::numeric_limits<Single>::infinity()), Status::InvalidPropertyValue);
    EXPECT_EQ(control->log, "Initialize ReadProperties Resize ");
    EXPECT_EQ(control->own().get_Height(), 5);
}

TEST(Lifecycle, ASizeThatTheControlSetsIsToldAndRunsResizeEachTime) {
    const auto control = makeLogger();
    ControlHost host(control);
    host.open(nullptr, 3000, 300); // Resize asks for 1500
    EXPECT_EQ(control->log, "Initialize InitProperties Resize Resize ");
    control->own().put_Height(300);
    EXPECT_EQ(control->log, "Initialize InitProperties Resize Resize Resize ") << "also when it is what it was";
}

TEST(Lifecycle, AFailingStepKeepsWhatWasDoneAndTheOrderGoesOn) {
    const auto control = makeLogger();
    ControlHost host(control);
    control->failIn = "ReadProperties";
    const MemoryPropertyBag settings;
    const auto opened = platform::outcomeOf([&] { host.open(&settings); });
    EXPECT_EQ(opened.status, Status::Overflow);
    EXPECT_EQ(opened.message, "Logger.ReadProperties: planted");
    EXPECT_EQ(host.control().Load(settings), Status::UnexpectedCall) << "loading has taken place";
    control->failIn = "WriteProperties";
    MemoryPropertyBag saved;
    EXPECT_THROW(host.save(saved), Failure);
    EXPECT_EQ(saved.settings().size(), 1U);
    control->failIn = "Resize";
    EXPECT_THROW(host.resize(5, 5), Failure);
    host.setAmbient(u"BackColor", Colour{1});
    EXPECT_TRUE(control->log.ends_with("Resize AmbientChanged(BackColor) ")) << "it is live all the same";
}

TEST(Lifecycle, AnInstanceWhoseInitializeFailsLeavesNothingBehind) {
    class Failing final : public Control {
    public:
        explicit Failing(ComponentModule& module)
            : Control(module, {.Width = 1, .Height = 1, .ScaleMode = ScaleMode::Twips}) {}
        const ObjectDescription& description() const noexcept override { return loggerDescription; }

    private:
        void Initialize() override { throw Failure(Status::Overflow, "planted"); }
    };
    const std::size_t before = libraryModule().liveObjects();
    EXPECT_THROW(createObject<Failing>(libraryModule()), Failure);
    EXPECT_EQ(libraryModule().liveObjects(), before);
}

TEST(Surface, SizesColoursAndUnits) {
    const auto control = makeLogger();
    ControlHost host(control);
    host.open(nullptr, 3000, 300);
    EXPECT_EQ(control->own().get_Width(), 1500) << "the control's own width wins";
    EXPECT_EQ(control->own().get_ScaleWidth(), 100);
    EXPECT_EQ(host.extenderObject().get_Width(), 1500) << "and the host hears of it";
    host.extenderObject().put_Height(600);
    EXPECT_EQ(control->own().get_ScaleHeight(), 40);
    EXPECT_THROW(host.resize(-1, 5), Failure);
    EXPECT_EQ(control->own().get_Height(), 600);

    control->log.clear();
    host.input(input::PointerDown{{150, 300}, input::RightButton, input::ShiftMask});
    EXPECT_EQ(control->log, "MouseDown(2,1,10,20) ");
    EXPECT_FALSE(host.input(input::PointerDown{{150, 601}})) << "outside the control";
}

} // namespace zilvo
