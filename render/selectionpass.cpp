#include "selectionpass.h"

#include "currentmodel.h"
#include "oglgraphics.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>
#include <array>

namespace {

// Each record holds one name, as the name stack is one deep: name count, minimum depth, maximum
// depth, name.
constexpr size_t kRecordWords = 4;
constexpr size_t kMinDepthWord = 1;
constexpr size_t kNameWord = 3;
constexpr size_t kViewportWidth = 2;
constexpr size_t kViewportHeight = 3;

// Sets `RenderType` for the life of the pass and clears it on every way out.
class PickingPass {
public:
    PickingPass() { CurrentModel().RenderType = true; }
    ~PickingPass() { CurrentModel().RenderType = false; }
    PickingPass(const PickingPass&) = delete;
    PickingPass& operator=(const PickingPass&) = delete;
};

} // namespace

SelectionHits SelectionPass(int x, int y, int box, int bufferWords) {
    std::vector<GLuint> buffer(static_cast<size_t>(bufferWords));
    std::array<GLint, 4> viewport{};
    glSelectBuffer(bufferWords, buffer.data());
    glGetIntegerv(GL_VIEWPORT, viewport.data());

    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    SelectionHits result;
    {
        const PickingPass pass;
        glRenderMode(GL_SELECT);
        glLoadIdentity();
        gluPickMatrix(x, viewport[kViewportHeight] - y, box, box, viewport.data());
        OGL().MultiplyViewVolume(viewport[kViewportWidth], viewport[kViewportHeight]);
        glMatrixMode(GL_MODELVIEW);
        OGL().RenderFrame();
        result.hits = glRenderMode(GL_RENDER);
    }
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
    glMatrixMode(GL_MODELVIEW);

    const size_t fit = buffer.size() / kRecordWords;
    for (size_t record = 0; record < static_cast<size_t>(std::max(result.hits, 0)) && record < fit;
         ++record) {
        const size_t at = record * kRecordWords;
        result.records.push_back({buffer[at + kMinDepthWord], buffer[at + kNameWord]});
    }
    return result;
}

uint32_t NearestElementHit(const std::vector<HitRecord>& records) {
    HitRecord best = records.front();
    for (size_t record = 1; record < records.size(); ++record) {
        const HitRecord& hit = records[record];
        if (hit.minDepth < best.minDepth && hit.name < kFirstAxisName)
            best = hit;
    }
    return best.name;
}

int32_t LastAxisHit(const std::vector<HitRecord>& records) {
    int32_t axis = 0;
    for (const HitRecord& hit : records) {
        if (hit.name >= kFirstAxisName)
            axis = static_cast<int32_t>(hit.name);
    }
    return axis;
}
