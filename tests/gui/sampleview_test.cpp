// The sample fighter as the editor first shows it: loaded with its connected files and texture,
// seen from the perspective camera of a load.
#include "currentmodel.h"
#include "editorfixture.h"
#include "oglgraphics.h"

#include <string>

TEST_F(EditorTest, TheSampleFighterIsAssembledAndTextured) {
    ASSERT_TRUE(OGL().MakeCurrent());
    host.answers = {MessageAnswer::Yes};
    std::string name = std::string(SAMPLE_DIR) + "/PDEMOF.MOX";
    CurrentModel().Load(name);
    const QImage frame = ReadFrame();
    frame.save("/tmp/draw-sample.png");
}
