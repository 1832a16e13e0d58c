#include "moxdraw.h"

#include "displaystates.h"
#include "nodeposition.h"
#include "piggybacknumber.h"
#include "sequencewalk.h"
#include "viewsettings.h"

#include <GL/gl.h>

#include <algorithm>
#include <limits>

namespace {

// Hardpoints are black dots of 20 point units, unselected nodes grow with the line weight, the
// selected node does not.
constexpr float kHardpointPointUnits = 20.0f;
constexpr float kNodePointUnits = 20.0f;
constexpr float kSelectedNodePointUnits = 50.0f;
constexpr int kAxisLineLength = 10;
constexpr float kTickedAxisExtraWidth = 2.0f;
// Colour options and map bytes run 0..255; colours are divided by 256, map bytes by 255.
constexpr float kColourDivisor = 256.0f;
constexpr float kMapDivisor = 255.0f;
constexpr int kLastMapValue = 255;
constexpr int kPiggybacksPerElementNumber = 100;
constexpr uint8_t kTypeColouredLine = 1;
constexpr uint8_t kTypeHardpoint = 2;
constexpr uint8_t kFirstMappedType = 5;
constexpr GLuint kFileName = 0;

// The last tick of "Rendering Sequence" seen; the depth test is on while it is false.
bool sequenceOn = false;

void Vertex(const NodePosition& at) {
    glVertex3f(at.x, at.y, at.z);
}

bool IsCurrentFile(const FileRecord& record, const DrawSettings& settings) {
    return record.Index == settings.currmox;
}

// A polygon with one of the state codes shows only while its Flag equals that state.
bool HiddenByState(const Piggyback& item, const DrawSettings& settings) {
    return HiddenByState(item, DisplayStates{settings.pilot, settings.lg, settings.wing});
}

void DrawHardpoint(const FileRecord& record, const Piggyback& item, const Node& displacement,
                   const DrawSettings& settings) {
    NodePosition at;
    if (item.NodeList.empty() || !AssembledPosition(record, item.NodeList[0], displacement, at))
        return;
    glEnable(GL_POINT_SMOOTH);
    glDisable(GL_TEXTURE_2D);
    glPointSize(record.PointStep * kHardpointPointUnits);
    glColor3f(0.0f, 0.0f, 0.0f);
    glBegin(GL_POINTS);
    Vertex(at);
    glEnd();
    glColor3f(1.0f, 1.0f, 1.0f);
    glDisable(GL_POINT_SMOOTH);
    if (settings.texture)
        glEnable(GL_TEXTURE_2D);
}

// Corners go to GL in reverse order, so a polygon whose stored corners run clockwise is seen
// from the front. A corner that cannot be painted ends the polygon there.
void DrawPolygon(const FileRecord& record, const Piggyback& item, int16_t number,
                 const Node& displacement, const DrawSettings& settings) {
    if (HiddenByState(item, settings))
        return;
    if (IsCurrentFile(record, settings) && settings.currentTab == kElementsTab)
        glLoadName(static_cast<GLuint>(number));
    const bool mapped = item.Type >= kFirstMappedType;
    const int corners = item.CRN;
    glBegin(GL_POLYGON);
    for (int corner = corners - 1; corner >= 0; --corner) {
        NodePosition at;
        if (corner >= static_cast<int>(item.NodeList.size()) ||
            !AssembledPosition(record, item.NodeList[corner], displacement, at))
            break;
        if (mapped) {
            if (corner >= static_cast<int>(item.XMap.size()) ||
                corner >= static_cast<int>(item.YMap.size()))
                break;
            glTexCoord2f(item.XMap[corner] / kMapDivisor,
                         (kLastMapValue - item.YMap[corner]) / kMapDivisor);
        }
        Vertex(at);
    }
    glEnd();
}

void DrawAxisLine(const NodePosition& origin, int dx, int dy, int dz, GLuint name, bool ticked,
                  const DrawSettings& settings) {
    glLineWidth(settings.lineWeight + (ticked ? kTickedAxisExtraWidth : 0.0f));
    if (settings.move)
        glLoadName(name);
    glBegin(GL_LINES);
    Vertex(origin);
    glVertex3f(origin.x + dx, origin.y + dy, origin.z + dz);
    glEnd();
}

// The origin of the axis lines: corner 0 of the selected piggyback in the Elements tab, the
// selected node in the Nodes tab. False when there is no selection there, or it cannot be placed.
bool AxisOrigin(const FileRecord& record, const Node& displacement, const DrawSettings& settings,
                NodePosition& origin) {
    if (settings.currentTab == kElementsTab && settings.currelem != -1) {
        const Piggyback* item = FindPiggyback(record, settings.currelem);
        return item != nullptr && !item->NodeList.empty() &&
               AssembledPosition(record, item->NodeList[0], displacement, origin);
    }
    if (settings.currentTab == kNodesTab && settings.currnode != -1)
        return AssembledPosition(record, settings.currnode, displacement, origin);
    return false;
}

void DrawAxisLines(const FileRecord& record, const Node& displacement,
                   const DrawSettings& settings) {
    NodePosition origin;
    if (!IsCurrentFile(record, settings) || !AxisOrigin(record, displacement, settings, origin))
        return;
    glDisable(GL_TEXTURE_2D);
    glColor3f(1.0f, 0.0f, 0.0f);
    DrawAxisLine(origin, kAxisLineLength, 0, 0, kAxisX, settings.axisX, settings);
    glColor3f(0.0f, 1.0f, 0.0f);
    DrawAxisLine(origin, 0, kAxisLineLength, 0, kAxisY, settings.axisY, settings);
    glColor3f(0.0f, 0.0f, 1.0f);
    DrawAxisLine(origin, 0, 0, kAxisLineLength, kAxisZ, settings.axisZ, settings);
    glLineWidth(settings.lineWeight);
    glEnable(GL_TEXTURE_2D);
}

// Textured faces, or outlines without a texture.
void SetFaceStyle(const FileRecord& record, const DrawSettings& settings) {
    if (settings.texture) {
        glColor3f(1.0f, 1.0f, 1.0f);
        glEnable(GL_TEXTURE_2D);
        glBindTexture(GL_TEXTURE_2D, static_cast<GLuint>(record.TextureID));
        glPolygonMode(GL_FRONT, GL_FILL);
    } else {
        glColor3f(0.0f, 0.0f, 0.0f);
        glDisable(GL_TEXTURE_2D);
        glPolygonMode(GL_FRONT, GL_LINE);
    }
}

// The depth test follows the rendering sequence, switched once on the first frame of a change.
void FollowSequenceTick(const DrawSettings& settings) {
    if (settings.sequence == sequenceOn)
        return;
    sequenceOn = settings.sequence;
    if (sequenceOn)
        glDisable(GL_DEPTH_TEST);
    else
        glEnable(GL_DEPTH_TEST);
}

void DrawPiggyback(const FileRecord& record, const Piggyback& item, int16_t number,
                   const Node& displacement, const DrawSettings& settings) {
    glColor3f(1.0f, 1.0f, 1.0f);
    glLineWidth(settings.lineWeight);
    if (!settings.texture) {
        glPolygonMode(GL_FRONT, GL_LINE);
        glColor3f(settings.lineColour.red / kColourDivisor,
                  settings.lineColour.green / kColourDivisor,
                  settings.lineColour.blue / kColourDivisor);
        glDisable(GL_TEXTURE_2D);
    }
    // The selected piggyback is solid red in line view and red-tinted over its texture.
    if (item.Number == settings.currelem && IsCurrentFile(record, settings)) {
        glColor3f(1.0f, 0.0f, 0.0f);
        glPolygonMode(GL_FRONT, GL_FILL);
    }
    DrawElement(record, number, displacement, settings);
    // The outline keeps the colour set above: white over a texture, the line colour, or red.
    if (settings.faces) {
        glDisable(GL_TEXTURE_2D);
        glPolygonMode(GL_FRONT, GL_LINE);
        DrawElement(record, number, displacement, settings);
        glPolygonMode(GL_FRONT, GL_FILL);
        glEnable(GL_TEXTURE_2D);
    }
}

// Every piggyback in stored order. The number is packed as the program packs it, so a position
// of 100 or more names a piggyback of a later element, as the selection does.
void DrawInStoredOrder(const FileRecord& record, const Node& displacement,
                       const DrawSettings& settings) {
    const int elements =
        std::min<int>(record.NumElements, static_cast<int>(record.Elements.size()));
    for (int element = 0; element < elements; ++element) {
        const ElementList& list = record.Elements[element];
        const int count = std::min<int>(list.Count, static_cast<int>(list.Items.size()));
        for (int position = 0; position < count; ++position) {
            const int number = element * kPiggybacksPerElementNumber + position;
            if (number > std::numeric_limits<int16_t>::max())
                return;
            DrawPiggyback(record, list.Items[position], static_cast<int16_t>(number), displacement,
                          settings);
        }
    }
}

} // namespace

DrawSettings DrawSettingsOf(const FrameSource& source) {
    const ViewSettings& view = source.view;
    DrawSettings settings;
    settings.texture = view.mnu_v_texture;
    settings.faces = view.mnu_v_faces;
    settings.nodes = view.mnu_v_nodes;
    settings.sequence = view.mnu_v_rs;
    settings.move = view.mnu_m_move;
    settings.axisX = view.mnu_m_a_x;
    settings.axisY = view.mnu_m_a_y;
    settings.axisZ = view.mnu_m_a_z;
    settings.lineWeight = source.options.LineWeight;
    settings.lineColour = source.options.LineColour;
    settings.currentTab = view.CurrentTab;
    if (const model* current = source.current) {
        settings.currmox = current->m_currmox;
        settings.currelem = current->m_currelem;
        settings.currnode = current->m_currnode;
        settings.pilot = current->m_pilot;
        settings.lg = current->m_lg;
        settings.wing = current->m_wing;
        settings.xrot = current->m_xrot;
        settings.yrot = current->m_yrot;
    }
    return settings;
}

void DrawFile(const FileRecord& record, const Node& displacement, const DrawSettings& settings) {
    if (!record.Loaded)
        return;
    glDrawBuffer(GL_BACK);
    glInitNames();
    glPushName(kFileName);
    DrawNodes(record, displacement, settings);
    // Back faces are neither seen nor picked; nothing turns culling off again.
    glEnable(GL_CULL_FACE);
    SetFaceStyle(record, settings);
    FollowSequenceTick(settings);
    if (sequenceOn)
        WalkSequence(record, record.Root[0], true, displacement, settings);
    else
        DrawInStoredOrder(record, displacement, settings);
    DrawAxisLines(record, displacement, settings);
}

void DrawNodes(const FileRecord& record, const Node& displacement, const DrawSettings& settings) {
    if (!settings.nodes)
        return;
    // Smoothing stays on until a hardpoint turns it off.
    glEnable(GL_POINT_SMOOTH);
    glDisable(GL_TEXTURE_2D);
    const bool currentFile = IsCurrentFile(record, settings);
    const bool pickNodes = currentFile && settings.currentTab == kNodesTab;
    const float nodeSize = (settings.lineWeight * 2 + kNodePointUnits) * record.PointStep;
    const int nodes = std::min<int>(record.NumNodes, static_cast<int>(record.Nodes.size()));
    for (int index = 0; index < nodes; ++index) {
        NodePosition at;
        if (!AssembledPosition(record, index, displacement, at))
            continue;
        if (pickNodes)
            glLoadName(static_cast<GLuint>(index));
        if (currentFile && index == settings.currnode) {
            glColor3f(1.0f, 0.5f, 0.15f);
            glPointSize(record.PointStep * kSelectedNodePointUnits);
        } else {
            glColor3f(0.0f, 0.0f, 1.0f);
            glPointSize(nodeSize);
        }
        glBegin(GL_POINTS);
        Vertex(at);
        glEnd();
    }
    glColor3f(1.0f, 1.0f, 1.0f);
}

void DrawElement(const FileRecord& record, int16_t number, const Node& displacement,
                 const DrawSettings& settings) {
    // Every negative number names no piggyback, whatever its digits.
    if (number < 0)
        return;
    const int element = number / kPiggybacksPerElementNumber;
    const int position = number % kPiggybacksPerElementNumber;
    if (element >= record.NumElements || element >= static_cast<int>(record.Elements.size()))
        return;
    const ElementList& list = record.Elements[element];
    if (position >= list.Count || position >= static_cast<int>(list.Items.size()))
        return;
    const Piggyback& item = list.Items[position];
    switch (item.Type) {
    case 0:
    case kTypeColouredLine:
    case kTypeNull:
        return;
    case kTypeHardpoint:
        DrawHardpoint(record, item, displacement, settings);
        return;
    default:
        DrawPolygon(record, item, number, displacement, settings);
    }
}

bool SequenceOn() {
    return sequenceOn;
}
