#include "bench/Bench.h"
#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"

namespace zilvo::bench {

namespace {

/// From the pointer press on START to the host's handler; Reset makes the pair ready again.
void clickOnStart(benchmark::State& state) {
    const auto control = create<StartStopButtons>();
    ControlHost host(control);
    host.open();
    long clicks = 0;
    const auto connection = control->StartButtonWasClicked.attach([&clicks] { ++clicks; });
    const Point onStart{120 + 120 + 500, 120 + 120 + 250};
    for (auto _ : state) {
        control->Input(input::PointerDown{onStart}, nullptr, nullptr);
        control->Input(input::PointerUp{onStart}, nullptr, nullptr);
        control->Reset();
    }
    if (clicks != static_cast<long>(state.iterations())) state.SkipWithError("not every click gave an event");
}

template <class Control>
void putShapeByName(benchmark::State& state) {
    const auto control = create<Control>();
    ControlHost host(control);
    host.open();
    Object& object = *control;
    Variant shape(Long{3});
    for (auto _ : state)
        benchmark::DoNotOptimize(object.Invoke(u"GOButtonShape", Access::Put, {&shape, 1}, nullptr));
}

void createAndDestroy(benchmark::State& state, const ClassEntry& entry) {
    for (auto _ : state)
        benchmark::DoNotOptimize(entry.create(libraryModule()));
}

} // namespace

BENCHMARK(clickOnStart)->Name("a click on START to its event, and Reset");
BENCHMARK(putShapeByName<GOButton>)->Name("GOButtonShape by name");
BENCHMARK(putShapeByName<paneledGOButton>)->Name("the same through paneledGOButton, by name twice");

void registerClassBenchmarks() {
    for (const ClassEntry& entry : libraryModule().description().classes)
        benchmark::RegisterBenchmark(("create and destroy " + toUtf8(entry.description.name)).c_str(), createAndDestroy,
                                     std::cref(entry));
}

} // namespace zilvo::bench
