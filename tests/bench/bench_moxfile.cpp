// Speed of loading and saving the largest model file.
#include "moxreader.h"
#include "moxwriter.h"
#include "tempdir.h"
#include "tubemodel.h"

#include <benchmark/benchmark.h>

namespace {

// Loading and saving the file on disk; the save includes the temporary file, its flush to disk
// and the rename over the old file.
void BM_READ_MOX(benchmark::State& state) {
    TempDir dir;
    const std::vector<uint8_t> bytes = TubeFile(true).Build();
    WriteTestFile(dir.file("PLANEF.MOX"), bytes);
    for (auto _ : state)
        benchmark::DoNotOptimize(READ_MOX(dir.file("PLANEF.MOX"), 0));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(BM_READ_MOX);

void BM_SAVE_MOX(benchmark::State& state) {
    TempDir dir;
    const std::vector<uint8_t> bytes = TubeFile(true).Build();
    const FileRecord record = ReadMoxBytes(bytes, "PLANEF.MOX", 0);
    for (auto _ : state)
        benchmark::DoNotOptimize(SAVE_MOX(record, dir.file("PLANEF.MOX")));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(BM_SAVE_MOX)->Unit(benchmark::kMicrosecond);

} // namespace
