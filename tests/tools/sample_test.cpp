// The bundled sample: both families load whole from the folder it is written to, with their
// textures found and no message, and every model file resaves to the very same bytes.
#include "model.h"
#include "moxwriter.h"
#include "programstate.h"
#include "recordinghost.h"
#include "recordingtextureloader.h"
#include "samplewriter.h"
#include "tempdir.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

TEST(Sample, BothFamiliesLoadWholeAndEveryFileResavesToItsOwnBytes) {
    TempDir dir;
    std::vector<std::string> written;
    std::string problem;
    ASSERT_TRUE(WriteSample(dir.path().string(), written, problem)) << problem;

    const struct {
        const char* main;
        std::vector<int> slots;
    } families[] = {{"PDEMOF.MOX", {0, 3, 4, 5}}, {"TMOD1H.MOX", {0, 1, 2, 3}}};
    for (const auto& family : families) {
        SCOPED_TRACE(family.main);
        ResetProgramState();
        RecordingHost host;
        RecordingTextureLoader textures;
        host.answers = {MessageAnswer::Yes};
        model loaded;
        std::string name = dir.file(family.main);
        loaded.Load(name);
        EXPECT_EQ(host.messages.size(), 1u) << "only the question whether to load the family";
        ASSERT_EQ(textures.requests.size(), family.slots.size());
        for (const auto& request : textures.requests)
            EXPECT_TRUE(std::ifstream(request.path).good()) << request.path;
        for (int slot = 0; slot < kFileSlots; ++slot) {
            const FileRecord& file = loaded.Files[slot];
            const bool wanted =
                std::find(family.slots.begin(), family.slots.end(), slot) != family.slots.end();
            ASSERT_EQ(file.Loaded, wanted) << "slot " << slot;
            if (!wanted)
                continue;
            std::ifstream in(file.Filename, std::ios::binary);
            const std::vector<uint8_t> onDisk{std::istreambuf_iterator<char>(in), {}};
            std::vector<uint8_t> saved;
            ASSERT_TRUE(BuildMoxBytes(file, saved, problem)) << problem;
            EXPECT_EQ(saved, onDisk) << file.Filename;
        }
    }
}
