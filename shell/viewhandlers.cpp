// The View and Tools menus of frm_main: the seven cameras, the mouse tools, the axis of the Move
// tool, the drawing toggles and the aircraft's display states, each with its toolbar button.
#include "mainwindow.h"

#include "currentmodel.h"
#include "glview.h"
#include "homecamera.h"
#include "oglgraphics.h"
#include "orthocamera.h"
#include "statebuttons.h"
#include "toolbarimages.h"

#include <QAction>
#include <QLabel>

#include <cstring>

namespace {

// Every orthographic view starts at this half-height in model units, without pan.
constexpr float kOrthoStartZoom = 125.0f;

struct ViewLine {
    int32_t mode;
    const char* entry;
    const char* button;
};

constexpr ViewLine kViews[] = {
    {kLeftView, "mnu_v_left", "Left"},          {kTopView, "mnu_v_top", "Top"},
    {kFrontView, "mnu_v_front", "Front"},       {kUndersideView, "mnu_v_underside", "Underside"},
    {kRightView, "mnu_v_right", "Right"},       {kBackView, "mnu_v_back", "Back"},
    {kPerspectiveView, "mnu_v_persp", "Persp"},
};

struct ToolLine {
    int32_t tool;
    const char* entry;
    const char* button;
    const char* help;
    // The pointer over the view: an image of ImgLst_Toolbar, or a standard shape.
    const char* pointerImage;
    Qt::CursorShape pointerShape;
};

const ToolLine kTools[] = {
    {kPanTool, "mnu_v_pan", "Pan", "Left Mouse: PAN\nRight Mouse: ZOOM/ROTATE", "CUR_PAN",
     Qt::ArrowCursor},
    {kRotateTool, "mnu_v_rotate", "Rotate", "Left Mouse: ROTATE\nRight Mouse: PAN", "CUR_ROTATE",
     Qt::ArrowCursor},
    {kZoomTool, "mnu_v_zoom", "Zoom", "Left Mouse: ZOOM", "CUR_ZOOM", Qt::ArrowCursor},
    {kPickTool, "mnu_m_pick", "Pick", "Left Mouse: PICK", nullptr, Qt::ArrowCursor},
    {kMoveTool, "mnu_m_move", "Move", "Left Mouse: MOVE POINT\nLeft Mouse + CTRL: PICK", nullptr,
     Qt::SizeAllCursor},
    {kBankTool, "mnu_v_bank", "Bank", "Left Mouse: BANK\nRight Mouse: ROTATE", "Bank",
     Qt::ArrowCursor},
};

struct AxisLine {
    int32_t axis;
    const char* entry;
    const char* button;
    bool ViewSettings::*tick;
};

constexpr AxisLine kAxes[] = {
    {kAxisX, "mnu_m_a_x", "X", &ViewSettings::mnu_m_a_x},
    {kAxisY, "mnu_m_a_y", "Y", &ViewSettings::mnu_m_a_y},
    {kAxisZ, "mnu_m_a_z", "Z", &ViewSettings::mnu_m_a_z},
};

void Press(QAction* action) {
    if (action != nullptr)
        action->setChecked(true);
}

} // namespace

// Ticks the entry of `mode` alone and presses its button.
void frm_main::TickView(int32_t mode) {
    View().ViewMode = mode;
    for (const ViewLine& line : kViews) {
        if (line.mode == mode) {
            Press(Entry(line.entry));
            Press(Button(line.button));
        }
    }
}

void frm_main::ShowOrthoView(int32_t mode) {
    TickView(mode);
    float zoom = kOrthoStartZoom;
    float x = 0.0f;
    float y = 0.0f;
    if (OGL().MakeCurrent()) {
        SetOrtho(zoom, x, y);
    } else {
        model& current = CurrentModel();
        current.m_zoom = zoom;
        current.m_xpos = x;
        current.m_ypos = y;
    }
    glView->update();
}

void frm_main::mnu_v_left_Click() {
    ShowOrthoView(kLeftView);
}

void frm_main::mnu_v_top_Click() {
    ShowOrthoView(kTopView);
}

void frm_main::mnu_v_front_Click() {
    ShowOrthoView(kFrontView);
}

void frm_main::mnu_v_underside_Click() {
    ShowOrthoView(kUndersideView);
}

void frm_main::mnu_v_right_Click() {
    ShowOrthoView(kRightView);
}

void frm_main::mnu_v_back_Click() {
    ShowOrthoView(kBackView);
}

void frm_main::mnu_v_persp_Click() {
    TickView(kPerspectiveView);
    ResetPerspectiveCamera(CurrentModel());
    if (OGL().MakeCurrent()) {
        const qreal ratio = glView->devicePixelRatio();
        OGL().ReSizeGLScene(static_cast<int>(glView->width() * ratio),
                            static_cast<int>(glView->height() * ratio));
    }
    glView->update();
}

// "Zoom Extents" is the fixed perspective camera, whatever the model's size.
void frm_main::mnu_v_zoomextents_Click() {
    mnu_v_persp_Click();
}

void frm_main::ChooseTool(int32_t tool) {
    for (const ToolLine& line : kTools) {
        if (line.tool != tool)
            continue;
        View().ToolMode = tool;
        View().mnu_m_move = tool == kMoveTool;
        Press(Entry(line.entry));
        Press(Button(line.button));
        lbl_help->setText(line.help);
    }
    RestoreToolPointer();
}

void frm_main::RestoreToolPointer() {
    for (const ToolLine& line : kTools) {
        if (line.tool != View().ToolMode)
            continue;
        if (line.pointerImage != nullptr)
            glView->setCursor(ToolbarCursor(line.pointerImage));
        else
            glView->setCursor(line.pointerShape);
    }
}

void frm_main::mnu_v_pan_Click() {
    ChooseTool(kPanTool);
}

void frm_main::mnu_v_rotate_Click() {
    ChooseTool(kRotateTool);
}

void frm_main::mnu_v_zoom_Click() {
    ChooseTool(kZoomTool);
}

void frm_main::mnu_m_pick_Click() {
    ChooseTool(kPickTool);
}

void frm_main::mnu_m_move_Click() {
    ChooseTool(kMoveTool);
}

void frm_main::mnu_v_bank_Click() {
    ChooseTool(kBankTool);
}

void frm_main::ChooseAxis(int32_t axis) {
    for (const AxisLine& line : kAxes) {
        View().*line.tick = line.axis == axis;
        if (line.axis == axis) {
            Press(Entry(line.entry));
            Press(Button(line.button));
        }
    }
    View().ModifyAxis = axis;
}

void frm_main::mnu_m_a_x_Click() {
    ChooseAxis(kAxisX);
}

void frm_main::mnu_m_a_y_Click() {
    ChooseAxis(kAxisY);
}

void frm_main::mnu_m_a_z_Click() {
    ChooseAxis(kAxisZ);
}

// The entry's change of tick writes the view state and sets the button (see AddViewTick).
void frm_main::FlipToggle(const char* entry) {
    Entry(entry)->toggle();
}

void frm_main::mnu_v_texture_Click() {
    FlipToggle("mnu_v_texture");
}

void frm_main::mnu_v_faces_Click() {
    FlipToggle("mnu_v_faces");
}

void frm_main::mnu_v_nodes_Click() {
    FlipToggle("mnu_v_nodes");
}

void frm_main::mnu_v_rs_Click() {
    FlipToggle("mnu_v_rs");
}

void frm_main::SetState(const char* button, int value) {
    const StateButton* state = FindStateButton(button);
    if (state == nullptr)
        return;
    CurrentModel().*(state->field) = value;
    if (const StateChoice* choice = ChoiceOf(*state, value))
        SetButtonImage(button, choice->image);
}

void frm_main::StepState(const char* button) {
    if (const StateButton* state = FindStateButton(button))
        SetState(button, NextState(*state, CurrentModel().*(state->field)));
}

void frm_main::Pilot_Click() {
    StepState("Pilot");
}

void frm_main::LG_Click() {
    StepState("LG");
}

void frm_main::Wing_Click() {
    StepState("Wing");
}
