// The whole load of a 1024 x 1024 texture into GL: file read, decode, image store, upload.
// Runs under a virtual X server with a real (software) GL context.
#include "gltexture.h"
#include "pcxwriter.h"
#include "tempdir.h"
#include "testpictures.h"

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>

#include <GL/gl.h>
#include <benchmark/benchmark.h>

#include <iostream>

namespace {

constexpr int kSide = 1024;

void LoadTexture(benchmark::State& state, const std::string& path) {
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
    QGuiApplication application(argc, argv);
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    QOffscreenSurface surface;
    surface.setFormat(format);
    surface.create();
    QOpenGLContext context;
    context.setFormat(format);
    if (!context.create() || !context.makeCurrent(&surface)) {
        std::cerr << "bench_gltexture: no GL context\n";
        return 1;
    }

    TempDir folder;
    const std::string palette8 = folder.file("palette.pcx");
    const std::string trueColour = folder.file("rgb.pcx");
    WritePcx8(palette8, kSide, kSide, TestIndices(kSide, kSide, 1), TestPalette());
    WritePcx24(trueColour, kSide, kSide, TestRgb(kSide, kSide, 1));
    benchmark::RegisterBenchmark("BM_LoadGLTexture256Colours", LoadTexture, palette8)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_LoadGLTextureTrueColour", LoadTexture, trueColour)
        ->Unit(benchmark::kMillisecond);

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    context.doneCurrent();
    return 0;
}
