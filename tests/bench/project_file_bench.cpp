// SPDX-License-Identifier: GPL-3.0-or-later
// Saving and opening a project of 100 filled rows.
#include "bench_support.h"
#include "model/entry_store.h"
#include "port/platform.h"
#include "store/project_file.h"
#include "store/text_file.h"

#include <benchmark/benchmark.h>
#include <filesystem>

using namespace tq;

static model::EntryStore FullStore()
{
    model::EntryStore store;
    const std::string text = "[Title=Enter your full name]\r\n[Info: The title of the question]\r\n\r\n"
                             "[Title Size=3]\r\n[Info: From 1 to 7]\r\n\r\n[Align=left]\r\n"
                             "[Choices=left,right,center]\r\n\r\n[Text Color=0]\r\n[Info: A colour]\r\n";
    for (auto& page : store.pages)
        for (auto& e : page) {
            e.InputTypeName = "Name";
            e.AttributeText = text;
        }
    store.pages[0][0].InputTypeName = "Setup";
    return store;
}

static void BM_SaveProject100Rows(benchmark::State& state)
{
    model::EntryStore store = FullStore();
    std::string folder = bench::MakeTempFolder("save");
    std::string path = platform::JoinPath(folder, "\\bench.fms");
    for (auto _ : state) {
        std::string bytes = store::FormatProjectFile(store::WriteEntries(store));
        benchmark::DoNotOptimize(store::WriteFileReplacing(path, bytes));
    }
    std::filesystem::remove_all(folder);
}
BENCHMARK(BM_SaveProject100Rows)->Unit(benchmark::kMicrosecond);

static void BM_OpenProject100Rows(benchmark::State& state)
{
    model::EntryStore full = FullStore();
    std::string folder = bench::MakeTempFolder("open");
    std::string path = platform::JoinPath(folder, "\\bench.fms");
    store::WriteFileReplacing(path, store::FormatProjectFile(store::WriteEntries(full)));
    for (auto _ : state) {
        model::EntryStore store;
        auto bytes = store::ReadWholeFile(path);
        store::LineReader in = store::ReaderOf(*bytes);
        store::ReadEntries(store, in);
        benchmark::DoNotOptimize(store.pages[3][24].AttributeText);
    }
    std::filesystem::remove_all(folder);
}
BENCHMARK(BM_OpenProject100Rows)->Unit(benchmark::kMicrosecond);
