// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"
#include "store/project_file.h"

#include <string>
#include <string_view>

namespace tq {
struct Session;
}

namespace tq::store {

/// The three recent lists.
enum class RecentList { Forms, Surveys, Photos };

/// The file of a list in the DataFolder: "\FormHistory.txt",
/// "\SurveyHistory.txt" or "\history.txt".
std::string HistoryPath(const std::string& dataFolder, RecentList list);

/// The text that the Edit History commands show.
inline constexpr std::string_view kHistoryPrompt =
    "You can add or remove any or all of the recent history files that you've opened or saved\r\rMake your changes "
    "then press Ok to refresh your Saved History";

/// UpdateRecentList: puts CurrentProjectName at the front of the list of the
/// ProjectMode (not of the file's extension), drops its old line (compared
/// upper-cased), keeps 15 lines and cuts the list at the first later line that
/// holds no drive mark; then refreshes the list's menu. A missing list file
/// is not created.
void UpdateRecentList(Session& s, UiPort& ui);

/// What an open keeps of the file it read: UpdateRecentList, then the list
/// of the project's mode rebuilt once more.
void KeepInRecentList(Session& s, UiPort& ui);

/// RefreshFormList: rebuilds File1..File15 from "\FormHistory.txt".
void RefreshFormList(Session& s, UiPort& ui);

/// RefreshSurveyList: rebuilds FileHistory1..FileHistory15.
void RefreshSurveyList(Session& s, UiPort& ui);

/// RefreshPhotoList: backs "\history.txt" up to "\historybak.txt" and rebuilds
/// History1..History15; the Recent menu is disabled when the file can't be read.
void RefreshPhotoList(Session& s, UiPort& ui);

/// FileDateParts: cuts `path` to start at its drive mark and asks for the
/// file's date. Returns false, with the three parts empty and the missing-file
/// message shown (naming `mode`), when the file is not there.
bool FileDateParts(
    UiPort& ui, std::string& path, std::string& year, std::string& month, std::string& day, std::string_view mode);

/// RemoveHistoryLine: rewrites `file` without the lines that contain `text`
/// (compared upper-cased). `failed` is set when the file can't be read or has
/// no lines; then nothing is written. `removed` counts the dropped lines.
void RemoveHistoryLine(const std::string& file, std::string_view text, bool& failed, int* removed = nullptr);

/// AppendShowHistory: adds a saved show to "\history.txt" (created by its
/// first append) and refreshes the photo list.
void AppendShowHistory(Session& s, UiPort& ui, const std::string& path);

/// Choosing File<slot> (Forms) or FileHistory<slot> (Surveys): the caption
/// becomes CurrentProjectName and OpenProject runs with fromRecentList.
/// `returnPage` is 1 on the start page, 2 on Page 1. Returns OpenProject's flag.
int ChooseRecentEntry(
    Session& s, UiPort& ui, RecentList list, int slot, int returnPage, const ProjectHooks& hooks = {});

/// EditFormHistory and its like: refreshes the list, then opens the list file
/// in the desktop's text editor.
void EditHistory(Session& s, UiPort& ui, RecentList list);

} // namespace tq::store
