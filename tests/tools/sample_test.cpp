// The bundled sample: every model file resaves to the very same bytes, the check of each family
// as the editor loads it (textures found, hardpoints and connected files matching, no message)
// finds nothing, and the export writes files that a 3D tool reads.
#include "moxbuilder.h"
#include "moxreader.h"
#include "recordinghost.h"
#include "runtool.h"
#include "samplewriter.h"
#include "tempdir.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/wait.h>

TEST(Sample, EveryFileResavesToItsBytesAndBothFamiliesCheckCleanAndExport) {
    TempDir dir;
    std::vector<std::string> written;
    std::string problem;
    ASSERT_TRUE(WriteSample(dir.path().string(), written, problem)) << problem;
    RecordingHost host;
    for (const std::string& path : written) {
        if (path.size() > 4 && path.compare(path.size() - 4, 4, ".MOX") == 0) {
            EXPECT_EQ(SavedBytes(READ_MOX(path, 0)), ReadFileBytes(path)) << path;
        }
    }
    EXPECT_TRUE(host.messages.empty());

    for (const char* family : {"PDEMOF.MOX", "TMOD1H.MOX"}) {
        SCOPED_TRACE(family);
        const std::string name = dir.file(family);
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
