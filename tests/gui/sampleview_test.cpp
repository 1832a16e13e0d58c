// The sample fighter named on the command line: it opens with its family, its textures and the
// window's reset, shows from the load's camera, and the closing question's Yes saves every file.
#include "commandline.h"
#include "currentmodel.h"
#include "drawscene.h"
#include "editorfixture.h"
#include "oglgraphics.h"
#include "tempdir.h"
#include "viewsettings.h"

#include <filesystem>
#include <string>

namespace {

// Texture colours are sampled with linear filters, so a pixel next to the expected one may blend.
constexpr int kTextureTolerance = 24;

struct Landmark {
    const char* what;
    double x, y, z; // model units
    Rgb colour;
};

} // namespace

TEST_F(EditorTest, TheSampleFighterOpensAssembledAndTexturedAndYesSavesEveryFile) {
    // A copy of the fighter, so that saves land there and not in the build tree.
    TempDir folder;
    for (const char* name : {"PDEMOF.MOX", "PDEMOC.MOX", "PDEMOE.MOX", "PDEMOG.MOX", "PDEMO.PCX"})
        std::filesystem::copy_file(std::filesystem::path(SAMPLE_DIR) / name, folder.file(name));
    host.answers = {MessageAnswer::Yes};
    ASSERT_TRUE(OGL().MakeCurrent());
    OpenModelFromCommandLine(folder.file("PDEMOF.MOX"));

    const model& opened = CurrentModel();
    EXPECT_EQ(host.messages, std::vector<std::string>{"Load this model AND connected models?"});
    ASSERT_EQ(opened.Files.size(), 8u);
    EXPECT_FALSE(opened.Files[1].Loaded);
    EXPECT_EQ(View().ModifyAxis, kAxisX);
    EXPECT_EQ(opened.m_currelem, -1);

    const QImage frame = ReadFrame();
    EXPECT_EQ(PixelAt(frame, 10, 10), kStartSky) << "sky";
    // Points on the right side of the fighter as the load's camera sees it (nose to the right,
    // gear down): a blank texture would paint them white, a connected file out of place sky.
    const Landmark landmarks[] = {
        {"camouflage behind the cockpit", -0.5, 12.8, 14.2, {64, 82, 48}},
        {"nose art panel of PDEMOC", -36.0, 16.1, 8.0, {242, 232, 202}},
        {"right main wheel, down", -6.6, 42.1, -40.5, {30, 30, 30}},
    };
    for (const Landmark& mark : landmarks) {
        const QPoint at = OnScreen(mark.x, mark.y, mark.z);
        const Rgb seen = PixelAt(frame, at.x(), at.y());
        EXPECT_TRUE(Near(seen, mark.colour, kTextureTolerance))
            << mark.what << " at " << at.x() << "," << at.y() << " is "
            << ::testing::PrintToString(seen);
    }

    host.answers = {MessageAnswer::Yes};
    ASSERT_TRUE(Window().Form_Unload());
    for (const char* name :
         {"PDEMOF_001.MOX", "PDEMOC_001.MOX", "PDEMOE_001.MOX", "PDEMOG_001.MOX"})
        EXPECT_TRUE(std::filesystem::exists(folder.file(name))) << name;
}
