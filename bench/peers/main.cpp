#include "bench/Bench.h"
#include "bench/peers/Peers.h"

#include <QApplication>
#include <QStyleFactory>
#include <cstdio>
#include <map>
#include <vector>

// Measures each thing beside what a host author would take instead, in one run, and states ours as a share of it. The
// medians of the repetitions are compared.

namespace zilvo::bench {

namespace {

struct Comparison {
    std::string what;
    std::string peer;
    double limit;
};
std::vector<Comparison>& comparisons() {
    static std::vector<Comparison> all;
    return all;
}

std::string oursOf(const Comparison& each) {
    return each.what + " beside " + each.peer;
}
std::string peerOf(const Comparison& each) {
    return each.peer + " beside " + each.what;
}

class ShareReporter final : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
                medians_[run.run_name.function_name] = run.GetAdjustedCPUTime();
    }
    void Finalize() override {
        std::printf("%-34s %13s  %-32s %13s %7s %8s\n", "", "ours", "", "theirs", "ratio", "at most");
        for (const Comparison& each : comparisons()) {
            const auto ours = medians_.find(oursOf(each));
            const auto peer = medians_.find(peerOf(each));
            if (ours == medians_.end() || peer == medians_.end()) continue;
            std::printf("%-34s %10.1f ns  %-32s %10.1f ns %7.2f", each.what.c_str(), ours->second, each.peer.c_str(),
                        peer->second, ours->second / peer->second);
            if (each.limit > 0) std::printf(" %8.2f", each.limit);
            std::printf("\n");
        }
    }

private:
    std::map<std::string, double> medians_;
};

} // namespace

void compare(const std::string& what, std::function<void(benchmark::State&)> ours, const std::string& peerName,
             std::function<void(benchmark::State&)> peer, double limit) {
    const Comparison& made = comparisons().emplace_back(Comparison{what, peerName, limit});
    benchmark::RegisterBenchmark(oursOf(made).c_str(), std::move(ours));
    benchmark::RegisterBenchmark(peerOf(made).c_str(), std::move(peer));
}

} // namespace zilvo::bench

int main(int argc, char** argv) {
    if (!zilvo::bench::initialize(argc, argv, 9)) return 1;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    zilvo::bench::compareCalls();
    zilvo::bench::compareWidgets();
    zilvo::bench::ShareReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    zilvo::bench::stateManyControls();
    benchmark::Shutdown();
}
