// Program-wide view state: the camera and tool in use, the shown panel tab, and the menu ticks
// that the painter reads on every frame.
#pragma once

#include "axiscode.h"

#include <cstdint>

// ViewMode values: six orthographic cameras along the model's axes and the free perspective one.
enum ViewModeValue : int32_t {
    kLeftView = 0,
    kTopView = 1,
    kFrontView = 2,
    kUndersideView = 3,
    kRightView = 4,
    kBackView = 5,
    kPerspectiveView = 6
};

// ToolMode values: what the left mouse button does in the view.
enum ToolModeValue : int32_t {
    kPanTool = 1,
    kRotateTool = 2,
    kZoomTool = 3,
    kPickTool = 4,
    kMoveTool = 5,
    kBankTool = 6
};

// CurrentTab values: the tabs of the property panels.
enum TabNumber : int32_t {
    kModelInfoTab = 1,
    kPartsTab = 2,
    kElementsTab = 3,
    kNodesTab = 4,
    kCentreMoverTab = 5,
    kNotepadTab = 6,
    kThreeViewDataTab = 7
};

struct ViewSettings {
    int32_t ViewMode = kPerspectiveView;
    int32_t ToolMode = kPickTool;
    // Axis of the Move tool: 0 until the first load, then 30000, 30001 or 30002.
    int32_t ModifyAxis = 0;
    // Number of the shown panel tab, 1 to 7; 0 until the tab switch first runs.
    int32_t CurrentTab = 0;

    // The ticks of the menu entries of the same names. The window's menu entries write them; the
    // painter only reads them.
    bool mnu_v_texture = true;
    bool mnu_v_faces = false;
    bool mnu_v_nodes = false;
    bool mnu_v_rs = false;
    bool mnu_m_move = false;
    bool mnu_m_a_x = true;
    bool mnu_m_a_y = false;
    bool mnu_m_a_z = false;

    // "Only Show This MOX?": paint the current file of the family alone.
    bool chk_thismox = false;
};

// The one program-wide view state.
ViewSettings& View();
// Back to the start values (used at start-up and by tests).
void ResetViewSettings();
