// The six orthographic cameras and the 3-view backdrops, read back from the GL view: where each
// side of the model lands on screen, which drawing each view shows and where, and what lies in
// front.
#include "currentmodel.h"
#include "drawscene.h"
#include "editorfixture.h"
#include "oglgraphics.h"
#include "programstate.h"
#include "viewsettings.h"

#include <array>
#include <cmath>
#include <iterator>
#include <utility>
#include <vector>

namespace {

constexpr float kStartZoom = 125.0f;
constexpr int16_t kMarkerDistance = 40;
const Rgb kYellow{255, 255, 0};

using Axis = std::array<int, 3>;
using Point = std::array<double, 3>;

// A camera as the user knows it: its View menu entry, the side it looks from and the model axes
// that point to the right of and up the screen.
struct Camera {
    const char* name;
    void (frm_main::*show)();
    Axis seenFrom;
    Axis right;
    Axis up;
};

const Camera kCameras[] = {
    {"Left", &frm_main::mnu_v_left_Click, {0, -1, 0}, {1, 0, 0}, {0, 0, 1}},
    {"Top", &frm_main::mnu_v_top_Click, {0, 0, 1}, {1, 0, 0}, {0, 1, 0}},
    {"Front", &frm_main::mnu_v_front_Click, {-1, 0, 0}, {0, -1, 0}, {0, 0, 1}},
    {"Underside", &frm_main::mnu_v_underside_Click, {0, 0, -1}, {1, 0, 0}, {0, -1, 0}},
    {"Right", &frm_main::mnu_v_right_Click, {0, 1, 0}, {-1, 0, 0}, {0, 0, 1}},
    {"Back", &frm_main::mnu_v_back_Click, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
};

int Dot(const Axis& axis, const Point& point) {
    return static_cast<int>(axis[0] * point[0] + axis[1] * point[1] + axis[2] * point[2]);
}

// Where a model point lands in a frame of `camera` at the start zoom: the view is 250 units high
// and centred on the origin.
QPoint Expected(const Camera& camera, const QImage& frame, const Point& point) {
    const double pixelsPerUnit = frame.height() / (2.0 * kStartZoom);
    return {static_cast<int>(
                std::lround(frame.width() / 2.0 + Dot(camera.right, point) * pixelsPerUnit)),
            static_cast<int>(
                std::lround(frame.height() / 2.0 - Dot(camera.up, point) * pixelsPerUnit))};
}

// A closed box of six squares around the origin, each stored clockwise as seen from outside.
// Corner k lies at -half or +half along X, Y and Z by its bits 0, 1 and 2.
TestFile Cube(int16_t half, int32_t texture) {
    TestFile file;
    file.record.TextureID = texture;
    const auto low = static_cast<int16_t>(-half);
    for (int k = 0; k < 8; ++k)
        file.AddNode(k & 1 ? half : low, k & 2 ? half : low, k & 4 ? half : low);
    std::vector<Piggyback> faces;
    for (const std::vector<uint8_t>& face : std::vector<std::vector<uint8_t>>{
             {0, 4, 5, 1}, {3, 7, 6, 2}, {2, 6, 4, 0}, {1, 5, 7, 3}, {1, 3, 2, 0}, {4, 6, 7, 5}})
        faces.push_back(Polygon(kTextured, face));
    file.AddElement(faces);
    return file;
}

} // namespace

TEST_F(EditorTest, EachOrthographicViewShowsTheModelFromItsSide) {
    ASSERT_TRUE(OGL().MakeCurrent());
    // A white cube at the origin and a red, a green and a blue one 40 units out along X, Y, Z.
    const Rgb colours[] = {kRed, kGreen, kBlue};
    std::vector<FileRecord> files{Cube(6, StripTexture({kWhite})).record};
    for (const Rgb& colour : colours)
        files.push_back(Cube(6, StripTexture({colour})).record);
    InstallFamily(files);
    std::array<Node, 8>& hardpoints = CurrentModel().Files[0].HP;
    hardpoints[1].X = kMarkerDistance;
    hardpoints[2].Y = kMarkerDistance;
    hardpoints[3].Z = kMarkerDistance;

    for (const Camera& camera : kCameras) {
        (Window().*camera.show)();
        const QImage frame = ReadFrame();
        for (int axis = 0; axis < 3; ++axis) {
            Point marker{};
            marker[static_cast<size_t>(axis)] = kMarkerDistance;
            const QPoint at = Expected(camera, frame, marker);
            // A marker on the line of sight stands in front of the white cube when it lies on
            // the side the view is seen from, and behind it otherwise.
            const int towardEye = Dot(camera.seenFrom, marker);
            const Rgb expected = towardEye < 0 ? kWhite : colours[axis];
            EXPECT_EQ(PixelAt(frame, at.x(), at.y()), expected)
                << camera.name << " view, marker on axis " << axis << " at " << at.x() << ","
                << at.y();
        }
    }
}

TEST_F(EditorTest, EachDrawingCoversTheBoxInItsOwnViewAndSpanZeroFoldsTwo) {
    ASSERT_TRUE(OGL().MakeCurrent());
    ProjectRecord& project = Program().ProjectData;
    project.TopImage = StripTexture({kRed});
    project.FrontImage = StripTexture({kGreen});
    project.LeftImage = StripTexture({kBlue});
    project.Length = 100;
    project.Height = 60;
    project.TopLeftX = -50;
    project.TopLeftZ = 30;
    // The face of the box each view shows, by view: Left, Top, Front, Underside, Right, Back;
    // the last three show no drawing.
    const std::pair<Point, Point> faces[std::size(kCameras)] = {
        {{-50, 0, -30}, {50, 0, 30}}, {{-50, -40, 0}, {50, 40, 0}}, {{0, -40, -30}, {0, 40, 30}}};
    const Rgb drawings[] = {kBlue, kRed, kGreen, kStartSky, kStartSky, kStartSky};
    for (const int16_t span : {int16_t{0}, int16_t{80}}) {
        project.Span = span;
        project.TopLeftY = static_cast<int16_t>(-span / 2);
        for (size_t view = 0; view < std::size(faces); ++view) {
            const auto& [low, high] = faces[view];
            // A face as wide as the span folds to a line with it.
            const Rgb colour = span == 0 && low[1] != high[1] ? kStartSky : drawings[view];
            // The drawing at the centre and just inside each edge, the sky just outside it.
            std::vector<std::pair<Point, Rgb>> points{{Point{}, colour}};
            for (size_t axis = 0; span != 0 && axis < 3; ++axis) {
                for (const auto& [edge, inward] : {std::pair{low[axis], 1.0}, {high[axis], -1.0}}) {
                    if (low[axis] == high[axis])
                        continue;
                    Point inside{};
                    Point outside{};
                    inside[axis] = edge + inward * 2;
                    outside[axis] = edge - inward * 3;
                    points.insert(points.end(), {{inside, colour}, {outside, kStartSky}});
                }
            }
            const Camera& camera = kCameras[view];
            (Window().*camera.show)();
            const QImage frame = ReadFrame();
            for (const auto& [at, expected] : points) {
                const QPoint pixel = Expected(camera, frame, at);
                EXPECT_EQ(PixelAt(frame, pixel.x(), pixel.y()), expected)
                    << camera.name << " view, span " << span << ", at " << at[0] << "," << at[1]
                    << "," << at[2];
            }
        }
    }

    // A yellow cube inside the box is painted over the Top drawing; a picking pass paints no
    // drawing at all.
    InstallFamily({Cube(10, StripTexture({kYellow})).record});
    const Camera& top = kCameras[kTopView];
    (Window().*top.show)();
    for (const bool picking : {false, true}) {
        CurrentModel().RenderType = picking;
        const QImage frame = ReadFrame();
        const QPoint model = Expected(top, frame, {0, 0, 0});
        const QPoint drawing = Expected(top, frame, {30, 30, 0});
        EXPECT_EQ(PixelAt(frame, model.x(), model.y()), kYellow);
        EXPECT_EQ(PixelAt(frame, drawing.x(), drawing.y()), picking ? kStartSky : kRed);
    }
}
