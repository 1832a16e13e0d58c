// Speed of reading and writing a full-size model file: 32 kB, 255 elements.
#include "moxbuilder.h"
#include "moxreader.h"
#include "moxwriter.h"
#include "tempdir.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int kElements = 255;
constexpr int kNodes = 200;

std::vector<uint8_t> FullSizeModel() {
    MoxBuilder builder;
    builder.SetTexture("PLANE.TPC");
    for (int n = 0; n < kNodes; ++n)
        builder.nodes.push_back(Node{static_cast<int16_t>(n), static_cast<int16_t>(-n),
                                     static_cast<int16_t>(2 * n), 0});
    for (int i = 0; i < kElements; ++i) {
        builder.planes.push_back(NRMRecord{0, 0, 16384, i, 0});
        StreamBytes stream;
        for (int q = 0; q < 6; ++q) {
            const auto node = static_cast<uint8_t>((i + q) % kNodes);
            stream.MappedPoly(5, {{node, 0, 0}, {node, 255, 0}, {node, 255, 255}, {node, 0, 255}},
                              0, 0);
        }
        stream.Prefix(148, 1).ColouredPoly({1, 2, 3}, 7);
        builder.streams.push_back(stream.End().bytes);
    }
    return builder.Build();
}

// Loading and saving the file on disk; the save includes the temporary file, its flush to disk
// and the rename over the old file.
void BM_READ_MOX(benchmark::State& state) {
    TempDir dir;
    const std::vector<uint8_t> bytes = FullSizeModel();
    WriteTestFile(dir.file("PLANEF.MOX"), bytes);
    for (auto _ : state)
        benchmark::DoNotOptimize(READ_MOX(dir.file("PLANEF.MOX"), 0));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(BM_READ_MOX);

void BM_SAVE_MOX(benchmark::State& state) {
    TempDir dir;
    const std::vector<uint8_t> bytes = FullSizeModel();
    const FileRecord record = ReadMoxBytes(bytes, "PLANEF.MOX", 0);
    for (auto _ : state)
        benchmark::DoNotOptimize(SAVE_MOX(record, dir.file("PLANEF.MOX")));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(BM_SAVE_MOX)->Unit(benchmark::kMicrosecond);

} // namespace
