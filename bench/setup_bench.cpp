#include "bench/Bench.h"
#include "bench/Heap.h"
#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"

namespace zilvo::bench {

namespace {

void createDeckButtons(benchmark::State& state) {
    std::ptrdiff_t bytes = 0;
    for (auto _ : state) {
        const Heap before = heapNow();
        const auto control = create<DeckButtons>();
        bytes = heapNow().bytesAlive - before.bytesAlive;
    }
    limited(state, 1500);
    state.counters["bytes alive"] = static_cast<double>(bytes);
}

void alternateDecks(benchmark::State& state) {
    const auto control = create<DeckButtons>();
    ControlHost host(control);
    host.open();
    long changes = 0;
    const auto connection = control->NumberOfDecksChanged.attach([&changes](Integer&) { ++changes; });
    Integer decks = 2;
    for (auto _ : state) {
        control->put_NumberOfDecks(decks);
        decks = static_cast<Integer>(8 - decks); // 2 and 6
    }
    if (changes != static_cast<long>(state.iterations())) state.SkipWithError("not every put gave an event");
    limited(state, 40);
}

void spinToEvent(benchmark::State& state) {
    const auto control = create<SpinCounter>();
    ControlHost host(control);
    host.open();
    long spins = 0;
    const auto connection = control->CounterValueHasChanged.attach([&spins](Integer&) { ++spins; });
    const Point onUp{1250, 100};
    for (auto _ : state) {
        control->Input(input::PointerDown{onUp}, nullptr, nullptr);
        control->Input(input::PointerUp{onUp}, nullptr, nullptr);
    }
    if (spins != static_cast<long>(state.iterations())) state.SkipWithError("not every press gave an event");
}

} // namespace

BENCHMARK(createDeckButtons)->Name("create and destroy a DeckButtons");
BENCHMARK(alternateDecks)->Name("NumberOfDecks alternating, one handler");
BENCHMARK(spinToEvent)->Name("a spin from pointer press to event");

} // namespace zilvo::bench
