#pragma once

#include "zilvo/platform/hosting/ControlSite.h"

#include <benchmark/benchmark.h>

namespace zilvo::bench {

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
