#include "bench/Bench.h"
#include "bench/Heap.h"
#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"
#include "zilvo/platform/painting/SvgPainter.h"

namespace zilvo::bench {

namespace {

void bareCall(benchmark::State& state) {
    long calls = 0;
    std::function<void()> function = [&calls] { ++calls; };
    benchmark::DoNotOptimize(function);
    for (auto _ : state)
        function();
    benchmark::DoNotOptimize(calls);
}

void raiseWithoutHandler(benchmark::State& state) {
    const auto control = create<ssOKCancel>();
    for (auto _ : state) {
        benchmark::DoNotOptimize(control.get());
        control->OKWasClicked.raise();
    }
    limited(state, 1);
}

void raiseWithOneHandler(benchmark::State& state) {
    const auto control = create<ssOKCancel>();
    long calls = 0;
    const auto connection = control->OKWasClicked.attach([&calls] { ++calls; });
    for (auto _ : state)
        control->OKWasClicked.raise();
    benchmark::DoNotOptimize(calls);
    limited(state, 2.5);
}

/// By member id or by name.
template <class Which>
void putOKEnabled(benchmark::State& state, const Which& which, double limit) {
    const auto control = create<ssOKCancel>();
    ControlHost host(control);
    host.open();
    Object& object = *control;
    Variant value(true);
    for (auto _ : state)
        benchmark::DoNotOptimize(object.Invoke(which, Access::Put, {&value, 1}, nullptr));
    limited(state, limit);
}

void putById(benchmark::State& state) {
    putOKEnabled(state, MemberId{0x68030001}, 8);
}

void putByName(benchmark::State& state) {
    putOKEnabled(state, StringView(u"OKEnabled"), 20);
}

/// The lifecycle that a host runs a loaded instance through, from the class factory on.
void createLoadDestroy(benchmark::State& state) {
    void* object = nullptr;
    getClassObject(libraryModule(), &libraryModule().description().find(u"ssOKCancel")->identity.classId,
                   &ClassFactoryInterface, &object);
    const Ref<ClassFactory> factory(*static_cast<ClassFactory*>(object));
    factory->Release();
    const MemoryPropertyBag empty;
    const Heap before = heapNow();
    std::size_t created = 0;
    for (auto _ : state) {
        Ref<Object> instance;
        factory->CreateInstance(instance);
        NullSite site;
        HostedControl& control = *instance->hostedControl();
        control.SetSite(site);
        control.Load(empty);
        ++created;
        control.Close();
    }
    limited(state, 500);
    state.counters["heap allocations"] =
        static_cast<double>(heapNow().allocations - before.allocations) / static_cast<double>(created);
}

void alive(benchmark::State& state) {
    const MemoryPropertyBag empty;
    NullSite site;
    std::ptrdiff_t bytes = 0;
    for (auto _ : state) {
        const Heap before = heapNow();
        const auto control = create<ssOKCancel>();
        control->SetSite(site, nullptr);
        control->Load(empty, nullptr);
        bytes = heapNow().bytesAlive - before.bytesAlive;
        control->Close();
    }
    state.counters["bytes alive"] = static_cast<double>(bytes);
}

void saveSettings(benchmark::State& state) {
    const auto control = create<ssOKCancel>();
    ControlHost host(control);
    host.open();
    for (auto _ : state) {
        MemoryPropertyBag settings;
        control->Save(settings, nullptr);
        benchmark::DoNotOptimize(settings.settings().data());
    }
}

void loadSettings(benchmark::State& state) {
    MemoryPropertyBag settings(MemoryPropertyBag::Defaults::Kept);
    {
        ControlHost host(create<ssOKCancel>());
        host.open();
        host.save(settings);
    }
    NullSite site;
    for (auto _ : state) {
        const auto control = create<ssOKCancel>();
        control->SetSite(site, nullptr);
        control->Load(settings, nullptr);
        control->Close();
    }
}

void clickToEvent(benchmark::State& state) {
    const auto control = create<ssOKCancel>();
    ControlHost host(control);
    host.open();
    control->put_OKEnabled(true);
    long clicks = 0;
    const auto connection = control->OKWasClicked.attach([&clicks] { ++clicks; });
    const Point onOK{700, 500};
    for (auto _ : state) {
        control->Input(input::PointerDown{onOK}, nullptr, nullptr);
        control->Input(input::PointerUp{onOK}, nullptr, nullptr);
    }
    if (clicks != static_cast<long>(state.iterations())) state.SkipWithError("not every click gave an event");
}

void svgSnapshot(benchmark::State& state) {
    const auto control = create<ssOKCancel>();
    ControlHost host(control);
    host.open();
    for (auto _ : state) {
        SvgPainter painter(1455, 1695);
        host.paint(painter);
        benchmark::DoNotOptimize(painter.document());
    }
}

} // namespace

BENCHMARK(bareCall)->Name("a bare std::function call");
BENCHMARK(raiseWithoutHandler)->Name("raise an event nobody attached to");
BENCHMARK(raiseWithOneHandler)->Name("raise an event with one typed handler");
BENCHMARK(putById)->Name("put a property by member id");
BENCHMARK(putByName)->Name("put a property by name");
BENCHMARK(createLoadDestroy)->Name("create, load from an empty bag, destroy ssOKCancel");
BENCHMARK(alive)->Name("one ssOKCancel alive");
BENCHMARK(saveSettings)->Name("save ssOKCancel");
BENCHMARK(loadSettings)->Name("create, load all settings, destroy ssOKCancel");
BENCHMARK(clickToEvent)->Name("a click from pointer press to event");
BENCHMARK(svgSnapshot)->Name("an SVG snapshot of ssOKCancel");

} // namespace zilvo::bench
