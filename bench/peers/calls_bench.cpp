// Before those of Qt, whose keywords are names to them.
#include <boost/signals2/signal.hpp>
#include <sigc++/sigc++.h>

#include "bench/peers/Peers.h"
#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"

#include <QMetaProperty>

namespace zilvo::bench {

namespace {

using State = benchmark::State;

void raise(State& state) {
    const auto control = create<ssOKCancel>();
    long calls = 0;
    const auto connection = control->OKWasClicked.attach([&calls] { ++calls; });
    for (auto _ : state)
        control->OKWasClicked.raise();
    benchmark::DoNotOptimize(calls);
}

void emitQt(State& state) {
    PeerObject object;
    long calls = 0;
    QObject::connect(&object, &PeerObject::okWasClicked, &object, [&calls] { ++calls; });
    for (auto _ : state)
        emit object.okWasClicked();
    benchmark::DoNotOptimize(calls);
}

template <class Signal>
void emitWith(State& state) {
    Signal signal;
    long calls = 0;
    signal.connect([&calls] { ++calls; });
    for (auto _ : state)
        signal();
    benchmark::DoNotOptimize(calls);
}

template <class Control, class Which>
void invoke(State& state, Which which, Access access, std::vector<Variant> arguments) {
    const auto control = create<Control>();
    ControlHost host(control);
    host.open();
    Object& object = *control;
    for (auto _ : state)
        benchmark::DoNotOptimize(object.Invoke(which, access, arguments, nullptr));
}

void putById(State& state) {
    invoke<ssOKCancel>(state, MemberId{0x68030001}, Access::Put, {Variant(true)});
}

void writeByIndex(State& state) {
    PeerObject object;
    const int index = object.metaObject()->indexOfProperty("okEnabled");
    for (auto _ : state)
        benchmark::DoNotOptimize(object.metaObject()->property(index).write(&object, true));
}

void putByName(State& state) {
    invoke<ssOKCancel>(state, StringView(u"OKEnabled"), Access::Put, {Variant(true)});
}

void setByName(State& state) {
    PeerObject object;
    for (auto _ : state)
        benchmark::DoNotOptimize(object.setProperty("okEnabled", true));
}

void callByName(State& state) {
    invoke<StartStopButtons>(state, StringView(u"Reset"), Access::Method, {});
}

void invokeByName(State& state) {
    PeerObject object;
    for (auto _ : state)
        benchmark::DoNotOptimize(QMetaObject::invokeMethod(&object, "reset", Qt::DirectConnection));
}

} // namespace

void compareCalls() {
    compare("raise an event with one handler", raise, "a Qt signal to a lambda", emitQt);
    compare("raise an event with one handler", raise, "sigc++", emitWith<sigc::signal<void()>>);
    compare("raise an event with one handler", raise, "Boost.Signals2", emitWith<boost::signals2::signal<void()>>);
    compare("put a property by member id", putById, "a Qt property by meta-index", writeByIndex);
    compare("put a property by name", putByName, "a Qt property by name", setByName);
    compare("call a method by name", callByName, "a Qt method by name", invokeByName);
}

} // namespace zilvo::bench
