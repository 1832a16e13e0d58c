// The bundled sample: both families load whole from the folder it is written to, with their
// textures found and no message, every model file resaves to the very same bytes, the check finds
// nothing, and the export writes files that a 3D tool reads.
#include "model.h"
#include "moxbuilder.h"
#include "programstate.h"
#include "recordinghost.h"
#include "recordingtextureloader.h"
#include "runtool.h"
#include "samplewriter.h"
#include "tempdir.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sys/wait.h>

TEST(Sample, BothFamiliesLoadWholeResaveToTheirBytesCheckCleanAndExport) {
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
        std::vector<int> slots;
        for (int slot = 0; slot < kFileSlots; ++slot)
            if (loaded.Files[slot].Loaded)
                slots.push_back(slot);
        EXPECT_EQ(slots, family.slots);
        for (const int slot : slots)
            EXPECT_EQ(SavedBytes(loaded.Files[slot]), ReadFileBytes(loaded.Files[slot].Filename));

        const ToolRun check = RunTool({"check", "--family", "--json", name});
        EXPECT_EQ(check.status, kExitOk);
        EXPECT_EQ(check.out, "[]\n");
        for (const char* format : {".glb", ".obj"}) {
            const std::string out = dir.file(std::string("export") + format);
            ASSERT_EQ(RunTool({"export", name, out}).status, kExitOk);
            const int status = std::system(("assimp info '" + out + "' >/dev/null 2>&1").c_str());
            EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << out;
        }
    }
}
