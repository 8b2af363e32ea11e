#include "hosts/console/lua/Transcripts.h"

#include "hosts/console/ChildProcess.h"
#include "hosts/console/Component.h"
#include "hosts/console/lua/LuaHost.h"
#include "zilvo/platform/component/Files.h"

#include <cstdlib>
#include <iostream>

namespace zilvo::console {

using namespace platform;

namespace {

std::string counted(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " statement" : " statements");
}

/// What a child says last, unless something else ended its process.
constexpr const char* End = "\n";

/// The child's side: gives its exit status.
int play(const std::string& file, const Playing& playing, int pipe) {
    Components components;
    components.add(componentFile(playing.component));
    LuaHost host(components);
    Transcript transcript(file, [&](const std::string& lines) { return host.isWhole(lines); });
    const auto tell = [pipe](std::size_t line) { say(pipe, std::to_string(line) + "\n"); };
    if (!host.play(transcript, file, tell)) return EXIT_FAILURE;

    const std::size_t differing = transcript.countOfDifferences();
    if (playing.write) {
        if (differing > 0) writeFile(file, transcript.rewritten());
        std::cout << file << ": " << counted(differing) << " written anew\n";
        return EXIT_SUCCESS;
    }
    std::cout << transcript.differences(file) << file << ": ";
    if (differing > 0) std::cout << differing << " of ";
    std::cout << counted(transcript.statements().size()) << (differing > 0 ? " differ\n" : " as written\n");
    return differing > 0 ? EXIT_FAILURE : EXIT_SUCCESS;
}

int playOrComplain(const std::string& file, const Playing& playing, int pipe) {
    const int status = complaining([&] { return play(file, playing, pipe); });
    say(pipe, End);
    return status;
}

/// The last whole line of what a child says is the statement that it runs.
class LastLine {
public:
    void hear(std::string_view bytes) {
        for (const char byte : bytes)
            if (byte == '\n') {
                heard_ = true;
                whole_ = std::exchange(begun_, {});
            } else {
                begun_ += byte;
            }
    }
    bool isEnd() const noexcept { return heard_ && whole_.empty(); }
    std::string at(const std::string& file) const { return whole_.empty() ? file : file + ":" + whole_; }

private:
    std::string begun_;
    std::string whole_;
    bool heard_ = false;
};

} // namespace

bool playTranscripts(const Playing& playing) {
    bool good = true;
    for (const std::string& file : playing.files) {
        LastLine line;
        const auto hear = [&](std::string_view bytes) {
            line.hear(bytes);
            return true;
        };
        const Ending ending = runChild([&](int pipe) { return playOrComplain(file, playing, pipe); }, hear,
                                       {.limit = playing.limit, .startsAnew = true});
        if (!ending.inTime)
            std::cerr << "zilvo: " << line.at(file) << ": the statement did not end in " << playing.limit.count()
                      << " s\n";
        else if (!line.isEnd())
            std::cerr << "zilvo: " << line.at(file) << ": the statement " << howItEnded(ending.status) << '\n';
        good = good && ending.inTime && line.isEnd() && ending.status == 0;
    }
    return good;
}

} // namespace zilvo::console
