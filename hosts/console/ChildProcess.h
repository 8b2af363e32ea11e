#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace zilvo::console {

/// How long a child may take: in all, or until it says the next thing.
struct Patience {
    std::chrono::milliseconds limit;
    bool startsAnew = false;
};

struct Ending {
    bool inTime = true;
    int status = 0; ///< as waitpid() gives it
};

/// Runs `body` in a process of its own, so that neither a crash nor a loop without end harms this one. What the child
/// says through its pipe is heard piece by piece until `hear` gives false, the child ends or patience does; then the
/// child is gone. A body that returns ends the process with its exit status, without a core file. Fails with Failed
/// when there can be no process.
Ending runChild(const std::function<int(int pipe)>& body, const std::function<bool(std::string_view)>& hear,
                Patience patience);

/// Runs what runs a component in a process of its own, and gives its exit status: 1, with a message, when it fails.
/// Fails with BadComponent when the process ends before that.
int runComponent(const std::filesystem::path& component, const std::function<int()>& body);

/// The exit status that the body gives, or 1 with the message of what it throws.
int complaining(const std::function<int()>& body);

/// For the child's side: all of it, or the end of the process when nobody listens any more.
void say(int pipe, std::string_view bytes);

/// "ended by signal 11 (Segmentation fault)"
std::string howItEnded(int status);

} // namespace zilvo::console
