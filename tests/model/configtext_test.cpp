// The configuration file's text: written to the byte, read back whole, and any line it does not
// understand passed over with the default standing.
#include "configtext.h"

#include <gtest/gtest.h>

#include <string>

TEST(ConfigText, WritesEveryLineAndReadsBackWhatItWrote) {
    ProgramState state;
    state.RecentModels[0] = "/home/pilot/my models/PLANEF.MOX";
    state.RecentModels[2] = "/m/B.MOX";
    state.RecentProjects[3] = "/p/T.3vw";
    state.LineWeight = 0;
    state.LineColour = {0, 0, 0};
    state.SkyColour = {7, 45, 255};
    state.IncrementalSave = false;
    const std::string text = ConfigText(state);
    EXPECT_EQ(text, "Recent1 /home/pilot/my models/PLANEF.MOX\r\nRecent2 NONE\r\n"
                    "Recent3 /m/B.MOX\r\nRecent4 NONE\r\nProject1 NONE\r\nProject2 NONE\r\n"
                    "Project3 NONE\r\nProject4 /p/T.3vw\r\nLineWeight 0\r\n"
                    "LineColour 000,000,000\r\nSkyColour 007,045,255\r\nIncrementalSave False\r\n");

    ProgramState read;
    ReadConfigText(text, read);
    state.LineWeight = 1; // a weight of 0 is passed over
    EXPECT_EQ(ConfigText(read), ConfigText(state));
}

TEST(ConfigText, LinesItCannotUnderstandLeaveTheDefault) {
    const ProgramState defaults;
    const std::string defaultText = ConfigText(defaults);
    const std::string rows[] = {
        "recent1 /lower/case/key.mox",
        "Recent1",
        "Recent2 NONE",
        "Recent5 /no/fifth.mox",
        "LineWeight",
        "LineWeight x",
        "LineWeight 11",
        "LineWeight -3",
        "SkyColour 0",
        "SkyColour 12,3,4",
        "SkyColour 300,000,000",
        "SkyColour 178,229,25",
        "LineColour ２５５,000,000",
        "IncrementalSave maybe",
        "LineWeight " + std::string(1 << 20, '9'),
    };
    for (const std::string& row : rows) {
        ProgramState state;
        ReadConfigText(row + "\r\n", state);
        EXPECT_EQ(ConfigText(state), defaultText) << row.substr(0, 40);
    }
}
