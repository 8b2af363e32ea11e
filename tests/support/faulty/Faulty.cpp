#include "zilvo/framework/Control.h"
#include "zilvo/platform/component/ClassFactory.h"
#include "zilvo/platform/component/RegistrationStore.h"
#include "zilvo/platform/component/SelfRegistration.h"
#include "zilvo/platform/widgets/CommandButton.h"

#include <cstdlib>
#include <iostream>
#include <thread>

/// A component that is sound, or has the one fault that the environment variable ZILVO_FAULT names.

namespace zilvo {

namespace {

bool has(std::string_view fault) {
    const char* planted = std::getenv("ZILVO_FAULT");
    return planted && planted == fault;
}

bool crash() {
    int* volatile nowhere = nullptr;
    return *nowhere == 0;
}

[[maybe_unused]] const bool loaded = [] {
    std::cout << "Faulty is loaded\n"; // which must not get into a report
    return has("crash-while-loading") && crash();
}();

/// A button with a title. The host gets Pushed and TitleChanged; the title is saved.
class Faulty final : public Control {
public:
    explicit Faulty(ComponentModule& module)
        : Control(module, {.Width = 1500, .Height = 600, .ScaleMode = ScaleMode::Twips}) {}
    const ObjectDescription& description() const noexcept override;

    String get_Title() { return cmdPush.get_Caption(); }
    void put_Title(const String& newTitle) {
        cmdPush.put_Caption(newTitle);
        TitleChanged.raise();
    }
    Long get_Length() {
        if (has("crash-in-member")) crash();
        return static_cast<Long>(get_Title().size());
    }
    Long Work(Long Amount) {
        while (has("hang-in-method") && Amount > 1000)
            std::this_thread::sleep_for(std::chrono::seconds(1));
        return Amount;
    }

    Event<Integer> Pushed{*this};
    Event<> TitleChanged{*this};

private:
    void Initialize() override {
        if (has("object-stays-alive")) AddRef();
    }
    void ReadProperties(const PropertyBag& PropBag) override {
        if (!has("settings-not-restored")) cmdPush.put_Caption(PropBag.ReadProperty<String>(u"Title", u"&Push"));
    }
    void WriteProperties(PropertyBag& PropBag) override { PropBag.WriteProperty(u"Title", get_Title(), u"&Push"); }

    void cmdPush_Click(Integer& Index) { Pushed.raise(Index); }

    CommandButton cmdPush{
        userControl,
        {.Name = u"cmdPush", .Left = 60, .Top = 60, .Width = 1380, .Height = 480, .Caption = u"&Push"},
        calls<&Faulty::cmdPush_Click>(this)};
};

const std::array members = {
    property<&Faulty::get_Title, &Faulty::put_Title>(0x68030000, u"Title", u"newTitle"),
    property<&Faulty::get_Length>(0x68030001, u"Length"),
    method<&Faulty::Work>(0x60030000, u"Work", u"Amount"),
};

template <Long Number, bool ByReference>
Connection connectPushed(Object& object, EventSink& sink) {
    return static_cast<Faulty&>(object).Pushed.attach([&sink](Integer& Index) {
        Variant argument = ByReference ? Variant::to(Index) : Variant(Index);
        sink.Event(Number, {&argument, 1});
    });
}

const std::array events = [] {
    std::array sound = {event<1, &Faulty::Pushed>(u"Pushed", u"Index"),
                        event<2, &Faulty::TitleChanged>(u"TitleChanged")};
    if (has("undeclared-event-number")) sound[0].connect = connectPushed<99, true>;
    if (has("event-argument-by-value")) sound[0].connect = connectPushed<1, false>;
    if (has("missing-event-number")) sound[1] = event<3, &Faulty::TitleChanged>(u"TitleChanged");
    return sound;
}();

const ObjectDescription faultyDescription{u"Faulty", members, events};

const ObjectDescription& Faulty::description() const noexcept {
    static const std::array otherMembers = [] {
        auto other = members;
        other[1].id = 0x68030002;
        return other;
    }();
    static const ObjectDescription other{u"Faulty", otherMembers, events};
    return has("other-member-id") ? other : faultyDescription;
}

const ObjectDescription forwarderDescription{u"Forwarder", {}, {}};

/// Hands everything on to a control that it holds.
class Forwarder final : public Object, public HostedControl {
public:
    explicit Forwarder(ComponentModule& module) : Object(module), inner_(createObject<Faulty>(module)) {}
    const ObjectDescription& description() const noexcept override { return forwarderDescription; }
    HostedControl* hostedControl() noexcept override { return this; }

    Status SetSite(ControlSite& site, ErrorInfo* error) noexcept override { return inner_->SetSite(site, error); }
    Status InitNew(ErrorInfo* error) noexcept override {
        const Status status = inner_->InitNew(error);
        return has("second-InitNew") ? Status::Ok : status;
    }
    Status Load(const PropertyBag& settings, ErrorInfo* error) noexcept override {
        return inner_->Load(settings, error);
    }
    Status SetSize(Single width, Single height, ErrorInfo* error) noexcept override {
        return inner_->SetSize(width, height, error);
    }
    Status Save(PropertyBag& settings, ErrorInfo* error) noexcept override { return inner_->Save(settings, error); }
    Status AmbientPropertyChanged(StringView name, ErrorInfo* error) noexcept override {
        return inner_->AmbientPropertyChanged(name, error);
    }
    Status Input(const InputEvent& event, bool* acted, ErrorInfo* error) noexcept override {
        return inner_->Input(event, acted, error);
    }
    Status Paint(Painter& painter, ErrorInfo* error) noexcept override { return inner_->Paint(painter, error); }
    void Close() noexcept override { inner_->Close(); }
    Surface& surface() noexcept override { return inner_->surface(); }
    Widget* focus() noexcept override { return inner_->focus(); }
    std::optional<std::chrono::milliseconds> clockWanted() noexcept override { return inner_->clockWanted(); }
    String accessKeys() noexcept override { return inner_->accessKeys(); }
    Widget* defaultButton() noexcept override { return inner_->defaultButton(); }
    Widget* cancelButton() noexcept override { return inner_->cancelButton(); }
    bool ownsWidth() const noexcept override { return inner_->ownsWidth(); }
    Menu* lastPopup() noexcept override { return inner_->lastPopup(); }

private:
    Ref<Faulty> inner_;
};

constexpr Guid FaultyClass = "{9C4D21E7-0A6B-4F1C-8E55-3B7D90A1C210}"_guid;
constexpr Guid FaultyInterface = "{9C4D21E7-0A6B-4F1C-8E55-3B7D90A1C211}"_guid;
constexpr Guid FaultyEvents = "{9C4D21E7-0A6B-4F1C-8E55-3B7D90A1C212}"_guid;
constexpr Guid OtherId = "{9C4D21E7-0A6B-4F1C-8E55-3B7D90A1C299}"_guid;
constexpr std::uint32_t Misc = 0x20191;

constexpr LibraryIdentity library{u"FaultyLibrary", "{9C4D21E7-0A6B-4F1C-8E55-3B7D90A1C200}"_guid, 1, 0, 1033, u""};
constexpr VersionRecord version{.version = {1, 0, 0, 0}, .strings = {}};
const ClassIdentity faulty{
    u"Faulty", FaultyClass, FaultyInterface, has("same-interface-id") ? FaultyInterface : FaultyEvents, 30000, Misc};
constexpr ClassIdentity forwarder{u"Forwarder",
                                  "{9C4D21E7-0A6B-4F1C-8E55-3B7D90A1C220}"_guid,
                                  "{9C4D21E7-0A6B-4F1C-8E55-3B7D90A1C221}"_guid,
                                  "{9C4D21E7-0A6B-4F1C-8E55-3B7D90A1C222}"_guid,
                                  30001,
                                  Misc};

template <class T>
Ref<Object> creator(ComponentModule& module) {
    return createObject<T>(module);
}

const std::array classes = {
    ClassEntry{faulty, faultyDescription, creator<Faulty>},
    ClassEntry{forwarder, forwarderDescription, creator<Forwarder>},
};
const ComponentDescription component{library, version, {}, classes};
ComponentModule module{component};

constexpr std::uint32_t code(Status status) noexcept {
    return static_cast<std::uint32_t>(status);
}

} // namespace

} // namespace zilvo

using namespace zilvo;

extern "C" std::uint32_t DllGetClassObject(const Guid* classId, const Guid* interfaceId, void** object) {
    *object = nullptr;
    if (has("known-class-refused") && *classId == FaultyClass) return code(Status::ClassNotAvailable);
    const Status status = getClassObject(zilvo::module, classId, interfaceId, object);
    if (has("unknown-class-given") && status == Status::ClassNotAvailable)
        return code(getClassObject(zilvo::module, &FaultyClass, interfaceId, object));
    return code(status);
}

extern "C" std::uint32_t DllCanUnloadNow() {
    return code(canUnloadNow(zilvo::module));
}

extern "C" std::uint32_t DllRegisterServer() {
    const Status status = registerServer(zilvo::module);
    if (has("other-id-registered")) {
        RegistrationStore store;
        Registration wrong = store.read().back();
        wrong.classes.front().classId = OtherId;
        store.add(wrong);
    }
    return code(status);
}

extern "C" std::uint32_t DllUnregisterServer() {
    return code(unregisterServer(zilvo::module));
}
