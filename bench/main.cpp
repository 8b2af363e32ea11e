#include "bench/Bench.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>

// Runs the benchmarks and states each as a ratio to a bare std::function call measured in the same run, beside the
// most that it should take. The medians of the repetitions are compared.

namespace {

class RatioReporter final : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Aggregate || run.aggregate_name != "median") continue;
            medians_[run.run_name.function_name] = run;
        }
    }
    void Finalize() override {
        const auto base = medians_.find("a bare std::function call");
        std::printf("%-52s %10s %9s %9s\n", "", "median", "ratio", "at most");
        for (const auto& name : inOrder()) {
            const Run& run = medians_[name];
            const double nanoseconds = run.GetAdjustedCPUTime();
            std::printf("%-52s %7.1f ns", name.c_str(), nanoseconds);
            if (base != medians_.end()) std::printf(" %9.2f", nanoseconds / base->second.GetAdjustedCPUTime());
            if (const auto limit = run.counters.find("limit"); limit != run.counters.end())
                std::printf(" %9.1f", limit->second.value);
            std::printf("\n");
        }
        for (const auto& name : inOrder())
            for (const auto& [counter, value] : medians_[name].counters)
                if (counter != "limit") std::printf("%s: %s %.0f\n", name.c_str(), counter.c_str(), value.value);
    }

private:
    /// As they were registered; the repetitions arrive in any order.
    std::vector<std::string> inOrder() const {
        std::vector<std::string> names;
        for (const auto& [name, run] : medians_)
            names.push_back(name);
        std::sort(names.begin(), names.end(), [this](const auto& one, const auto& other) {
            return medians_.at(one).family_index < medians_.at(other).family_index;
        });
        return names;
    }

    std::map<std::string, Run> medians_;
};

} // namespace

int main(int argc, char** argv) {
    if (!zilvo::bench::initialize(argc, argv, 15)) return 1;
    zilvo::bench::registerClassBenchmarks();
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
}
