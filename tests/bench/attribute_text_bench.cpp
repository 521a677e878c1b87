// SPDX-License-Identifier: GPL-3.0-or-later
// The attribute reader must stay linear in the length of the text.
#include "bench_support.h"
#include "model/attribute_text.h"

#include <benchmark/benchmark.h>

using namespace tq;

static void BM_NormalizeAttributeText(benchmark::State& state)
{
    std::string text = bench::MakeAttributeText(static_cast<size_t>(state.range(0)));
    bench::QuietPort ui;
    for (auto _ : state)
        benchmark::DoNotOptimize(model::NormalizeAttributeText(ui, text));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * state.range(0));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_NormalizeAttributeText)->RangeMultiplier(10)->Range(1 << 10, 1 << 20)->Complexity(benchmark::oN);

// Every item of the text read from the front, as the build reads an Entry.
static void BM_ReadEveryAttribute(benchmark::State& state)
{
    std::string text = bench::MakeAttributeText(static_cast<size_t>(state.range(0)));
    bench::QuietPort ui;
    for (auto _ : state) {
        std::string work = text;
        std::string value;
        int err = 0;
        while (!work.empty() && err == 0)
            model::TakeAttribute(ui, "[", value, work, err);
        benchmark::DoNotOptimize(value);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * state.range(0));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_ReadEveryAttribute)->RangeMultiplier(10)->Range(1 << 10, 1 << 20)->Complexity(benchmark::oN);

// The same full read through the cursor form, which passes over each item
// instead of erasing it from the front of the text.
static void BM_ReadEveryAttributeCursor(benchmark::State& state)
{
    std::string text = bench::MakeAttributeText(static_cast<size_t>(state.range(0)));
    bench::QuietPort ui;
    for (auto _ : state) {
        model::AttributeCursor cursor(text);
        std::string value;
        int err = 0;
        while (!cursor.rest().empty() && err == 0)
            model::TakeAttribute(ui, "[", value, cursor, err);
        benchmark::DoNotOptimize(value);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * state.range(0));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_ReadEveryAttributeCursor)->RangeMultiplier(10)->Range(1 << 10, 1 << 20)->Complexity(benchmark::oN);
