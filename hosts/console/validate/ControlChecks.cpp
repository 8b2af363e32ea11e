#include "hosts/console/Snapshot.h"
#include "hosts/console/validate/Driver.h"
#include "zilvo/platform/painting/SvgPainter.h"

#include <algorithm>
#include <limits>

/// What a host drives: the lifecycle, sizes, painting, ambient properties, settings.

namespace zilvo::console {

using namespace platform;

namespace {

Answer paint(HostedControl& control) {
    SvgPainter painter(1500, 1500);
    return answerOf([&](ErrorInfo* error) { return control.Paint(painter, error); });
}

Answer setSize(HostedControl& control, Single width, Single height) {
    return answerOf([&](ErrorInfo* error) { return control.SetSize(width, height, error); });
}

Answer load(HostedControl& control, const PropertyBag& settings) {
    return answerOf([&](ErrorInfo* error) { return control.Load(settings, error); });
}

Answer save(HostedControl& control, PropertyBag& settings) {
    return answerOf([&](ErrorInfo* error) { return control.Save(settings, error); });
}

/// A control that is called step by step, and the least that a host gives one.
class Hosted final : private ControlSite {
public:
    enum class Call : std::uint8_t { SetSite, InitNew, Load, SetSize, Save, AmbientPropertyChanged, Input, Close };

    Hosted(const LoadedComponent& component, const ClassEntry& entry)
        : object_(createInstance(component, entry)), control_(object_->hostedControl()) {
        if (!control_) throw Failure(Status::NoInterface, "the instance is no control");
    }
    Hosted(const Hosted&) = delete;
    Hosted& operator=(const Hosted&) = delete;
    ~Hosted() { control_->Close(); }

    HostedControl& control() const noexcept { return *control_; }

    Answer make(Call call) {
        return answerOf([&](ErrorInfo* error) {
            switch (call) {
            case Call::SetSite:
                return control_->SetSite(*this, error);
            case Call::InitNew:
                return control_->InitNew(error);
            case Call::Load:
                return control_->Load(settings_, error);
            case Call::SetSize:
                return control_->SetSize(1500, 1500, error);
            case Call::Save:
                return control_->Save(settings_, error);
            case Call::AmbientPropertyChanged:
                return control_->AmbientPropertyChanged(u"BackColor", error);
            case Call::Input:
                return control_->Input(input::PointerMove{}, nullptr, error);
            case Call::Close:
                control_->Close();
                break;
            }
            return Status::Ok;
        });
    }

private:
    class PlainExtender final : public Extender {};

    Ambient& ambient() override { return ambient_; }
    Extender& extender() override { return extender_; }
    void PropertyChanged(StringView /*name*/) override {}
    void SizeChanged(Single /*width*/, Single /*height*/) override {}
    void Beep() override {}

    StandardAmbient ambient_;
    PlainExtender extender_;
    MemoryPropertyBag settings_;
    Ref<Object> object_;
    HostedControl* control_;
};

using Call = Hosted::Call;
using Calls = std::vector<Call>;

constexpr std::array<const char*, 8> callNames = {
    "SetSite", "InitNew", "Load", "SetSize", "Save", "AmbientPropertyChanged", "Input", "Close"};

/// A stage of the lifecycle: the calls that lead to it, the legal ones, and those that lead on to a live control.
struct Stage {
    const char* name;
    Calls before;
    Calls legal;
    Calls after;
};
const std::vector<Stage>& stages() {
    using enum Hosted::Call;
    static const std::vector<Stage> all = {
        {"without a site", {}, {SetSite, Close}, {SetSite, Load, SetSize}},
        {"with a site", {SetSite}, {InitNew, Load, Close}, {InitNew, SetSize}},
        {"new", {SetSite, InitNew}, {SetSize, Save, Close}, {SetSize}},
        {"loaded", {SetSite, Load}, {SetSize, Save, Close}, {SetSize}},
        {"live", {SetSite, InitNew, SetSize}, {SetSize, Save, AmbientPropertyChanged, Input, Close}, {}},
        {"closed", {SetSite, InitNew, SetSize, Close}, {Close}, {}},
    };
    return all;
}

void expectCalls(Check& check, Hosted& hosted, const std::string& what, const Calls& calls) {
    for (const Call call : calls) {
        check.step(what + ", " + callNames[static_cast<std::size_t>(call)]);
        expectOk(check, hosted.make(call));
    }
}

/// Makes the call in the stage; one that is not legal must be refused and change nothing.
void callIn(Check& check, const LoadedComponent& component, const ClassEntry& entry, const Stage& stage, Call call) {
    const std::string name = callNames[static_cast<std::size_t>(call)];
    Hosted hosted(component, entry);
    expectCalls(check, hosted, nameOf(entry), stage.before);
    const bool isLegal = std::find(stage.legal.begin(), stage.legal.end(), call) != stage.legal.end();
    check.step(nameOf(entry) + ", " + name + " while " + stage.name);
    if (!expectStatus(check, hosted.make(call), isLegal ? Status::Ok : Status::UnexpectedCall) || isLegal) return;
    const auto afterwards = nameOf(entry) + ", after a refused " + name + " while " + stage.name;
    expectCalls(check, hosted, afterwards, stage.after);
    if (stage.legal == Calls{Call::Close}) return;
    expectCalls(check, hosted, afterwards, {Call::Save, Call::AmbientPropertyChanged, Call::Input});
    check.step(afterwards + ", Paint");
    expectOk(check, paint(hosted.control()));
}

} // namespace

void checks::lifecycle(Check& check, LoadedComponent& component) {
    forEachControl(check, component, [&](const ClassEntry& entry) {
        for (const Stage& stage : stages())
            for (std::size_t call = 0; call < callNames.size(); ++call)
                callIn(check, component, entry, stage, Call{static_cast<std::uint8_t>(call)});
    });
}

void checks::sizes(Check& check, LoadedComponent& component) {
    using Singles = std::numeric_limits<Single>;
    constexpr std::array sides = {
        0.0F, 1.0F, 1234.5F, 1e6F, -1.0F, Singles::lowest(), Singles::max(), Singles::infinity(), Singles::quiet_NaN()};
    forEachControl(check, component, [&](const ClassEntry& entry) {
        ControlHost host(createInstance(component, entry));
        host.open();
        const Rectangle designed = host.control().surface().area();
        const auto resize = [&](Single width, Single height) {
            check.step(nameOf(entry) + ", size " + shown(width) + " x " + shown(height));
            Answer answer = setSize(host.control(), width, height);
            expectOk(check, paint(host.control()));
            return answer;
        };
        for (const Single width : sides)
            for (const Single height : sides)
                expectClean(check, resize(width, height));
        expectOk(check, resize(designed.width, designed.height));
    });
}

void checks::painting(Check& check, LoadedComponent& component) {
    forEachControl(check, component, [&](const ClassEntry& entry) {
        ControlHost host(createInstance(component, entry));
        host.open();
        const auto expectPicture = [&](const char* when) {
            check.step(nameOf(entry) + ", painted " + when);
            check.expect(svgOf(host) == svgOf(host), "painting twice gives two pictures");
        };
        expectPicture("new");
        carryOut(check, allDeeds(host.object()));
        expectPicture("after all that can be done to it");
    });
}

void checks::ambientProperties(Check& check, LoadedComponent& component) {
    forEachControl(check, component, [&](const ClassEntry& entry) {
        ControlHost host(createInstance(component, entry));
        host.open();
        for (const MemberDescription& member : host.ambientProperties().description().members)
            for (const Variant& value : usualValues(member.type)) {
                check.step(nameOf(entry) + ", ambient " + toUtf8(member.name) + " = " + describe(value));
                expectOk(check, attempt([&] { host.setAmbient(member.name, value); }));
            }
        for (const StringView unknown : {u"NoSuchProperty", u""}) {
            check.step(nameOf(entry) + ", unknown ambient property \"" + toUtf8(unknown) + "\"");
            expectOk(check,
                     answerOf([&](ErrorInfo* error) { return host.control().AmbientPropertyChanged(unknown, error); }));
        }
    });
}

namespace {

using Defaults = MemoryPropertyBag::Defaults;

const Variant* findSetting(const MemoryPropertyBag& bag, StringView name) {
    const auto at =
        std::find_if(bag.settings().begin(), bag.settings().end(),
                     [&](const MemoryPropertyBag::Setting& setting) { return sameName(setting.name, name); });
    return at == bag.settings().end() ? nullptr : &at->value;
}

void expectSameSettings(Check& check, const MemoryPropertyBag& saved, const MemoryPropertyBag& restored) {
    for (const auto& [name, value] : saved.settings()) {
        const Variant* other = findSetting(restored, name);
        check.expect(other && other->kind() == value.kind() && equalByValue(*other, value),
                     toUtf8(name) + " was saved as " + describe(value) + ", is saved as " +
                         (other ? describe(*other) : "nothing") + " after loading that");
    }
    for (const auto& [name, value] : restored.settings())
        check.expect(findSetting(saved, name) != nullptr,
                     toUtf8(name) + " was not saved, is saved as " + describe(value) + " after loading that");
}

/// What is done with a control before it is saved.
struct Use {
    const char* name;
    Deeds (*deeds)(Object& control);
};
constexpr std::array uses = {
    Use{"new", [](Object&) { return Deeds(); }},
    Use{"with every property set", memberDeeds},
    Use{"used by a user", userDeeds},
};

} // namespace

void checks::settingsRoundTrip(Check& check, LoadedComponent& component) {
    forEachControl(check, component, [&](const ClassEntry& entry) {
        for (const Use& use : uses)
            for (const Defaults defaults : {Defaults::LeftOut, Defaults::Kept}) {
                ControlHost first(createInstance(component, entry));
                first.open();
                carryOut(check, use.deeds(first.object()));
                check.step(nameOf(entry) + ", saved " + use.name +
                           (defaults == Defaults::Kept ? " with defaults" : " without defaults"));
                MemoryPropertyBag saved(defaults);
                first.save(saved);
                ControlHost second(createInstance(component, entry));
                second.open(&saved);
                MemoryPropertyBag restored(defaults);
                second.save(restored);
                expectSameSettings(check, saved, restored);
            }
    });
}

namespace {

/// Whatever the settings did, the control can be driven and closed.
Answer loadAndUse(Check& check, const LoadedComponent& component, const ClassEntry& entry,
                  const MemoryPropertyBag& settings, const std::string& what) {
    ControlHost host(createInstance(component, entry));
    check.step(what);
    Answer loaded = load(host.control(), settings);
    expectClean(check, loaded);
    const Answer sized = setSize(host.control(), 1500, 1500);
    expectClean(check, sized);
    check.expect(sized.status != Status::UnexpectedCall, "SetSize is refused after Load");
    carryOut(check, widgetDeeds(host.object()), what);
    check.step(what + ", then Paint and Save");
    expectOk(check, paint(host.control()));
    MemoryPropertyBag saved;
    expectClean(check, save(host.control(), saved));
    return loaded;
}

void saveNew(const LoadedComponent& component, const ClassEntry& entry, MemoryPropertyBag& settings) {
    ControlHost host(createInstance(component, entry));
    host.open();
    host.save(settings);
}

} // namespace

void checks::hostileSettings(Check& check, LoadedComponent& component) {
    forEachControl(check, component, [&](const ClassEntry& entry) {
        MemoryPropertyBag usual(Defaults::Kept);
        saveNew(component, entry, usual);
        usual.set(u"NoSuchSetting", u"of no use");
        expectOk(check, loadAndUse(check, component, entry, usual, nameOf(entry) + ", with an unknown setting"));
        for (const auto& [name, value] : usual.settings())
            for (const Variant& hostile : extremeValues({})) {
                MemoryPropertyBag settings(Defaults::Kept);
                for (const auto& each : usual.settings())
                    settings.set(each.name, each.name == name ? hostile : each.value);
                loadAndUse(check, component, entry, settings,
                           nameOf(entry) + ", setting " + toUtf8(name) + " = " + describe(hostile));
            }
    });
}

namespace {

/// A store that is empty and fails once: at its use of that number, from 0 on.
class FailingBag final : public PropertyBag {
public:
    static constexpr Status Planted = Status::FileNotFound;

    explicit FailingBag(unsigned failsAt) : failsAt_(failsAt) {}
    bool hasFailed() const noexcept { return hasFailed_; }

private:
    std::optional<Variant> read(StringView /*name*/) const override {
        count();
        return std::nullopt;
    }
    void write(StringView /*name*/, const Variant& /*value*/, bool /*equalsDefault*/) override { count(); }
    void count() const {
        if (uses_++ != failsAt_) return;
        hasFailed_ = true;
        throw Failure(Planted, "the store fails");
    }

    unsigned failsAt_;
    mutable unsigned uses_ = 0;
    mutable bool hasFailed_ = false;
};

/// Makes the call with a store that fails at its first use, then at its second, and so on until it is not used as
/// often.
void failAtEachUse(Check& check, const std::string& what, const std::function<Answer(FailingBag&)>& call) {
    for (unsigned use = 0;; ++use) {
        FailingBag bag(use);
        check.step(what + " with a store that fails at use " + std::to_string(use + 1));
        const Answer answer = call(bag);
        if (!bag.hasFailed()) return;
        expectStatus(check, answer, FailingBag::Planted);
    }
}

} // namespace

void checks::failingSettings(Check& check, LoadedComponent& component) {
    forEachControl(check, component, [&](const ClassEntry& entry) {
        failAtEachUse(check, nameOf(entry) + ", Load", [&](FailingBag& bag) {
            ControlHost host(createInstance(component, entry));
            Answer loaded = load(host.control(), bag);
            check.expect(setSize(host.control(), 1500, 1500).status != Status::UnexpectedCall,
                         "SetSize is refused after Load");
            expectOk(check, paint(host.control()));
            return loaded;
        });
        ControlHost host(createInstance(component, entry));
        host.open();
        failAtEachUse(check, nameOf(entry) + ", Save", [&](FailingBag& bag) { return save(host.control(), bag); });
        expectOk(check, paint(host.control()));
    });
}

} // namespace zilvo::console
