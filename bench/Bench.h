#pragma once

#include "zilvo/platform/hosting/ControlSite.h"

#include <benchmark/benchmark.h>
#include <string>
#include <vector>

namespace zilvo::bench {

/// Google Benchmark, with so many repetitions unless the command line says otherwise: taken in turn, so that a drift of
/// the machine's speed meets all benchmarks. False for an option that it does not know.
inline bool initialize(int argc, char** argv, int repetitions) {
    std::string options[] = {"--benchmark_repetitions=" + std::to_string(repetitions),
                             "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.05"};
    std::vector<char*> arguments(argv, argv + argc);
    for (std::string& option : options)
        arguments.insert(arguments.begin() + 1, option.data());
    auto count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    return !benchmark::ReportUnrecognizedArguments(count, arguments.data());
}

/// The most that a benchmark should take, in calls of a bare std::function; shown beside its ratio.
inline void limited(benchmark::State& state, double mostTimesACall) {
    state.counters["limit"] = mostTimesACall;
}

/// One for every class of the library.
void registerClassBenchmarks();

/// The least that a host can be.
class NullSite final : public platform::ControlSite {
public:
    platform::Ambient& ambient() override { return ambient_; }
    platform::Extender& extender() override { return extender_; }
    void PropertyChanged(platform::StringView /*name*/) override {}
    void SizeChanged(platform::Single /*width*/, platform::Single /*height*/) override {}
    void Beep() override {}

private:
    class NullExtender final : public platform::Extender {};

    platform::StandardAmbient ambient_;
    NullExtender extender_;
};

} // namespace zilvo::bench
