// Mod_MOX_Draw: the painter of one file of the model family — its nodes, its elements with their
// piggybacks, and the axis lines at the selected item — for the screen and the picking pass alike.
#pragma once

#include "filerecord.h"
#include "framesource.h"

#include <cstdint>

// Everything the painter reads besides the file record: the menu ticks, the line options, the
// open tab, the selection, the display states and the heading and pitch the rendering sequence
// looks along. Taken from the frame's source once per frame, so the piggyback loop reads plain
// values.
struct DrawSettings {
    bool texture = true;   // mnu_v_texture
    bool faces = false;    // mnu_v_faces
    bool nodes = false;    // mnu_v_nodes
    bool sequence = false; // mnu_v_rs
    bool move = false;     // mnu_m_move
    bool axisX = true;     // mnu_m_a_x
    bool axisY = false;    // mnu_m_a_y
    bool axisZ = false;    // mnu_m_a_z
    int16_t lineWeight = 1;
    Colour lineColour{255, 255, 255};
    int32_t currentTab = 0;
    int16_t currmox = 0;
    int16_t currelem = -1;
    int16_t currnode = -1;
    int32_t pilot = 0;
    int32_t lg = 1;
    int32_t wing = 0;
    float xrot = 0.0f; // m_xrot
    float yrot = 0.0f; // m_yrot
};

// The settings of a frame drawn from `source`.
DrawSettings DrawSettingsOf(const FrameSource& source);

// Paints `record` moved by `displacement`, the file's hardpoint in the main file.
void DrawFile(const FileRecord& record, const Node& displacement, const DrawSettings& settings);
// The nodes of `record` as points, the selected one larger and orange.
void DrawNodes(const FileRecord& record, const Node& displacement, const DrawSettings& settings);
// The piggyback that `number` (element * 100 + position) names, in the colour and polygon mode
// the caller set.
void DrawElement(const FileRecord& record, int16_t number, const Node& displacement,
                 const DrawSettings& settings);

// The stored rendering sequence flag: the last tick of "Rendering Sequence" the painter saw.
bool SequenceOn();
