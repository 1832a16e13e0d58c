// Picking and the view's input, with real mouse, wheel and key events sent to the GL surface of
// the editor window: what a click selects in each tab, the axis press and the drag of the Move
// tool, the wheel and the keys.
#include "currentmodel.h"
#include "drawscene.h"
#include "editorfixture.h"
#include "glview.h"
#include "oglgraphics.h"
#include "viewsettings.h"

#include <QAction>
#include <QTest>
#include <QVector3D>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <tuple>

namespace {

constexpr uint8_t kPilotDead = 2;
constexpr int kUntouched = 77;
constexpr int kNotch = 120;

class ViewInputTest : public EditorTest {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        host.windowSide = nullptr;
        // A file of one node at the origin, for the tests that need no more.
        TestFile file;
        file.AddNode(0, 0, 0);
        InstallFamily({file.record});
    }

    // Where a model point lands in a frame painted now; a corner of the view for the sky. A tab
    // switch lays the panes out again, and the GL surface takes its new size a little later.
    QPoint PixelOf(const std::optional<QVector3D>& at) {
        EXPECT_TRUE(
            QTest::qWaitFor([this] { return Surface().size() == Window().pic_render->size(); }));
        EXPECT_TRUE(OGL().MakeCurrent());
        OGL().RenderFrame();
        return at ? OnScreen(at->x(), at->y(), at->z()) : QPoint(3, 3);
    }
    int Spin(const char* name) { return host.spins.count(name) ? host.spins[name] : 0; }
};

// Two nodes on the line of sight at the centre, the farther one first; overlapping squares at two
// depths; two equal squares in one element; a state-hidden square beside a visible one. What the
// painters leave out (back faces, lines) the pick pass, which runs the same painters, misses too.
FileRecord PickScene() {
    TestFile file;
    file.AddNode(0, 40, 0);
    file.AddNode(0, -40, 0);
    file.AddElement({Polygon(kTextured, file.AddSquare(-30, 0, 10))});
    file.AddElement({Polygon(kTextured, file.AddSquare(-25, 0, 10, false, -20))});
    file.AddElement({Polygon(kTextured, file.AddSquare(30, 0, 10)),
                     Polygon(kTextured, file.AddSquare(30, 0, 10))});
    file.AddElement({Polygon(kTextured, file.AddSquare(0, 30, 10), kCodePilot, kPilotDead),
                     Polygon(kTextured, file.AddSquare(30, 30, 10))});
    return file.record;
}

// The square of a connected file, placed at one of the main file's hardpoints.
FileRecord ConnectedSquare() {
    TestFile file;
    file.AddElement({Polygon(kTextured, file.AddSquare(0, 0, 10))});
    return file.record;
}

} // namespace

TEST_F(ViewInputTest, ClickSelectsByTabAndRanksByDepth) {
    struct Row {
        const char* what;
        int tab;
        std::optional<QVector3D> at;
        int elem;   // m_currelem afterwards
        int node;   // m_currnode afterwards
        int handed; // Number handed to the Elements panel, or upd_4_node; kUntouched after a miss
    };
    const Row rows[] = {
        {"nearer of two overlapping polygons", 3, QVector3D{-25, -20, 0}, 100, 0, 100},
        {"equal depths keep the first painted", 3, QVector3D{30, 0, 0}, 200, 0, 200},
        {"second piggyback of an element", 3, QVector3D{30, 0, 30}, 301, 0, 301},
        {"polygon hidden by the pilot state", 3, QVector3D{0, 0, 30}, -1, -1, kUntouched},
        {"connected file, under the name each file starts with", 3, QVector3D{30, 0, -30}, 0, 0, 0},
        {"file that is not loaded", 3, QVector3D{-30, 0, 30}, -1, -1, kUntouched},
        {"sky in the Elements tab", 3, std::nullopt, -1, -1, kUntouched},
        {"lower of two nodes, the farther", 4, QVector3D{0, 0, 0}, 0, 0, 0},
        // Outside the Move tool the axis lines carry no name of their own.
        {"axis line, under the last node's name", 4, QVector3D{6, 40, 0}, 0, 25, 25},
        {"sky in the Nodes tab", 4, std::nullopt, -1, -1, kUntouched},
    };
    FileRecord unloaded = ConnectedSquare();
    unloaded.Loaded = false;
    InstallFamily({PickScene(), unloaded, FileRecord{}, ConnectedSquare()});
    std::array<Node, 8>& hardpoints = CurrentModel().Files[0].HP;
    hardpoints[1].X = -30;
    hardpoints[1].Z = 30;
    hardpoints[3].X = 30;
    hardpoints[3].Z = -30;
    View().mnu_v_nodes = true;
    Window().mnu_m_pick_Click();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        Window().SelectTab(row.tab);
        model& current = CurrentModel();
        current.m_currelem = 0;
        current.m_currnode = 0;
        const QPoint pixel = PixelOf(row.at);
        host.calls.clear();
        QTest::mouseClick(&Surface(), Qt::LeftButton, {}, pixel);
        EXPECT_EQ(current.m_currelem, row.elem);
        EXPECT_EQ(current.m_currnode, row.node);
        std::vector<std::string> handed;
        std::copy_if(host.calls.begin(), host.calls.end(), std::back_inserter(handed),
                     [](const std::string& call) {
                         return call.rfind("picked piggyback: ", 0) == 0 ||
                                call.rfind("spin upd_4_node: ", 0) == 0;
                     });
        std::vector<std::string> expected;
        if (row.handed != kUntouched)
            expected.push_back((row.tab == kNodesTab ? "spin upd_4_node: " : "picked piggyback: ") +
                               std::to_string(row.handed));
        EXPECT_EQ(handed, expected);
    }
}

TEST_F(ViewInputTest, MoveToolPressChoosesAxisAndDragMovesNode) {
    Window().SelectTab(kNodesTab);
    Window().mnu_m_move_Click();
    Window().mnu_m_a_y_Click();
    CurrentModel().m_currnode = 0;

    // A press on an axis line chooses it, with its menu entry and button; beside them nothing.
    const struct {
        std::optional<QVector3D> at;
        int32_t axis;
        const char* button;
    } presses[] = {{QVector3D{7, 0, 0}, kAxisX, "X"},
                   {QVector3D{0, 0, 7}, kAxisZ, "Z"},
                   {std::nullopt, kAxisZ, "Z"}};
    for (const auto& press : presses) {
        QTest::mouseClick(&Surface(), Qt::LeftButton, {}, PixelOf(press.at));
        EXPECT_EQ(View().ModifyAxis, press.axis);
        EXPECT_TRUE(Window().Button(press.button)->isChecked()) << press.button;
    }

    // In the Left view, after a first move that only takes the position, whatever its jump.
    const struct {
        int32_t axis;
        QPoint motion;
        int x, y, z; // the node spins afterwards
    } drags[] = {{kAxisZ, {0, -5}, 0, 0, 5},
                 {kAxisX, {5, 0}, -10, 0, 0},
                 {kAxisY, {5, -5}, 0, 0, 0},
                 {kAxisY, {-5, 5}, 0, 0, 0}};
    Window().mnu_v_left_Click();
    const QPoint start(20, 20);
    const QPoint jump(200, 150);
    for (const auto& drag : drags) {
        host.spins.clear();
        View().ModifyAxis = drag.axis;
        QTest::mousePress(&Surface(), Qt::LeftButton, {}, start);
        QTest::mouseMove(&Surface(), jump);
        QTest::mouseMove(&Surface(), jump + drag.motion);
        QTest::mouseRelease(&Surface(), Qt::LeftButton, {}, jump + drag.motion);
        QTest::mouseMove(&Surface(), start);
        EXPECT_EQ(std::make_tuple(Spin("upd_4_x"), Spin("upd_4_y"), Spin("upd_4_z")),
                  std::make_tuple(drag.x, drag.y, drag.z));
    }
}

TEST_F(ViewInputTest, WheelAndKeysChangeCameraTabAndStates) {
    Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    model& current = CurrentModel();
    const struct {
        bool orthographic;
        Qt::Key key; // Qt::Key_unknown for the wheel, turned by `modifiers` notches
        int modifiers;
        float model::*field;
        float change;
    } rows[] = {
        {false, Qt::Key_unknown, 1, &model::m_zoom, kNotch},
        {true, Qt::Key_unknown, -1, &model::m_zoom, -kNotch / 4},
        {false, Qt::Key_Plus, Qt::KeypadModifier, &model::m_zoom, 1},
        {true, Qt::Key_Plus, Qt::KeypadModifier, &model::m_zoom, -1},
        {true, Qt::Key_Up, 0, &model::m_yrot, 0},
        {false, Qt::Key_Up, 0, &model::m_yrot, -2},
        {false, Qt::Key_Up, Qt::ControlModifier, &model::m_ypos, 2},
        {false, Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier, &model::m_bank, -2},
        {false, Qt::Key_Right, Qt::ControlModifier, &model::m_xpos, 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::Message() << "key " << row.key << ", " << row.modifiers);
        if (row.orthographic)
            Window().mnu_v_left_Click();
        else
            Window().mnu_v_persp_Click();
        const float before = current.*row.field;
        if (row.key == Qt::Key_unknown) {
            QWheelEvent event(QPointF(10, 10), Surface().mapToGlobal(QPointF(10, 10)), {},
                              {0, row.modifiers * kNotch}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&Surface(), &event);
        } else {
            QTest::keyClick(&Surface(), row.key, Qt::KeyboardModifiers(row.modifiers));
        }
        EXPECT_FLOAT_EQ(current.*row.field - before, row.change);
    }
    QTest::keyClick(&Surface(), Qt::Key_F4);
    EXPECT_EQ(View().CurrentTab, kNodesTab);

    // Each state key steps its button through its states.
    const std::tuple<Qt::Key, const char*, const char*> states[] = {
        {Qt::Key_C, "Pilot", "PilotDead"},  {Qt::Key_C, "Pilot", "PilotBailed"},
        {Qt::Key_C, "Pilot", "PilotAlive"}, {Qt::Key_G, "LG", "LGUp"},
        {Qt::Key_G, "LG", "LGDown"},        {Qt::Key_D, "Wing", "WingDam"},
        {Qt::Key_D, "Wing", "WingOK"}};
    for (const auto& [key, button, image] : states) {
        QTest::keyClick(&Surface(), key);
        EXPECT_EQ(Window().Button(button)->property("image").toString(), image);
    }
    EXPECT_EQ(current.m_pilot * 100 + current.m_lg * 10 + current.m_wing, 10);
}
