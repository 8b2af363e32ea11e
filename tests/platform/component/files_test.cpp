#include "tests/support/Files.h"

#include "zilvo/platform/component/Files.h"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>

namespace {

/// Which of the system's calls below fails next, and how many of them go well before it.
std::string_view failingCall;
int before = 0;

bool fails(std::string_view call) noexcept {
    if (call != failingCall || before-- > 0) return false;
    errno = EIO;
    return true;
}

} // namespace

// In place of the system's own, also for the platform's library.
extern "C" int fsync(int file) {
    if (failingCall == "none") return 0;
    return fails("fsync") ? -1 : static_cast<int>(syscall(SYS_fsync, file));
}
extern "C" int rename(const char* from, const char* to) noexcept {
    return fails("rename") ? -1 : static_cast<int>(syscall(SYS_renameat, AT_FDCWD, from, AT_FDCWD, to));
}

namespace zilvo::platform {

namespace {

class FilesTest : public FolderTest {
protected:
    ~FilesTest() override { failingCall = {}; }

    mode_t modeOf(const fs::path& path) const {
        struct stat found {};
        EXPECT_EQ(stat(path.c_str(), &found), 0);
        return found.st_mode & ALLPERMS;
    }

    const fs::path file = folder / "file";
};

} // namespace

TEST_F(FilesTest, ReplacesWhatTheNameStandsForAndKeepsItsMode) {
    const mode_t mask = umask(027);
    writeFile(file, "new");
    umask(mask);
    EXPECT_EQ(modeOf(file), 0640U);
    fs::create_directories(folder / "below");
    fs::create_symlink("below/link", folder / "link");
    fs::create_symlink("target", folder / "below/link"); // which is not there yet
    for (const std::string text : {"made", "replaced", ""}) {
        writeFile(folder / "link", text);
        EXPECT_EQ(contentOf(folder / "below/target"), text);
        fs::permissions(folder / "below/target", fs::perms(0606));
    }
    EXPECT_EQ(modeOf(folder / "below/target"), 0606U);
    EXPECT_TRUE(fs::is_symlink(folder / "link") && fs::is_symlink(folder / "below/link"));
    EXPECT_EQ(std::distance(fs::recursive_directory_iterator(folder), {}), 5) << "no other file stays";

    const fs::path current = fs::current_path();
    fs::current_path(folder);
    writeFile("file", "by its name alone");
    fs::current_path(current);
    EXPECT_EQ(contentOf(file), "by its name alone");
}

TEST_F(FilesTest, AFailureNamesFileAndReasonAndLeavesWhatWasThere) {
    write(file, "old");
    const auto expect = [&](const fs::path& where, const std::string& why, const char* left = "old") {
        const auto outcome = outcomeOf([&] { writeFile(where, std::string(10000, 'x'), Status::InUse); });
        EXPECT_EQ(outcome.status, Status::InUse);
        EXPECT_EQ(outcome.message, where.string() + why);
        EXPECT_EQ(contentOf(file), left) << why;
        EXPECT_EQ(filesInFolder(), 1) << why;
        failingCall = {};
    };
    expect(folder, " cannot be written: it is a directory");
    expect(file / "below", " cannot be written: Not a directory");
    expect(folder / "none/file", " cannot be written: its folder: No such file or directory");
    expect(folder / std::string(300, 'n'), " cannot be written: File name too long");
    expect("/dev/full", " cannot be written: No space left on device");
    for (const char* call : {"fsync", "rename"}) {
        failingCall = call;
        expect(file, " cannot be written: Input/output error");
    }
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    const rlimit small{4096, usual.rlim_max}; // of which a part is written
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    expect(file, " cannot be written: File too large");
    setrlimit(RLIMIT_FSIZE, &usual);
    std::signal(SIGXFSZ, handler);

    fs::permissions(file, fs::perms::owner_read);
    expect(file, " cannot be written: it is read-only");
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
    fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
    expect(folder / "new", " cannot be written: its folder: it is read-only");
    writeFile(file, "in place");
    fs::permissions(folder, fs::perms::owner_all);

    failingCall = "fsync";
    before = 1;
    expect(file,
           " is written, but may not survive a loss of power: its folder cannot be brought to the disk: "
           "Input/output error",
           std::string(10000, 'x').c_str());

    fs::create_symlink("circle", folder / "circle");
    const auto circle = outcomeOf([&] { writeFile(folder / "circle", ""); });
    EXPECT_TRUE(circle.says("circle cannot be written: Too many levels of symbolic links")) << circle.message;
}

TEST_F(FilesTest, WritesThroughWhatCannotBeReplaced) {
    writeFile("/dev/null", "nothing");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    // A descriptor of the process's own goes on where it is.
    write(file, "before ");
    const FileDescriptor out(open(file.c_str(), O_WRONLY | O_APPEND));
    writeFile("/dev/fd/" + std::to_string(out.number()), "and behind");
    EXPECT_EQ(contentOf(file), "before and behind");
}

TEST_F(FilesTest, AWriterKilledAtAnyMomentLeavesTheOldContentOrTheNewOne) {
    constexpr int Rounds = 2000;
    failingCall = "none"; // the disk is not asked, which a kill does not concern
    const std::string texts[] = {std::string(15000, 'a'), std::string(9000, 'b')};
    writeFile(file, texts[0]);
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20); // of a machine that is busy
    for (int round = 0; round < Rounds && std::chrono::steady_clock::now() < end; ++round) {
        const pid_t writer = inChild([&] {
            for (unsigned i = 0;; ++i)
                writeFile(file, texts[i % 2]);
        });
        usleep(static_cast<useconds_t>(100 + round * 37 % 800));
        kill(writer, SIGKILL);
        waitpid(writer, nullptr, 0);
        const auto text = contentOf(file);
        ASSERT_TRUE(text == texts[0] || text == texts[1]) << text.size() << " bytes in round " << round;
    }
    EXPECT_GT(filesInFolder(), 1) << "no kill came in between";
    writeFile(file, "what they left over is in nobody's way");
    EXPECT_EQ(contentOf(file), "what they left over is in nobody's way");
}

} // namespace zilvo::platform
