#include "hosts/console/ChildProcess.h"

#include "hosts/console/Output.h"
#include "zilvo/platform/values/Status.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zilvo::console {

using namespace platform;

namespace {

using Clock = std::chrono::steady_clock;

[[noreturn]] void failToStart() {
    throw Failure(Status::Failed, std::string("a process cannot be started: ") + std::strerror(errno));
}

[[noreturn]] void runHere(const std::function<int(int pipe)>& body, int pipe) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    constexpr rlimit noCoreFile{0, 0};
    setrlimit(RLIMIT_CORE, &noCoreFile);
    _exit(flushed(body(pipe)));
}

/// False when patience ended first.
bool listen(int pipe, const std::function<bool(std::string_view)>& hear, Patience patience) {
    std::array<char, 4096> bytes{};
    auto deadline = Clock::now() + patience.limit;
    for (;;) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
        if (left.count() <= 0) return false;
        pollfd ready{pipe, POLLIN, 0};
        if (poll(&ready, 1, static_cast<int>(left.count())) <= 0) continue;
        const ssize_t count = read(pipe, bytes.data(), bytes.size());
        if (count <= 0 || !hear({bytes.data(), static_cast<std::size_t>(count)})) return true;
        if (patience.startsAnew) deadline = Clock::now() + patience.limit;
    }
}

} // namespace

Ending runChild(const std::function<int(int pipe)>& body, const std::function<bool(std::string_view)>& hear,
                Patience patience) {
    std::cout.flush(); // or the child would write it, too
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0) failToStart();
    const pid_t child = fork();
    if (child < 0) failToStart();
    if (child == 0) {
        close(pipe[0]);
        runHere(body, pipe[1]);
    }
    close(pipe[1]);
    Ending ending;
    ending.inTime = listen(pipe[0], hear, patience);
    if (!ending.inTime) kill(child, SIGKILL);
    waitpid(child, &ending.status, 0);
    close(pipe[0]);
    return ending;
}

int runComponent(const std::filesystem::path& component, const std::function<int()>& body) {
    bool hasEnded = false;
    const Ending ending = runChild(
        [&](int pipe) {
            const int status = complaining(body);
            say(pipe, "end");
            return status;
        },
        [&](std::string_view) { return hasEnded = true; }, {std::chrono::hours(24)});
    if (!hasEnded)
        throw Failure(Status::BadComponent, "running " + component.string() + " " + howItEnded(ending.status));
    return WEXITSTATUS(ending.status);
}

int complaining(const std::function<int()>& body) {
    try {
        return body();
    } catch (const std::exception& exception) {
        std::cerr << "zilvo: " << exception.what() << '\n';
        return EXIT_FAILURE;
    }
}

void say(int pipe, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(pipe, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) _exit(EXIT_FAILURE);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

std::string howItEnded(int status) {
    if (WIFSIGNALED(status))
        return "ended by signal " + std::to_string(WTERMSIG(status)) + " (" + strsignal(WTERMSIG(status)) + ")";
    return "ended the process with exit status " + std::to_string(WEXITSTATUS(status));
}

} // namespace zilvo::console
