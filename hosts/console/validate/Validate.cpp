#include "hosts/console/validate/Validate.h"

#include "hosts/console/ChildProcess.h"
#include "hosts/console/Describe.h"
#include "hosts/console/validate/Checks.h"
#include "zilvo/platform/component/RegistrationStore.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <map>
#include <unistd.h>

namespace zilvo::console {

using namespace platform;

namespace {

using Clock = std::chrono::steady_clock;

/// From good to bad.
enum class Result : std::uint8_t { Passed, Warning, Skipped, Failed, Crashed };

struct ResultName {
    const char* report;
    const char* tally;
};
constexpr std::array<ResultName, 5> resultNames = {{
    {"PASSED", "passed"},
    {"WARNING", "warning"},
    {"SKIPPED", "skipped"},
    {"FAILED", "failed"},
    {"CRASHED", "crashed"},
}};

const char* nameOf(Result result) noexcept {
    return resultNames[static_cast<std::size_t>(result)].report;
}

/// What every check is given.
struct Given {
    std::filesystem::path component;
    std::filesystem::path registrations; ///< a store that is none of the user's
    std::chrono::seconds limit;
};

// The child's side

/// A component may put anything into its messages; a finding is one line of bounded length.
std::string oneLine(std::string_view text) {
    constexpr std::size_t Most = 1000;
    std::string line(text.substr(0, Most));
    if (text.size() > Most) line += "...";
    std::replace_if(
        line.begin(), line.end(), [](unsigned char letter) { return letter < 0x20 || letter == 0x7F; }, ' ');
    return line;
}

/// Runs the check; the component is not unloaded, which is a check of its own.
void runHere(const NamedCheck& named, const Given& given, int pipe) {
    dup2(STDERR_FILENO, STDOUT_FILENO); // what the component prints is no part of the report
    setenv(RegistrationStore::EnvironmentVariable, given.registrations.c_str(), 1);

    Check check(
        [pipe](Check::Word word, std::string_view text) { say(pipe, static_cast<char>(word) + oneLine(text) + '\n'); });
    std::optional<LoadedComponent> component;
    try {
        component.emplace(given.component);
        named.run(check, *component);
    } catch (const std::exception& exception) {
        check.fail(exception.what());
    }
    std::cout.flush();
    std::fflush(nullptr);
    check.end();
    _exit(EXIT_SUCCESS);
}

// The program's side

struct Outcome {
    Result result = Result::Passed;
    std::chrono::milliseconds took{};
    std::vector<std::string> findings;
};

/// Hears a check's words and makes an outcome of them.
class Listener {
public:
    /// Takes the next bytes of the pipe, which may end in the middle of a word.
    void hear(std::string_view bytes) {
        unread_ += bytes;
        for (std::size_t end; (end = unread_.find('\n')) != std::string::npos; unread_.erase(0, end + 1))
            hearWord(Check::Word{unread_.front()}, unread_.substr(1, end - 1));
    }
    bool hasEnded() const noexcept { return ended_; }

    /// The check said all that it had to say.
    Outcome finished() {
        if (untold_ > 0) outcome_.findings.push_back("and " + std::to_string(untold_) + " more findings");
        return std::move(outcome_);
    }
    /// The check ended before its final word.
    Outcome stopped(Result result, const std::string& how) {
        outcome_.result = result;
        outcome_.findings.push_back(how + (step_.empty() ? "" : " at " + step_));
        return finished();
    }

private:
    void hearWord(Check::Word word, const std::string& text) {
        switch (word) {
        case Check::Word::Step:
            step_ = text;
            break;
        case Check::Word::Failure:
            find(Result::Failed, text);
            break;
        case Check::Word::Warning:
            find(Result::Warning, text);
            break;
        case Check::Word::Skip:
            find(Result::Skipped, text);
            break;
        case Check::Word::End:
            ended_ = true;
            break;
        }
    }
    /// One fault may show in a thousand places, and the first ones tell enough.
    void find(Result result, const std::string& text) {
        constexpr std::size_t Most = 20;
        constexpr unsigned MostOfOne = 3;
        outcome_.result = std::max(outcome_.result, result);
        if (++times_[text] <= MostOfOne && outcome_.findings.size() < Most)
            outcome_.findings.push_back((result == Result::Warning ? "warning: " : "") +
                                        (step_.empty() ? "" : step_ + ": ") + text);
        else
            ++untold_;
    }

    std::string unread_;
    std::string step_;
    bool ended_ = false;
    std::map<std::string, unsigned> times_;
    std::size_t untold_ = 0;
    Outcome outcome_;
};

Outcome runInItsOwnProcess(const NamedCheck& named, const Given& given) {
    const auto start = Clock::now();
    Listener listener;
    const Ending ending = runChild(
        [&](int pipe) {
            runHere(named, given, pipe);
            return EXIT_SUCCESS;
        },
        [&](std::string_view bytes) {
            listener.hear(bytes);
            return !listener.hasEnded();
        },
        {given.limit});
    Outcome outcome =
        !ending.inTime
            ? listener.stopped(Result::Failed, "did not finish in " + std::to_string(given.limit.count()) + " s")
        : !listener.hasEnded() ? listener.stopped(Result::Crashed, howItEnded(ending.status))
                               : listener.finished();
    outcome.took = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);
    return outcome;
}

/// Goes away with all that is in it.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::error_code error;
        auto name = (std::filesystem::temp_directory_path(error) / "zilvo-validate-XXXXXX").string();
        if (!error && !mkdtemp(name.data())) error.assign(errno, std::generic_category());
        if (error) throw Failure(Status::Failed, "no temporary folder " + name + " can be made: " + error.message());
        path_ = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& path() const noexcept { return path_; }

private:
    std::filesystem::path path_;
};

void print(const NamedCheck& check, const Outcome& outcome) {
    std::cout << std::left << std::setw(9) << nameOf(outcome.result) << std::setw(34) << check.name << std::right
              << std::setw(6) << outcome.took.count() << " ms\n";
    for (const std::string& finding : outcome.findings)
        std::cout << "         " << finding << '\n';
    std::cout.flush();
}

Json outcomeJson(const NamedCheck& check, const Outcome& outcome) {
    return {{"name", check.name},
            {"result", nameOf(outcome.result)},
            {"milliseconds", outcome.took.count()},
            {"findings", outcome.findings}};
}

} // namespace

bool validate(const std::filesystem::path& component, bool json, std::chrono::seconds limit) {
    const TemporaryFolder folder;
    const Given given{component, folder.path() / "registrations", limit};
    std::array<unsigned, resultNames.size()> tally{};
    const auto counted = [&](Result result) -> unsigned& { return tally[static_cast<std::size_t>(result)]; };
    Json list = Json::array();
    bool loads = true;
    for (const NamedCheck& check : validationChecks()) {
        const Outcome outcome = loads ? runInItsOwnProcess(check, given) : Outcome{Result::Skipped, {}, {}};
        if (&check == &validationChecks().front()) loads = outcome.result == Result::Passed;
        ++counted(outcome.result);
        if (json)
            list.push_back(outcomeJson(check, outcome));
        else
            print(check, outcome);
    }

    Json tallyJson;
    for (std::size_t i = 0; i < tally.size(); ++i)
        tallyJson[resultNames[i].tally] = tally[i];
    if (json) {
        const Json report = {{"component", component.string()}, {"checks", list}, {"tally", tallyJson}};
        std::cout << report.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
    } else {
        for (const auto& [name, count] : tallyJson.items())
            std::cout << (name == "passed" ? "" : ", ") << count << ' ' << name;
        std::cout << '\n';
    }
    return counted(Result::Failed) == 0 && counted(Result::Crashed) == 0;
}

} // namespace zilvo::console
