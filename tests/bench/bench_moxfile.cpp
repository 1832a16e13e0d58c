// Speed of loading and saving the largest model file.
#include "moxreader.h"
#include "moxwriter.h"
#include "tempdir.h"
#include "tubemodel.h"

#include <benchmark/benchmark.h>

namespace {

// Loading or saving the file on disk; the save includes the temporary file, its flush to disk
// and the rename over the old file.
void MoxFile(benchmark::State& state, bool save) {
    TempDir dir;
    const std::string path = dir.file("PLANEF.MOX");
    const std::vector<uint8_t> bytes = TubeFile(true).Build();
    WriteTestFile(path, bytes);
    const FileRecord record = READ_MOX(path, 0);
    for (auto _ : state)
        benchmark::DoNotOptimize(save ? SAVE_MOX(record, path) : READ_MOX(path, 0).Loaded);
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK_CAPTURE(MoxFile, READ_MOX, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(MoxFile, SAVE_MOX, true)->Unit(benchmark::kMicrosecond);

} // namespace
