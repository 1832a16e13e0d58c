// Decoding a 1024 x 1024 texture: a 256-colour file and a 24-bit one, from memory.
#include "pcxreader.h"
#include "pcxwriter.h"
#include "testpictures.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int kSide = 1024;

void Decode(benchmark::State& state, const std::vector<uint8_t>& file) {
    for (auto _ : state) {
        PcxResult result = DecodePcx(file, "bench.pcx");
        benchmark::DoNotOptimize(result.picture->rgb.data());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * kSide * kSide * 3);
}

BENCHMARK_CAPTURE(Decode, 256Colours,
                  EncodePcx8(kSide, kSide, TestIndices(kSide, kSide, 1), TestPalette()))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Decode, TrueColour, EncodePcx24(kSide, kSide, TestRgb(kSide, kSide, 1)))
    ->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
