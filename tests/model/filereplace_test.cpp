// Saves killed part-way: the target holds the whole old or the whole new contents, and nothing
// shows beside it in the folder.
#include "filereplace.h"
#include "modelfiles.h"
#include "tempdir.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kInterruptedSaves = 100;
constexpr size_t kContentsSize = 64 * 1024;
constexpr unsigned kLongestSpin = 300000;

// Starts a process that saves `first` and `second` over `path` in turn until it is killed; returns
// once it has begun its first save.
pid_t StartSaving(const std::string& path, const std::vector<uint8_t>& first,
                  const std::vector<uint8_t>& second) {
    int ready[2];
    if (pipe(ready) != 0)
        return -1;
    const pid_t child = fork();
    if (child == 0) {
        close(ready[0]);
        const char go = 1;
        if (write(ready[1], &go, 1) != 1)
            _exit(1);
        std::string error;
        for (unsigned n = 0;; ++n)
            ReplaceFileContents(path, n % 2 == 0 ? first : second, error);
    }
    close(ready[1]);
    char go = 0;
    const bool started = read(ready[0], &go, 1) == 1;
    close(ready[0]);
    return started ? child : -1;
}

} // namespace

TEST(FileReplace, AKilledSaveLeavesTheOldOrTheNewFileAndNothingBesideIt) {
    TempDir dir;
    const std::string target = dir.file("PLANEF.MOX");
    const std::vector<uint8_t> older(kContentsSize, 'o');
    const std::vector<uint8_t> newer(kContentsSize, 'n');
    std::string error;
    ASSERT_TRUE(ReplaceFileContents(target, older, error)) << error;

    std::mt19937 random(18);
    for (int round = 0; round < kInterruptedSaves; ++round) {
        const pid_t child = StartSaving(target, newer, older);
        ASSERT_GT(child, 0);
        volatile unsigned spin = 0;
        for (unsigned n = random() % kLongestSpin; n > 0; --n)
            spin = spin + 1;
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);

        const std::vector<uint8_t> now = ReadFileBytes(target);
        ASSERT_TRUE(now == older || now == newer) << "round " << round;
        for (const std::string& name : FilesIn(dir.path()))
            ASSERT_TRUE(name == "PLANEF.MOX" || name.rfind(".PLANEF.MOX.saving-", 0) == 0)
                << "round " << round << " left " << name;
    }

    // What a killed save left under a hidden name, the next save removes.
    std::ofstream(dir.file(".PLANEF.MOX.saving-Ab12Cd")) << "left over";
    ASSERT_TRUE(ReplaceFileContents(target, newer, error)) << error;
    EXPECT_EQ(FilesIn(dir.path()), std::vector<std::string>{"PLANEF.MOX"});
    EXPECT_EQ(ReadFileBytes(target), newer);
}
