#include "drawscene.h"

#include "currentmodel.h"
#include "viewsettings.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace {

constexpr float kCameraDistance = -100.0f;

} // namespace

TestFile::TestFile() {
    record.Loaded = true;
    record.NumParts = 1;
    record.Parts.resize(1);
    record.Nodes.resize(1);
    record.Elements.resize(1);
    record.NRM.resize(1);
    record.PART.resize(1);
    record.Offsets.resize(1);
    record.PointStep = 1.0f;
}

uint8_t TestFile::AddNode(int16_t x, int16_t y, int16_t z, int16_t body) {
    record.Nodes.back() = Node{y, z, x, body};
    record.Nodes.emplace_back();
    return static_cast<uint8_t>(record.NumNodes++);
}

std::vector<uint8_t> TestFile::AddSquare(int16_t x, int16_t z, int16_t half, bool facingAway,
                                         int16_t y) {
    std::vector<uint8_t> nodes{AddNode(x - half, y, z - half), AddNode(x - half, y, z + half),
                               AddNode(x + half, y, z + half), AddNode(x + half, y, z - half)};
    if (facingAway)
        std::reverse(nodes.begin(), nodes.end());
    return nodes;
}

int TestFile::AddElement(std::vector<Piggyback> items) {
    const int element = record.NumElements++;
    for (size_t position = 0; position < items.size(); ++position)
        items[position].Number = static_cast<int16_t>(element * 100 + position);
    ElementList& list = record.Elements.back();
    list.Count = static_cast<int16_t>(items.size());
    list.Items = std::move(items);
    list.Items.emplace_back();
    record.Elements.emplace_back();
    record.NRM.emplace_back();
    record.PART.emplace_back();
    record.Offsets.emplace_back();
    return element;
}

Piggyback Polygon(uint8_t type, const std::vector<uint8_t>& nodes, uint8_t cod, uint8_t flag) {
    static const std::array<std::array<uint8_t, 2>, 4> kSquareMap{
        {{0, 255}, {0, 0}, {255, 0}, {255, 255}}};
    Piggyback item;
    item.Type = type;
    item.COD = cod;
    item.Flag = flag;
    item.CRN = static_cast<uint8_t>(nodes.size());
    item.NodeList = nodes;
    item.NodeList.push_back(0);
    for (size_t corner = 0; corner <= nodes.size(); ++corner) {
        const auto& map = kSquareMap[corner % kSquareMap.size()];
        item.XMap.push_back(map[0]);
        item.YMap.push_back(map[1]);
    }
    return item;
}

void InstallFamily(std::vector<FileRecord> files) {
    model& current = CurrentModel();
    current.Files.assign(kFileSlots, FileRecord{});
    for (size_t slot = 0; slot < files.size(); ++slot)
        current.Files[slot] = std::move(files[slot]);
    for (size_t slot = 0; slot < current.Files.size(); ++slot)
        current.Files[slot].Index = static_cast<int16_t>(slot);
    current.M_Type = kMoxLoaded;
    current.m_currnode = -1;
    current.m_zoom = kCameraDistance;
    View().ViewMode = kPerspectiveView;
}

QPoint OnScreen(double x, double y, double z) {
    std::array<GLdouble, 16> modelview{};
    std::array<GLdouble, 16> projection{};
    std::array<GLint, 4> viewport{};
    glGetDoublev(GL_MODELVIEW_MATRIX, modelview.data());
    glGetDoublev(GL_PROJECTION_MATRIX, projection.data());
    glGetIntegerv(GL_VIEWPORT, viewport.data());
    std::array<GLdouble, 3> window{};
    gluProject(x, y, z, modelview.data(), projection.data(), viewport.data(), &window[0],
               &window[1], &window[2]);
    return {static_cast<int>(std::lround(window[0])),
            viewport[3] - 1 - static_cast<int>(std::lround(window[1]))};
}

int32_t StripTexture(const std::vector<Rgb>& texels) {
    std::vector<uint8_t> pixels;
    for (const Rgb& texel : texels)
        pixels.insert(pixels.end(), texel.begin(), texel.end());
    GLuint name = 0;
    glGenTextures(1, &name);
    glBindTexture(GL_TEXTURE_2D, name);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, static_cast<GLsizei>(texels.size()), 1, 0, GL_RGB,
                 GL_UNSIGNED_BYTE, pixels.data());
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    return static_cast<int32_t>(name);
}

bool Near(const Rgb& a, const Rgb& b, int tolerance) {
    return std::equal(a.begin(), a.end(), b.begin(),
                      [tolerance](int x, int y) { return std::abs(x - y) <= tolerance; });
}
