// The configuration file on disk: the first run's message, the file after an exit, and what a
// start reads from it.
#include "configfile.h"
#include "configtext.h"
#include "editorfixture.h"
#include "moxbuilder.h"
#include "programstate.h"

#include <filesystem>

TEST_F(EditorTest, TheConfigurationIsWrittenAtExitAndReadAtTheNextStart) {
    const std::string path = ConfigFilePath();
    EXPECT_EQ(std::filesystem::path(path).filename(), "Skylathe.cfg");
    std::filesystem::remove(path);
    ReadConfig();
    EXPECT_EQ(host.calls.back(), "message information: Could not load config file");

    Program().RecentModels[0] = "/models/with blanks/PLANEF.MOX";
    Program().SkyColour = {0, 0, 0};
    host.answers = {MessageAnswer::Cancel};
    ASSERT_TRUE(Window().Form_Unload()) << "nothing open, nothing asked";
    const std::string written = ConfigText(Program());
    EXPECT_EQ(ReadFileBytes(path), std::vector<uint8_t>(written.begin(), written.end()));
    ResetProgramState();
    const std::size_t shown = host.messages.size();
    ReadConfig();
    EXPECT_EQ(host.messages.size(), shown);
    EXPECT_EQ(Program().RecentModels[0], "/models/with blanks/PLANEF.MOX");
    EXPECT_EQ(Program().SkyColour.blue, 0);
}
