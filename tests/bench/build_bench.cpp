// SPDX-License-Identifier: GPL-3.0-or-later
// A whole build of a FORM and of a SURVEY to both files: the Entries of the
// two samples of the mode (every Input Type) repeated over the Pages until
// 25, 50 or 100 rows are used. The cost must grow linearly with the rows.
#include "bench_support.h"
#include "compose/build_driver.h"
#include "model/text_ops.h"
#include "session.h"
#include "store/project_file.h"
#include "store/text_file.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <vector>

using namespace tq;

namespace {

/// A quiet port that keeps the last message, so that a build that stops can say why.
struct KeepingPort : bench::QuietPort
{
    std::string last;
    void message(std::string_view text, std::string_view title, Icon) override
    {
        ++messages;
        last = std::string(title) + ": " + std::string(text);
    }
};

/// The rows of a sample project other than its SetupEntry.
std::vector<model::Entry> SampleRows(const std::string& name, std::string* setup)
{
    model::EntryStore store;
    auto bytes = store::ReadWholeFile(std::string(TQ_DATA_DIR) + "/samples/" + name);
    auto in = store::ReaderOf(bytes.value_or(""));
    store::ReadEntries(store, in);
    std::vector<model::Entry> rows;
    for (const auto& page : store.pages)
        for (const auto& e : page) {
            if (e.InputTypeName.empty())
                continue;
            if (model::ToUpper(e.InputTypeName) == "SETUP") {
                if (setup)
                    *setup = e.AttributeText;
                continue;
            }
            rows.push_back(e);
        }
    return rows;
}

/// A project of `count` rows (the SetupEntry included) in `mode`, built into `web`.
std::unique_ptr<Session> MakeProject(bool survey, int count, const std::string& web, const std::string& data)
{
    std::string setup;
    std::vector<model::Entry> rows = SampleRows(survey ? "sample_survey.srv" : "sample_form.fms", &setup);
    const auto more = SampleRows(survey ? "sample_survey_2.srv" : "sample_form_2.fms", nullptr);
    rows.insert(rows.end(), more.begin(), more.end());

    auto s = std::make_unique<Session>();
    s->DataFolder = data;
    s->store.state.ProjectMode = survey ? tq::model::Mode::Survey : tq::model::Mode::Form;
    // every row keeps its ordinal as reference number, the empty ones too
    for (size_t page = 0; page < s->store.pages.size(); ++page)
        for (size_t row = 0; row < s->store.pages[page].size(); ++row)
            s->store.pages[page][row] =
                model::Entry{"", "", std::to_string(page * model::kRowsPerPage + row + 1), false, {}};
    const size_t at = setup.find("[Drive Folder Path=");
    const size_t start = at + std::string_view("[Drive Folder Path=").size();
    setup.replace(start, setup.find(']', start) - start, web);
    s->store.pages[0][0] = {"Setup", setup, "1", false, model::Highlight::None};

    size_t next = 0;
    for (int n = 1; n < count; ++n) {
        const size_t page = static_cast<size_t>(n / model::kRowsPerPage);
        const size_t row = static_cast<size_t>(n % model::kRowsPerPage);
        model::Entry e = rows[next % rows.size()];
        // a pair never starts in the last row of a Page
        if (row == model::kRowsPerPage - 1 && model::ToUpper(e.InputTypeName).rfind("CONDITION", 0) == 0) {
            e = {"Blank Line", "[New Line=1]\r\n[Info: lines]\r\n", "", false, model::Highlight::None};
        } else {
            ++next;
        }
        e.ReferenceNumber = std::to_string(n + 1); // the build reorders by it
        s->store.pages[page][row] = e;
    }
    return s;
}

/// The project of `count` rows, built once; nullptr after the reason went to
/// `state` when that build stopped.
std::unique_ptr<Session>
BuildOnce(benchmark::State& state, bool survey, int count, const std::string& web, const std::string& data)
{
    KeepingPort ui;
    auto s = MakeProject(survey, count, web, data);
    compose::CreateFormOnly(*s, ui);
    if (s->build.buildError == 0)
        return s;
    state.SkipWithError(ui.last.c_str());
    return nullptr;
}

void BM_Build(benchmark::State& state, bool survey)
{
    const int count = static_cast<int>(state.range(0));
    const std::string web = bench::MakeTempFolder("web");
    const std::string data = bench::MakeTempFolder("data");
    KeepingPort ui;
    // the first build makes the output files; later ones replace them
    if (!BuildOnce(state, survey, count, web, data))
        return;
    for (auto _ : state) {
        state.PauseTiming();
        auto s = MakeProject(survey, count, web, data);
        state.ResumeTiming();
        compose::CreateFormOnly(*s, ui);
        benchmark::DoNotOptimize(s->build.buildError);
    }
    state.SetComplexityN(count);
    std::filesystem::remove_all(web);
    std::filesystem::remove_all(data);
}

void BM_BuildForm(benchmark::State& state)
{
    BM_Build(state, false);
}
void BM_BuildSurvey(benchmark::State& state)
{
    BM_Build(state, true);
}

/// The bare file work of a build: the HTML file opened to prove it is there,
/// the HTML, the scratch file "\\downtemp.txt" and the PHP written to a
/// temporary name and renamed, the scratch file read back into the PHP; each
/// file with the bytes the build of `count` rows wrote, in one write.
void BM_Floor(benchmark::State& state, bool survey)
{
    const int count = static_cast<int>(state.range(0));
    const std::string web = bench::MakeTempFolder("web");
    const std::string data = bench::MakeTempFolder("data");
    const auto s = BuildOnce(state, survey, count, web, data);
    if (!s)
        return;
    const std::string htmlPath = s->build.htmlPath;
    const std::string phpPath = s->build.phpPath;
    const std::string scratchPath = (std::filesystem::path(data) / "downtemp.txt").string();
    const std::string html = store::ReadWholeFile(htmlPath).value_or("");
    const std::string php = store::ReadWholeFile(phpPath).value_or("");
    const std::string scratch = store::ReadWholeFile(scratchPath).value_or("");
    const std::string phpHead = php.substr(0, php.size() - std::min(php.size(), scratch.size()));
    auto writeRenamed = [](const std::string& path, std::string_view head, std::string_view tail) {
        const std::string temp = path + ".tmp";
        {
            std::ofstream out(temp, std::ios::binary | std::ios::trunc);
            out.write(head.data(), static_cast<std::streamsize>(head.size()));
            out.write(tail.data(), static_cast<std::streamsize>(tail.size()));
        }
        std::filesystem::rename(temp, path);
    };
    for (auto _ : state) {
        {
            std::ifstream touch(htmlPath, std::ios::binary);
            benchmark::DoNotOptimize(touch.is_open());
        }
        writeRenamed(htmlPath, html, {});
        writeRenamed(scratchPath, scratch, {});
        std::ifstream in(scratchPath, std::ios::binary);
        const std::string back((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        writeRenamed(phpPath, phpHead, back);
    }
    state.counters["bytes"] = static_cast<double>(html.size() + php.size() + scratch.size());
    std::filesystem::remove_all(web);
    std::filesystem::remove_all(data);
}

void BM_FloorForm(benchmark::State& state)
{
    BM_Floor(state, false);
}
void BM_FloorSurvey(benchmark::State& state)
{
    BM_Floor(state, true);
}

/// A FORM whose one question is a title of 10 MB: read, checked and written
/// to both files.
void BM_BuildTenMegabyteTitle(benchmark::State& state)
{
    const std::string web = bench::MakeTempFolder("web");
    const std::string data = bench::MakeTempFolder("data");
    model::Entry title;
    for (const auto& e : SampleRows("sample_form_2.fms", nullptr))
        if (e.InputTypeName == "Title 1 Single Line")
            title = e;
    const size_t start = title.AttributeText.find("[Title=") + 7;
    title.AttributeText.replace(start, title.AttributeText.find(']', start) - start, std::string(10u << 20, 'a'));
    title.ReferenceNumber = "2";
    KeepingPort ui;
    for (auto _ : state) {
        state.PauseTiming();
        auto s = MakeProject(false, 1, web, data);
        s->store.pages[0][1] = title;
        state.ResumeTiming();
        compose::CreateFormOnly(*s, ui);
        if (s->build.buildError != 0) {
            state.SkipWithError(ui.last.c_str());
            break;
        }
    }
    std::filesystem::remove_all(web);
    std::filesystem::remove_all(data);
}

} // namespace

BENCHMARK(BM_BuildTenMegabyteTitle)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BuildForm)->Arg(25)->Arg(50)->Arg(100)->Unit(benchmark::kMicrosecond)->Complexity(benchmark::oN);
BENCHMARK(BM_BuildSurvey)->Arg(25)->Arg(50)->Arg(100)->Unit(benchmark::kMicrosecond)->Complexity(benchmark::oN);
BENCHMARK(BM_FloorForm)->Arg(25)->Arg(50)->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_FloorSurvey)->Arg(25)->Arg(50)->Arg(100)->Unit(benchmark::kMicrosecond);
