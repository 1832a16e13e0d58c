// A model named on the command line opens with its family, its textures and the window's reset,
// and the closing question's Yes saves every file of it.
#include "commandline.h"
#include "currentmodel.h"
#include "editorfixture.h"
#include "oglgraphics.h"
#include "tempdir.h"
#include "viewsettings.h"

#include <QLabel>

#include <filesystem>

namespace {

// Copies the demo fighter into `folder`, so that saves land there and not in the build tree.
std::string CopySampleFighter(const TempDir& folder) {
    for (const char* name : {"PDEMOF.MOX", "PDEMOC.MOX", "PDEMOE.MOX", "PDEMOG.MOX", "PDEMO.PCX"})
        std::filesystem::copy_file(std::filesystem::path(SAMPLE_DIR) / name, folder.file(name));
    return folder.file("PDEMOF.MOX");
}

} // namespace

TEST_F(EditorTest, CommandLineModelOpensWithItsFamilyTexturesAndTheWindowReset) {
    TempDir folder;
    const std::string fighter = CopySampleFighter(folder);
    host.answers = {MessageAnswer::Yes};
    ASSERT_TRUE(OGL().MakeCurrent());
    OpenModelFromCommandLine(fighter);

    const model& opened = CurrentModel();
    EXPECT_EQ(host.messages, std::vector<std::string>{"Load this model AND connected models?"});
    EXPECT_EQ(opened.M_Type, kMoxLoaded);
    ASSERT_EQ(opened.Files.size(), 8u);
    for (int slot : {0, 3, 4, 5}) {
        EXPECT_TRUE(opened.Files[slot].Loaded) << "slot " << slot;
        EXPECT_NE(opened.Files[slot].TextureID, 0) << "slot " << slot;
    }
    EXPECT_FALSE(opened.Files[1].Loaded);
    EXPECT_EQ(Window().windowTitle().toStdString(), "Skylathe - PDEMOF.MOX");
    EXPECT_EQ(opened.m_zoom, -250.0f);
    EXPECT_EQ(opened.m_xrot, 135.0f);
    EXPECT_EQ(View().ViewMode, kPerspectiveView);
    EXPECT_EQ(View().ModifyAxis, 30000);
    EXPECT_EQ(opened.m_currelem, -1);
    EXPECT_TRUE(WaitForFrames(2));

    host.answers = {MessageAnswer::Yes};
    ASSERT_TRUE(Window().Form_Unload());
    for (const char* name :
         {"PDEMOF_001.MOX", "PDEMOC_001.MOX", "PDEMOE_001.MOX", "PDEMOG_001.MOX"})
        EXPECT_TRUE(std::filesystem::exists(folder.file(name))) << name;
}
