#include "zilvo/platform/component/ControlHost.h"

namespace zilvo::platform {

namespace {

HostedControl& controlOf(const Ref<Object>& object) {
    HostedControl* control = object->hostedControl();
    if (!control) throw Failure(Status::NoInterface, toUtf8(object->description().name) + " is no control");
    return *control;
}

} // namespace

class ControlHost::FunctionSink final : public EventSink {
public:
    explicit FunctionSink(Handler handler) : handler_(std::make_shared<Handler>(std::move(handler))) {}
    void Event(Long /*number*/, std::span<Variant> arguments) override {
        const auto running = handler_; // the handler may destroy the host and this sink with it
        (*running)(arguments);
    }

    Connection connection;

private:
    std::shared_ptr<Handler> handler_;
};

ControlHost::ControlHost(Ref<Object> object) : object_(std::move(object)), control_(controlOf(object_)) {
    ErrorInfo error;
    throwUnlessOk(control_.SetSite(*this, &error), error);
    const Rectangle area = control_.surface().area();
    extender_.record(area.width, area.height);
}

ControlHost::~ControlHost() {
    if (gone_) *gone_ = true;
    control_.Close();
}

void ControlHost::open(const PropertyBag* settings, std::optional<Single> width, std::optional<Single> height) {
    ErrorInfo error;
    bool gone = false;
    bool* const outer = std::exchange(gone_, &gone);
    const Status status = settings ? control_.Load(*settings, &error) : control_.InitNew(&error);
    if (!gone)
        gone_ = outer;
    else if (outer)
        *outer = true;
    throwUnlessOk(status, error);
    if (gone) return; // an event while loading, and its handler destroyed the host
    const Rectangle area = control_.surface().area();
    resize(width.value_or(area.width), height.value_or(area.height));
}

void ControlHost::on(StringView eventName, Handler handler) {
    auto sink = std::make_unique<FunctionSink>(std::move(handler));
    sink->connection = connect(*object_, eventName, *sink);
    sinks_.push_back(std::move(sink));
}

void ControlHost::save(PropertyBag& settings) {
    ErrorInfo error;
    throwUnlessOk(control_.Save(settings, &error), error);
}

void ControlHost::resize(Single width, Single height) {
    ErrorInfo error;
    throwUnlessOk(control_.SetSize(width, height, &error), error);
}

bool ControlHost::input(const InputEvent& event) {
    bool acted = false;
    ErrorInfo error;
    throwUnlessOk(control_.Input(event, &acted, &error), error);
    return acted;
}

bool ControlHost::click(StringView widgetName, Integer index) {
    Widget* widget = control_.surface().find(widgetName, index);
    return widget && input(input::Act{*widget});
}

void ControlHost::paint(Painter& painter) {
    ErrorInfo error;
    throwUnlessOk(control_.Paint(painter, &error), error);
}

void ControlHost::setAmbient(StringView name, const Variant& value) {
    putMember(ambient_, name, value);
    ErrorInfo error;
    const Status status = control_.AmbientPropertyChanged(ambient_.description().find(name)->name, &error);
    if (status != Status::UnexpectedCall) throwUnlessOk(status, error); // one that is not live needs not be told
}

void ControlHost::PropertyChanged(StringView name) {
    constexpr std::ptrdiff_t Most = 1000;
    if (std::ssize(changes_) == Most) changes_.erase(changes_.begin(), changes_.begin() + Most / 2);
    changes_.emplace_back(name);
}

void ControlHost::HostExtender::put_Width(Single newWidth) {
    host_.resize(newWidth, get_Height());
}

void ControlHost::HostExtender::put_Height(Single newHeight) {
    host_.resize(get_Width(), newHeight);
}

Connection connect(Object& object, StringView eventName, EventSink& sink) {
    const EventDescription* event = object.description().findEvent(eventName);
    if (!event)
        throw Failure(Status::UnknownMember,
                      toUtf8(object.description().name) + " has no event named " + toUtf8(eventName));
    Connection connection;
    ErrorInfo error;
    throwUnlessOk(object.Connect(event->number, sink, connection, &error), error);
    return connection;
}

} // namespace zilvo::platform
