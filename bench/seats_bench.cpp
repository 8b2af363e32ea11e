#include "bench/Bench.h"
#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"

namespace zilvo::bench {

namespace {

BooleanArray tenFreeSeats() {
    return {1, std::vector<Boolean>(10, Boolean::True)};
}

void availableSeats(benchmark::State& state) {
    const auto control = create<SeatCheckBoxes>();
    ControlHost host(control);
    host.open();
    BooleanArray seats = tenFreeSeats();
    for (auto _ : state)
        control->AvailableSeatsAre(seats);
    limited(state, 60);
}

void availableSeatsById(benchmark::State& state) {
    const auto control = create<SeatCheckBoxes>();
    ControlHost host(control);
    host.open();
    BooleanArray seats = tenFreeSeats();
    Variant argument = Variant::to(seats);
    Object& object = *control;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            object.Invoke(SeatCheckBoxesInterface::AvailableSeatsAre, Access::Method, {&argument, 1}, nullptr));
    limited(state, 60);
}

/// From the pointer press on an inner box to the outer host's handler.
void tickThroughPanel(benchmark::State& state) {
    const auto control = create<paneledSeatBoxes>();
    ControlHost host(control);
    host.open();
    BooleanArray seats = tenFreeSeats();
    control->AvailableSeatsAre(seats);
    long ticks = 0;
    const auto connection = control->SeatSpreadToWas.attach([&ticks](Long&) { ++ticks; });
    const Point onSeat6{150 + 210 + 100, 120 + 620 + 100};
    for (auto _ : state) {
        control->Input(input::PointerDown{onSeat6}, nullptr, nullptr);
        control->Input(input::PointerUp{onSeat6}, nullptr, nullptr);
    }
    if (ticks != static_cast<long>(state.iterations())) state.SkipWithError("not every press gave an event");
}

template <auto Function>
void seatBit(benchmark::State& state) {
    const auto goodies = create<ZilvoButtonGoodies>();
    Integer descriptor = 1026;
    auto bit = SeatSpreadPossibilities::SpreadToSeat5Requested;
    for (auto _ : state) {
        benchmark::DoNotOptimize(bit);
        benchmark::DoNotOptimize((goodies.get()->*Function)(descriptor, bit));
    }
}

} // namespace

BENCHMARK(availableSeats)->Name("AvailableSeatsAre with ten seats");
BENCHMARK(availableSeatsById)->Name("the same by member id");
BENCHMARK(tickThroughPanel)->Name("a tick from pointer press through paneledSeatBoxes");
BENCHMARK(seatBit<&ZilvoButtonGoodies::SeatBitIsNotSet>)->Name("SeatBitIsNotSet");
BENCHMARK(seatBit<&ZilvoButtonGoodies::SeatBitIsSet>)->Name("SeatBitIsSet");
BENCHMARK(seatBit<&ZilvoButtonGoodies::SeatBitReset>)->Name("SeatBitReset");
BENCHMARK(seatBit<&ZilvoButtonGoodies::SeatBitSet>)->Name("SeatBitSet");
BENCHMARK(seatBit<&ZilvoButtonGoodies::SeatBitToggle>)->Name("SeatBitToggle");

} // namespace zilvo::bench
