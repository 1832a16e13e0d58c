// The sample fighter as the editor first shows it: loaded with its connected files and texture,
// seen from the perspective camera of a load.
#include "currentmodel.h"
#include "drawscene.h"
#include "editorfixture.h"
#include "oglgraphics.h"

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

TEST_F(EditorTest, TheSampleFighterIsAssembledAndTextured) {
    ASSERT_TRUE(OGL().MakeCurrent());
    host.answers = {MessageAnswer::Yes};
    std::string name = std::string(SAMPLE_DIR) + "/PDEMOF.MOX";
    CurrentModel().Load(name);
    const QImage frame = ReadFrame();
    ASSERT_FALSE(frame.isNull());

    EXPECT_EQ(PixelAt(frame, 10, 10), (Rgb{177, 228, 254})) << "sky";
    // Points on the right side of the fighter as the load's camera sees it (nose to the right,
    // gear down): a blank texture would paint them white, a connected file out of place sky.
    const Landmark landmarks[] = {
        {"camouflage behind the cockpit", -0.5, 12.8, 14.2, {64, 82, 48}},
        {"nose art panel of PDEMOC", -36.0, 16.1, 8.0, {242, 232, 202}},
        {"right wing of PDEMOE", -14.1, 67.7, 1.0, {122, 98, 62}},
        {"right main wheel, down", -6.6, 42.1, -40.5, {30, 30, 30}},
        {"fuselage underside", -62.9, 13.4, -7.4, {190, 200, 172}},
    };
    for (const Landmark& mark : landmarks) {
        const QPoint at = OnScreen(mark.x, mark.y, mark.z);
        const Rgb seen = PixelAt(frame, at.x(), at.y());
        EXPECT_TRUE(Near(seen, mark.colour, kTextureTolerance))
            << mark.what << " at " << at.x() << "," << at.y() << " is "
            << ::testing::PrintToString(seen);
    }
}
