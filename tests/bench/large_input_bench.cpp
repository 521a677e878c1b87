// SPDX-License-Identifier: GPL-3.0-or-later
// The large inputs of the unit tests, timed: a 10 MB attribute text, a
// choice list of 10,000 items and a title of 1,000 lines. Each must answer
// (with its result or its bound's InternalError) in well under a second.
#include "bench_support.h"
#include "model/attribute_text.h"

#include <benchmark/benchmark.h>

using namespace tq;

namespace {

constexpr size_t kTenMegabytes = 10u << 20;

void BM_NormalizeTenMegabytes(benchmark::State& state)
{
    const std::string text = bench::MakeAttributeText(kTenMegabytes);
    bench::QuietPort ui;
    for (auto _ : state)
        benchmark::DoNotOptimize(model::NormalizeAttributeText(ui, text));
}

void BM_ReadTenMegabytesThroughACursor(benchmark::State& state)
{
    const std::string text = bench::MakeAttributeText(kTenMegabytes);
    bench::QuietPort ui;
    for (auto _ : state) {
        model::AttributeCursor cursor(text);
        std::string value;
        int err = 0;
        while (!cursor.rest().empty() && err == 0)
            model::TakeAttribute(ui, "[", value, cursor, err);
        benchmark::DoNotOptimize(value);
    }
}

void BM_ChoiceListOfTenThousand(benchmark::State& state)
{
    std::string items;
    for (int i = 0; i < 10000; ++i)
        items += (i ? "," : "") + std::string("Choice ") + std::to_string(i);
    const std::string text = "[Choices=" + items + "] [Info: x]";
    bench::QuietPort ui;
    int bounds = 0;
    for (auto _ : state) {
        std::string work = text;
        model::ChoiceList list;
        int err = 0;
        try {
            model::TakeChoiceList(ui, "[CHOICES", work, list, err);
        } catch (const model::InternalError&) {
            ++bounds;
        }
    }
    benchmark::DoNotOptimize(bounds);
}

void BM_TitleOfAThousandLines(benchmark::State& state)
{
    std::string lines;
    for (int i = 0; i < 1000; ++i)
        lines += (i ? "\\n" : "") + std::string("Line ") + std::to_string(i);
    int bounds = 0;
    for (auto _ : state) {
        try {
            benchmark::DoNotOptimize(model::SplitHtmlLines(lines));
        } catch (const model::InternalError&) {
            ++bounds;
        }
        try {
            benchmark::DoNotOptimize(model::SplitLines(lines));
        } catch (const model::InternalError&) {
            ++bounds;
        }
    }
    benchmark::DoNotOptimize(bounds);
}

} // namespace

BENCHMARK(BM_NormalizeTenMegabytes)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadTenMegabytesThroughACursor)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ChoiceListOfTenThousand)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_TitleOfAThousandLines)->Unit(benchmark::kMicrosecond);
