// The input of the view pic_render: mouse tools by button, tool and view, the Move tool's drag
// along the chosen axis, picking on press and release, the wheel and the keys.
#include "mainwindow.h"

#include "currentmodel.h"
#include "glview.h"
#include "kindandmove.h"
#include "nodetable.h"
#include "oglgraphics.h"
#include "orthocamera.h"
#include "picking.h"
#include "toolbarimages.h"
#include "viewsettings.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;
constexpr int kShiftMask = 1;
constexpr int kCtrlMask = 2;
constexpr float kNoPosition = -1.0f;

// Factors of the mouse tools: a perspective pan moves the eye by half a pixel's motion, an
// orthographic zoom or pan by a quarter.
constexpr float kPerspectivePanStep = 0.5f;
constexpr float kOrthoStep = 0.25f;
constexpr float kArrowStep = 2.0f;

enum VirtualKey : int {
    kKeyLeft = 37,
    kKeyUp = 38,
    kKeyRight = 39,
    kKeyDown = 40,
    kKeyA = 65,
    kKeyZ = 90,
    kKeypadPlus = 107,
    kKeypadMinus = 109,
    kKeyF1 = 112,
    kKeyF7 = 118,
};

bool Perspective() {
    return View().ViewMode == kPerspectiveView;
}

void OrthoFollows() {
    model& current = CurrentModel();
    SetOrtho(current.m_zoom, current.m_xpos, current.m_ypos);
}

int ShiftMask(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? kShiftMask : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? kCtrlMask : 0);
}

int ButtonMask(Qt::MouseButtons buttons) {
    return (buttons.testFlag(Qt::LeftButton) ? kLeftButton : 0) |
           (buttons.testFlag(Qt::RightButton) ? kRightButton : 0);
}

int VirtualKeyOf(const QKeyEvent& event) {
    const int key = event.key();
    if (event.modifiers().testFlag(Qt::KeypadModifier)) {
        if (key == Qt::Key_Plus)
            return kKeypadPlus;
        if (key == Qt::Key_Minus)
            return kKeypadMinus;
    }
    switch (key) {
    case Qt::Key_Left:
        return kKeyLeft;
    case Qt::Key_Up:
        return kKeyUp;
    case Qt::Key_Right:
        return kKeyRight;
    case Qt::Key_Down:
        return kKeyDown;
    default:
        break;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F7)
        return kKeyF1 + (key - Qt::Key_F1);
    if (key >= Qt::Key_A && key <= Qt::Key_Z)
        return key;
    return 0;
}

// A pick position: whole pixels of the GL surface.
int16_t PickPixel(float position, qreal ratio) {
    return static_cast<int16_t>(std::floor(position * ratio));
}

// A drag step in model units, kept to the 16-bit distance the moving operations take.
int32_t DragDistance(float motion) {
    return static_cast<int32_t>(std::clamp<double>(std::round(motion),
                                                   std::numeric_limits<int16_t>::min(),
                                                   std::numeric_limits<int16_t>::max()));
}

} // namespace

void frm_main::RouteViewEvent(QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const int button = ButtonMask(mouse->button());
        const int shift = ShiftMask(mouse->modifiers());
        const QPointF at = mouse->position();
        if (event->type() == QEvent::MouseButtonPress)
            pic_render_MouseDown(button, shift, static_cast<float>(at.x()),
                                 static_cast<float>(at.y()));
        else
            pic_render_MouseUp(button, shift, static_cast<float>(at.x()),
                               static_cast<float>(at.y()));
        break;
    }
    case QEvent::MouseMove: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const QPointF at = mouse->position();
        pic_render_MouseMove(ButtonMask(mouse->buttons()), ShiftMask(mouse->modifiers()),
                             static_cast<float>(at.x()), static_cast<float>(at.y()));
        break;
    }
    case QEvent::Wheel: {
        const auto* wheel = static_cast<QWheelEvent*>(event);
        if (MainWindowActive()) {
            const QPoint at = wheel->position().toPoint();
            MouseWheel(ButtonMask(wheel->buttons()) | ShiftMask(wheel->modifiers()),
                       wheel->angleDelta().y(), at.x(), at.y());
        }
        break;
    }
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        pic_render_KeyDown(VirtualKeyOf(*key), ShiftMask(key->modifiers()));
        break;
    }
    default:
        break;
    }
}

// The view is a window of its own inside this one: while it holds the focus, this window is the
// active one.
bool frm_main::MainWindowActive() const {
    return isActiveWindow() || QGuiApplication::focusWindow() == glView;
}

void frm_main::MouseWheel([[maybe_unused]] int32_t MouseKeys, int32_t Rotation,
                          [[maybe_unused]] int32_t Xpos, [[maybe_unused]] int32_t Ypos) {
    model& current = CurrentModel();
    if (current.M_Type == kNothingLoaded)
        return;
    if (Perspective()) {
        current.m_zoom += static_cast<float>(Rotation);
    } else {
        current.m_zoom += static_cast<float>(Rotation) * kOrthoStep;
        OrthoFollows();
    }
    OGL().RequestFrame();
}

void frm_main::pic_render_MouseDown([[maybe_unused]] int Button, [[maybe_unused]] int Shift,
                                    float X, float Y) {
    if (View().ToolMode != kMoveTool)
        return;
    const qreal ratio = glView->devicePixelRatio();
    ProcessSelectionMove(*this, PickPixel(X, ratio), PickPixel(Y, ratio));
}

void frm_main::pic_render_MouseUp([[maybe_unused]] int Button, int Shift, float X, float Y) {
    const int32_t tool = View().ToolMode;
    if (tool == kPickTool || (tool == kMoveTool && Shift == kCtrlMask)) {
        const qreal ratio = glView->devicePixelRatio();
        ProcessSelection(PickPixel(X, ratio), PickPixel(Y, ratio));
    }
    RestoreToolPointer();
}

void frm_main::pic_render_MouseMove(int Button, [[maybe_unused]] int Shift, float X, float Y) {
    if (CurrentModel().M_Type == kNothingLoaded)
        return;
    if (Button == kLeftButton) {
        LeftDrag(X, Y);
    } else if (Button == kRightButton) {
        RightDrag(X, Y);
    } else {
        LastX = kNoPosition;
        LastY = kNoPosition;
    }
}

void frm_main::LeftDrag(float x, float y) {
    switch (View().ToolMode) {
    case kZoomTool:
        ZoomDrag(x, y);
        break;
    case kPanTool:
        PanDrag(x, y);
        break;
    case kRotateTool:
        RotateDrag(x, y);
        break;
    case kBankTool:
        BankDrag(x, y);
        break;
    case kMoveTool:
        MoveToolDrag(x, y);
        break;
    default:
        LastX = kNoPosition;
        LastY = kNoPosition;
        break;
    }
}

// The right button works the tool that the help line names for it, with its pointer.
void frm_main::RightDrag(float x, float y) {
    const int32_t tool = View().ToolMode;
    if (tool == kRotateTool) {
        glView->setCursor(ToolbarCursor("CUR_PAN"));
        PanDrag(x, y);
    } else if (Perspective() && (tool == kPanTool || tool == kBankTool)) {
        glView->setCursor(ToolbarCursor("CUR_ROTATE"));
        RotateDrag(x, y);
    } else if (!Perspective() && tool == kPanTool) {
        glView->setCursor(ToolbarCursor("CUR_ZOOM"));
        ZoomDrag(x, y);
    }
}

// Zoom follows the vertical motion only, and keeps only the last height.
void frm_main::ZoomDrag([[maybe_unused]] float x, float y) {
    if (LastY != kNoPosition) {
        model& current = CurrentModel();
        const float dY = y - LastY;
        if (Perspective()) {
            current.m_zoom += dY;
        } else {
            current.m_zoom += dY * kOrthoStep;
            OrthoFollows();
        }
    }
    LastY = y;
    OGL().RequestFrame();
}

void frm_main::PanDrag(float x, float y) {
    if (LastY != kNoPosition) {
        model& current = CurrentModel();
        const float dX = x - LastX;
        const float dY = y - LastY;
        if (Perspective()) {
            current.m_xpos += dX * kPerspectivePanStep;
            current.m_ypos -= dY * kPerspectivePanStep;
        } else {
            current.m_xpos -= dX * kOrthoStep;
            current.m_ypos -= dY * kOrthoStep;
            OrthoFollows();
        }
    }
    LastX = x;
    LastY = y;
    OGL().RequestFrame();
}

// The orthographic views keep their fixed turn: rotating there only follows the pointer.
void frm_main::RotateDrag(float x, float y) {
    if (LastX != kNoPosition && Perspective()) {
        model& current = CurrentModel();
        current.m_xrot += x - LastX;
        current.m_yrot -= y - LastY;
    }
    LastX = x;
    LastY = y;
    OGL().RequestFrame();
}

void frm_main::BankDrag(float x, float y) {
    if (LastX != kNoPosition && Perspective())
        CurrentModel().m_bank += x - LastX;
    LastX = x;
    LastY = y;
    OGL().RequestFrame();
}

// Each event moves the selection by the motion since the last one: the horizontal motion where
// the view shows the axis across the screen, then the vertical motion where it shows it up the
// screen; a row without either keeps the distance already found. The perspective view adds both
// motions to the one axis.
void frm_main::MoveToolDrag(float x, float y) {
    const model& current = CurrentModel();
    const int32_t tab = View().CurrentTab;
    if ((tab == kNodesTab && current.m_currnode == -1) ||
        (tab != kNodesTab && current.m_currelem == -1))
        return;
    const int32_t mode = View().ViewMode;
    const int32_t axis = View().ModifyAxis;
    int32_t dist = 0;
    if (LastX != kNoPosition) {
        if (mode == kPerspectiveView)
            dist = DragDistance(x - LastX);
        else if ((mode == kTopView && axis == kAxisY) || (mode == kLeftView && axis == kAxisX) ||
                 (mode == kFrontView && axis == kAxisY))
            dist = DragDistance(LastX - x);
        MoveSelection(dist);
    }
    if (LastY != kNoPosition) {
        if (mode == kPerspectiveView)
            dist = DragDistance(y - LastY);
        else if ((mode == kTopView && axis == kAxisX) ||
                 ((mode == kLeftView || mode == kFrontView) && axis == kAxisZ))
            dist = DragDistance(LastY - y);
        MoveSelection(dist);
    }
    LastX = x;
    LastY = y;
    OGL().RequestFrame();
    current.WriteInfo(kElementsTab);
}

// A motion that moves nothing leaves the file alone.
void frm_main::MoveSelection(int32_t dist) {
    if (dist == 0)
        return;
    model& current = CurrentModel();
    const auto step = static_cast<int16_t>(dist);
    if (View().CurrentTab == kElementsTab)
        MoveElement(current, current.m_currelem, View().ModifyAxis, step);
    else if (View().CurrentTab == kNodesTab)
        MoveNode(current, current.m_currnode, View().ModifyAxis, step);
}

void frm_main::pic_render_KeyDown(int KeyCode, int Shift) {
    if (Perspective())
        ArrowKey(KeyCode, Shift);
    if (KeyCode >= kKeyF1 && KeyCode <= kKeyF7)
        SelectTab(KeyCode - kKeyF1 + 1);
    else if (KeyCode >= kKeyA && KeyCode <= kKeyZ)
        LetterKey(KeyCode);

    // Keypad plus brings the model closer in both kinds of view.
    const int step = KeyCode == kKeypadPlus ? 1 : KeyCode == kKeypadMinus ? -1 : 0;
    model& current = CurrentModel();
    if (Perspective()) {
        current.m_zoom += static_cast<float>(step);
    } else {
        current.m_zoom -= static_cast<float>(step);
        OrthoFollows();
    }
}

// The arrows fly the perspective camera: turn by default, bank with Shift, slide with Ctrl.
void frm_main::ArrowKey(int KeyCode, int Shift) {
    model& current = CurrentModel();
    const bool up = KeyCode == kKeyUp;
    const bool right = KeyCode == kKeyRight;
    switch (KeyCode) {
    case kKeyUp:
    case kKeyDown:
        if (Shift == kCtrlMask)
            current.m_ypos += up ? kArrowStep : -kArrowStep;
        else if (Shift == 0 || Shift == kShiftMask)
            current.m_yrot += up ? -kArrowStep : kArrowStep;
        break;
    case kKeyLeft:
    case kKeyRight:
        if ((Shift & kShiftMask) != 0)
            current.m_bank += right ? kArrowStep : -kArrowStep;
        else if (Shift == kCtrlMask)
            current.m_xpos += right ? kArrowStep : -kArrowStep;
        else if (Shift == 0)
            current.m_xrot += right ? kArrowStep : -kArrowStep;
        break;
    default:
        break;
    }
}

void frm_main::LetterKey(int KeyCode) {
    switch (KeyCode) {
    case 'A':
        return mnu_m_pick_Click();
    case 'B':
        return mnu_v_bank_Click();
    case 'C':
        return Pilot_Click();
    case 'D':
        return Wing_Click();
    case 'E':
        return mnu_v_zoomextents_Click();
    case 'F':
        return mnu_v_front_Click();
    case 'G':
        return LG_Click();
    case 'L':
        return mnu_v_left_Click();
    case 'M':
        return mnu_m_move_Click();
    case 'N':
        return mnu_v_nodes_Click();
    case 'P':
        return mnu_v_persp_Click();
    case 'Q':
        return mnu_v_zoom_Click();
    case 'R':
        return mnu_v_pan_Click();
    case 'T':
        return mnu_v_top_Click();
    case 'V':
        return mnu_v_texture_Click();
    case 'W':
        return mnu_v_faces_Click();
    case 'X':
        return mnu_m_a_x_Click();
    case 'Y':
        return mnu_m_a_y_Click();
    case 'Z':
        return mnu_m_a_z_Click();
    default:
        return;
    }
}
