// The cost of a frame in the real editor window under a virtual X server with software GL: the
// sample fighter and the largest family the format allows (seven files of 255 elements of
// textured polygons, each file near 32 kB), the processor time the paced frame loop takes
// while such a model is open and nothing happens, a pick at the middle of the view, the
// frames of a node drag in the Move tool, and the whole load of a 1024 x 1024 texture into GL
// (file read, decode, image store, upload).
#include "currentmodel.h"
#include "framepacer.h"
#include "gltexture.h"
#include "gltextureloader.h"
#include "glview.h"
#include "mainwindow.h"
#include "oglgraphics.h"
#include "pcxwriter.h"
#include "picking.h"
#include "qtmodelhost.h"
#include "recordinghost.h"
#include "skylathe.h"
#include "tempdir.h"
#include "testpictures.h"
#include "textureloader.h"
#include "tubemodel.h"
#include "viewsettings.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

#include <GL/gl.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <iostream>
#include <string>
#include <tuple>
#include <vector>

namespace {

constexpr int kScreenWidth = 1280;
constexpr int kScreenHeight = 1024;
constexpr int kTextureSide = 256;
constexpr int kLargeTextureSide = 1024;
constexpr int kIdleTicks = 300;
constexpr int kSettlingTicks = 30;
constexpr int kFrameWaitMilliseconds = 60000;
// The connected files of an F family, slots 1 to 6.
constexpr char kLetters[] = {'A', 'B', 'C', 'E', 'G', 'P'};

// Writes the family and its texture into `folder`; returns the main file's name. A name that
// begins with P and ends in F.MOX makes an F family.
std::string WriteLargestFamily(const TempDir& folder) {
    WritePcx8(folder.file("BENCH.PCX"), kTextureSide, kTextureSide,
              TestIndices(kTextureSide, kTextureSide, 1), TestPalette());
    const std::string main = folder.file("PBENCHF.MOX");
    WriteTestFile(main, TubeFile(true).Build());
    for (char letter : kLetters)
        WriteTestFile(folder.file(std::string("PBENCH") + letter + ".MOX"),
                      TubeFile(false).Build());
    return main;
}

struct Editor {
    RecordingHost host;
    QtModelHost windowHost;
    GLTextureLoader textures;
    std::unique_ptr<frm_main> window;
    std::string open;
};

Editor* editor = nullptr;

// Opens the model `name` unless it is open already.
void Open(const std::string& name) {
    if (editor->open == name)
        return;
    editor->open = name;
    OGL().MakeCurrent();
    editor->host.answers = {MessageAnswer::Yes};
    std::string filename = name;
    CurrentModel().Load(filename);
}

// Runs `step` once per iteration and reports its median time.
template <typename Step> double MedianMilliseconds(benchmark::State& state, Step step) {
    using Milliseconds = std::chrono::duration<double, std::milli>;
    std::vector<double> times;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        step();
        times.push_back(Milliseconds(std::chrono::steady_clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    const double median = times.empty() ? 0 : times[times.size() / 2];
    state.counters["median_ms"] = median;
    return median;
}

void PaintFrame() {
    OGL().MakeCurrent();
    OGL().RenderFrame();
    glFinish();
}

void Frame(benchmark::State& state, const std::string& name) {
    Open(name);
    state.counters["frames_per_second"] = 1000.0 / MedianMilliseconds(state, PaintFrame);
}

// The program's own loop with the model open and nothing changing: events only, the pacer
// looking for a change sixty times a second.
void IdleCpu(benchmark::State& state, const std::string& name) {
    Open(name);
    GLView& view = *editor->window->glView;
    const FramePacer& pacer = *editor->window->framePacer;
    const auto waitTicks = [&](int ticks) {
        const int64_t target = pacer.TickCount() + ticks;
        if (!QTest::qWaitFor([&] { return pacer.TickCount() >= target; }, kFrameWaitMilliseconds))
            state.SkipWithError("the frame loop stopped");
    };
    // The frames that show the model after its load come first; idle is what follows them.
    waitTicks(kSettlingTicks);
    for (auto _ : state) {
        const int64_t framesBefore = view.FrameCount();
        const std::clock_t cpuStart = std::clock();
        const auto wallStart = std::chrono::steady_clock::now();
        waitTicks(kIdleTicks);
        const double wall =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - wallStart).count();
        state.counters["cpu_percent_of_one_core"] =
            100.0 * static_cast<double>(std::clock() - cpuStart) / CLOCKS_PER_SEC / wall;
        state.counters["frames_per_second"] =
            static_cast<double>(view.FrameCount() - framesBefore) / wall;
    }
}

// One pick at the middle of the view in the Elements tab, from the mouse's release to the hits
// taken, as the Pick tool makes it.
void Pick(benchmark::State& state, const std::string& name) {
    Open(name);
    editor->window->SelectTab(kElementsTab);
    const GLView& view = *editor->window->glView;
    const auto x = static_cast<int16_t>(view.width() / 2);
    const auto y = static_cast<int16_t>(view.height() / 2);
    MedianMilliseconds(state, [&] { ProcessSelection(x, y); });
    state.counters["hit_element"] = CurrentModel().m_currelem;
}

// A node dragged along Z in the Left view, one mouse event at a time: the event's handling and
// the frame that shows it, painted at once. The drag keeps up with the mouse while this stays
// below the time between two of its events.
void Drag(benchmark::State& state, const std::string& name) {
    Open(name);
    frm_main& window = *editor->window;
    GLView& view = *window.glView;
    window.SelectTab(kNodesTab);
    window.mnu_m_move_Click();
    window.mnu_m_a_z_Click();
    window.mnu_v_left_Click();
    CurrentModel().m_currnode = 0;
    const QPointF start(view.width() / 4.0, view.height() / 2.0);
    int step = 0;
    const auto move = [&](QEvent::Type type, Qt::MouseButtons buttons) {
        const QPointF at = start + QPointF(0, (step++ % 2 == 0) ? -1 : 1);
        QMouseEvent event(type, at, view.mapToGlobal(at), Qt::LeftButton, buttons, {});
        QCoreApplication::sendEvent(&view, &event);
    };
    move(QEvent::MouseButtonPress, Qt::LeftButton);
    state.counters["events_per_second"] = 1000.0 / MedianMilliseconds(state, [&] {
                                              move(QEvent::MouseMove, Qt::LeftButton);
                                              PaintFrame();
                                          });
    move(QEvent::MouseButtonRelease, Qt::NoButton);
    window.mnu_v_persp_Click();
    window.mnu_m_pick_Click();
}

void LoadTexture(benchmark::State& state, const std::string& path) {
    OGL().MakeCurrent();
    for (auto _ : state) {
        int32_t name = 0;
        LoadGLTexture(path, name, 0);
        glFinish();
        // Names are never deleted in the program; here they are, to keep memory flat.
        state.PauseTiming();
        const GLuint texture = static_cast<GLuint>(name);
        glDeleteTextures(1, &texture);
        state.ResumeTiming();
    }
}

} // namespace

int main(int argc, char** argv) {
    RequestPixelFormat();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    benchmark::Initialize(&argc, argv);

    Editor running;
    editor = &running;
    SetTextureLoader(&running.textures);
    running.window = StartUp("", &running.windowHost);
    running.host.windowSide = &running.windowHost;
    running.window->resize(kScreenWidth, kScreenHeight);
    if (!OGL().bRunning ||
        !QTest::qWaitFor([&] { return running.window->glView->FrameCount() > 0; },
                         kFrameWaitMilliseconds)) {
        std::cerr << "bench_frame: no GL context, or the view paints no frames\n";
        return 1;
    }

    TempDir folder;
    const std::string sample = std::string(SAMPLE_DIR) + "/PDEMOF.MOX";
    const std::string largest = WriteLargestFamily(folder);
    const std::string palette8 = folder.file("palette.pcx");
    const std::string trueColour = folder.file("rgb.pcx");
    constexpr int side = kLargeTextureSide;
    WritePcx8(palette8, side, side, TestIndices(side, side, 1), TestPalette());
    WritePcx24(trueColour, side, side, TestRgb(side, side, 1));
    using Measure = void (*)(benchmark::State&, const std::string&);
    const std::tuple<const char*, Measure, std::string> benchmarks[] = {
        {"BM_FrameSample", Frame, sample},
        {"BM_FrameLargestFamily", Frame, largest},
        {"BM_IdleCpuSample", IdleCpu, sample},
        {"BM_IdleCpuLargestFamily", IdleCpu, largest},
        {"BM_PickSample", Pick, sample},
        {"BM_PickLargestFamily", Pick, largest},
        {"BM_DragSample", Drag, sample},
        {"BM_LoadGLTexture256Colours", LoadTexture, palette8},
        {"BM_LoadGLTextureTrueColour", LoadTexture, trueColour},
    };
    for (const auto& [title, measure, model] : benchmarks) {
        auto* registered = benchmark::RegisterBenchmark(title, measure, model);
        registered->Unit(benchmark::kMillisecond);
        if (measure == IdleCpu)
            registered->Iterations(1);
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();

    ShutDown(std::move(running.window));
    SetTextureLoader(nullptr);
    return 0;
}
