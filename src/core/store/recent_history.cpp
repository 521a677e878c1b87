// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/recent_history.h"

#include "model/text_ops.h"
#include "port/platform.h"
#include "session.h"
#include "store/text_file.h"

#include <chrono>
#include <filesystem>
#include <system_error>

namespace tq::store {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kCrLf = "\r\n";

std::array<MenuSlot, kMenuSlots>& MenuOf(RunValues& run, RecentList list)
{
    switch (list) {
    case RecentList::Surveys:
        return run.surveyMenu;
    case RecentList::Photos:
        return run.photoMenu;
    case RecentList::Forms:
        break;
    }
    return run.formMenu;
}

std::string TwoDigits(unsigned v)
{
    return (v < 10 ? "0" : "") + std::to_string(v);
}

/// The refresh of one list. Returns false when the list file can't be read.
bool RefreshList(Session& s, UiPort& ui, RecentList list)
{
    auto& menu = MenuOf(s.run, list);
    const std::string file = HistoryPath(s.DataFolder, list);
    const std::string showList = HistoryPath(s.DataFolder, RecentList::Photos);
    for (;;) {
        for (MenuSlot& slot : menu) {
            slot.caption = "None";
            slot.visible = false;
        }
        auto bytes = ReadWholeFile(file);
        if (!bytes)
            return false;
        int slotNumber = 0;
        bool again = false;
        for (const std::string& line : SplitFileLines(*bytes)) {
            if (line.empty())
                continue;
            std::string path = line;
            std::string year, month, day;
            FileDateParts(ui, path, year, month, day, model::ModeText(s.store.state.ProjectMode));
            if (year.empty()) {
                // the show list is searched even for a form or survey line,
                // so those lists keep their dead line
                bool failed = false;
                int removed = 0;
                RemoveHistoryLine(showList, path, failed, &removed);
                if (failed)
                    return true;
                // a pass that removes nothing would only see the same files
                // again: go on with the lines behind the dead one instead
                if (removed == 0)
                    continue;
                again = true;
                break;
            }
            if (++slotNumber <= kMenuSlots) {
                MenuSlot& slot = menu[static_cast<size_t>(slotNumber - 1)];
                slot.caption = std::to_string(slotNumber) + ". " + path;
                slot.visible = true;
                slot.enabled = true;
            }
        }
        if (!again)
            return true;
    }
}

} // namespace

std::string HistoryPath(const std::string& dataFolder, RecentList list)
{
    switch (list) {
    case RecentList::Surveys:
        return platform::JoinPath(dataFolder, "\\SurveyHistory.txt");
    case RecentList::Photos:
        return platform::JoinPath(dataFolder, "\\history.txt");
    case RecentList::Forms:
        break;
    }
    return platform::JoinPath(dataFolder, "\\FormHistory.txt");
}

void UpdateRecentList(Session& s, UiPort& ui)
{
    const bool form = s.store.state.ProjectMode == model::Mode::Form;
    const std::string h = HistoryPath(s.DataFolder, form ? RecentList::Forms : RecentList::Surveys);
    auto bytes = ReadWholeFile(h);
    if (!bytes)
        return; // the list is not created here
    std::string out = s.run.CurrentProjectName + std::string(kCrLf);
    std::string skip = s.run.CurrentProjectName;
    int count = 1;
    for (const std::string& line : SplitFileLines(*bytes)) {
        if (line.empty())
            continue;
        if (model::EqualsNoCase(line, skip)) {
            skip = line;
            continue;
        }
        if (++count > kMenuSlots)
            break;
        // a line off the drive ends the list here, as the end of the file would
        size_t at = platform::FindDriveMark(model::ToUpper(line));
        if (at == std::string::npos)
            break;
        out += line.substr(at);
        out += kCrLf;
    }
    WriteFileReplacing(h, out);
    if (form)
        RefreshFormList(s, ui);
    else
        RefreshSurveyList(s, ui);
}

void KeepInRecentList(Session& s, UiPort& ui)
{
    UpdateRecentList(s, ui);
    if (s.store.state.ProjectMode == model::Mode::Form)
        RefreshFormList(s, ui);
    else
        RefreshSurveyList(s, ui);
}

void RefreshFormList(Session& s, UiPort& ui)
{
    RefreshList(s, ui, RecentList::Forms);
}

void RefreshSurveyList(Session& s, UiPort& ui)
{
    RefreshList(s, ui, RecentList::Surveys);
}

void RefreshPhotoList(Session& s, UiPort& ui)
{
    const std::string file = HistoryPath(s.DataFolder, RecentList::Photos);
    CopyFileReplacing(file, platform::JoinPath(s.DataFolder, "\\historybak.txt"));
    s.run.photoRecentEnabled = RefreshList(s, ui, RecentList::Photos);
}

bool FileDateParts(
    UiPort& ui, std::string& path, std::string& year, std::string& month, std::string& day, std::string_view mode)
{
    year.clear();
    month.clear();
    day.clear();
    size_t at = platform::FindDriveMark(path);
    if (at != std::string::npos)
        path = path.substr(at);
    std::error_code ec;
    auto stamp = fs::last_write_time(path, ec);
    if (!ec && fs::is_directory(path, ec))
        ec = std::make_error_code(std::errc::is_a_directory);
    if (ec) {
        // titled by the system's own text of the error
        ui.message(path +
                       "\rdoes not exist\r\rEdit the History File and remove or update the path by going to FILE, "
                       "RECENT, " +
                       std::string(mode) + " and EDIT HISTORY",
                   ec.message(), Icon::Exclamation);
        return false;
    }
    const auto days = std::chrono::floor<std::chrono::days>(std::chrono::file_clock::to_sys(stamp));
    const std::chrono::year_month_day ymd{days};
    year = std::to_string(static_cast<int>(ymd.year()));
    month = TwoDigits(static_cast<unsigned>(ymd.month()));
    day = TwoDigits(static_cast<unsigned>(ymd.day()));
    return true;
}

void RemoveHistoryLine(const std::string& file, std::string_view text, bool& failed, int* removed)
{
    failed = false;
    if (removed)
        *removed = 0;
    auto bytes = ReadWholeFile(file);
    if (!bytes) {
        failed = true;
        return;
    }
    auto lines = SplitFileLines(*bytes);
    if (lines.empty()) {
        failed = true;
        return;
    }
    const std::string needle = model::ToUpper(text);
    std::string out;
    for (const std::string& line : lines) {
        if (model::ToUpper(line).find(needle) != std::string::npos) {
            if (removed)
                ++*removed;
            continue;
        }
        out += line;
        out += kCrLf;
    }
    if (!WriteFileReplacing(file, out))
        failed = true;
}

void AppendShowHistory(Session& s, UiPort& ui, const std::string& path)
{
    const std::string file = HistoryPath(s.DataFolder, RecentList::Photos);
    std::string bytes = ReadWholeFile(file).value_or(std::string());
    bytes += path;
    bytes += kCrLf;
    WriteFileReplacing(file, bytes);
    RefreshPhotoList(s, ui);
}

int ChooseRecentEntry(Session& s, UiPort& ui, RecentList list, int slot, int returnPage, const ProjectHooks& hooks)
{
    if (list == RecentList::Photos || slot < 1 || slot > kMenuSlots)
        return 1;
    s.run.CurrentProjectName = MenuOf(s.run, list)[static_cast<size_t>(slot - 1)].caption;
    return OpenProject(s, ui, returnPage, list == RecentList::Forms ? "fms" : "srv", true, hooks);
}

void EditHistory(Session& s, UiPort& ui, RecentList list)
{
    switch (list) {
    case RecentList::Forms:
        RefreshFormList(s, ui);
        break;
    case RecentList::Surveys:
        RefreshSurveyList(s, ui);
        break;
    case RecentList::Photos:
        RefreshPhotoList(s, ui);
        break;
    }
    ui.openTarget(HistoryPath(s.DataFolder, list));
}

} // namespace tq::store
