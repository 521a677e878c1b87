// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary bytes as the three recent lists: each list is refreshed into its
// menu, a saved project goes to the front of the form and survey lists, a
// show is appended and a line is removed. An "@" in the bytes stands for the
// scratch data folder, so that lines can name files that are there.
#include "port/ui_port.h"
#include "session.h"
#include "store/recent_history.h"
#include "store/text_file.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace {

struct QuietPort : tq::UiPort
{
    void message(std::string_view, std::string_view, tq::Icon) override {}
    tq::Answer ask(std::string_view, std::string_view, tq::Buttons, tq::Icon, int) override { std::abort(); }
    std::optional<std::string> inputBox(std::string_view, std::string_view, std::string_view) override { std::abort(); }
    std::optional<std::string> openFileDialog(const tq::FileDialogOptions&) override { std::abort(); }
    std::optional<std::string> saveFileDialog(const tq::FileDialogOptions&) override { std::abort(); }
    std::optional<std::string> browseForFolder(std::string_view, std::string_view) override { std::abort(); }
    std::optional<long> chooseColor(long, std::string_view) override { std::abort(); }
};

/// The scratch data folder with two real files in it, removed at the end.
struct Scratch
{
    std::string folder;
    Scratch()
    {
        auto p = std::filesystem::temp_directory_path() / ("tq_recent_fuzz_" + std::to_string(::getpid()));
        std::filesystem::create_directories(p);
        folder = p.string();
        tq::store::WriteFileReplacing(folder + "/real.fms", "x");
        tq::store::WriteFileReplacing(folder + "/real.shw", "x");
    }
    ~Scratch()
    {
        std::error_code ec;
        std::filesystem::remove_all(folder, ec);
    }
};

const std::string& Folder()
{
    static const Scratch scratch;
    return scratch.folder;
}

/// Every visible menu caption is numbered from 1 in order.
void CheckMenu(const std::array<tq::store::MenuSlot, tq::store::kMenuSlots>& menu)
{
    int n = 0;
    for (const auto& slot : menu) {
        ++n;
        if (slot.visible && slot.caption.rfind(std::to_string(n) + ". ", 0) != 0)
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace tq::store;
    const std::string& dir = Folder();
    std::string bytes;
    for (size_t i = 0; i < size; ++i) {
        if (data[i] == '@')
            bytes += dir;
        else
            bytes += static_cast<char>(data[i]);
    }
    tq::Session s;
    s.DataFolder = dir;
    QuietPort ui;
    for (RecentList list : {RecentList::Forms, RecentList::Surveys, RecentList::Photos})
        WriteFileReplacing(HistoryPath(dir, list), bytes);

    RefreshFormList(s, ui);
    RefreshSurveyList(s, ui);
    RefreshPhotoList(s, ui);
    CheckMenu(s.run.formMenu);
    CheckMenu(s.run.surveyMenu);
    CheckMenu(s.run.photoMenu);

    s.run.CurrentProjectName = dir + "/real.fms";
    for (const char* mode : {"FORM", "SURVEY"}) {
        s.store.state.ProjectMode = tq::model::ModeOf(mode);
        UpdateRecentList(s, ui);
        const auto lines = SplitFileLines(
            ReadWholeFile(HistoryPath(dir, std::string(mode) == "FORM" ? RecentList::Forms : RecentList::Surveys))
                .value_or(""));
        if (lines.empty() || lines.front() != s.run.CurrentProjectName ||
            lines.size() > static_cast<size_t>(kMenuSlots))
            std::abort(); // the saved project heads a list of at most 15
    }
    CheckMenu(s.run.formMenu);
    CheckMenu(s.run.surveyMenu);

    AppendShowHistory(s, ui, dir + "/real.shw");
    CheckMenu(s.run.photoMenu);
    bool failed = false;
    RemoveHistoryLine(HistoryPath(dir, RecentList::Photos), bytes.substr(0, 8), failed);
    return 0;
}
