// The command line is one file name, taken whole.
#include "commandline.h"

#include <gtest/gtest.h>

TEST(CommandLine, IsTheArgumentsJoinedByBlanksAndNothingElse) {
    const char* none[] = {"skylathe"};
    EXPECT_EQ(CommandLine(1, none), "");

    const char* quoted[] = {"skylathe", "\"/home/pilot/My", "Models/PLANEF.MOX\""};
    EXPECT_EQ(CommandLine(3, quoted), "\"/home/pilot/My Models/PLANEF.MOX\"");

    const char* spaced[] = {"skylathe", "/models/a  b.mox", ""};
    EXPECT_EQ(CommandLine(3, spaced), "/models/a  b.mox ");
}
