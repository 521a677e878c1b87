// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

namespace tq::store {

constexpr int kMenuSlots = 15;

/// One numbered menu entry that the core names and the shell shows.
struct MenuSlot
{
    std::string caption = "Not Assigned";
    bool visible = false;
    bool enabled = true;
};

/// The texts that depend on the mode and on the loaded file (RefreshStatus).
struct StatusTexts
{
    std::string fileLabel = "NOTHING IS CURRENTLY LOADED"; // first label of the start page
    std::string modeLabel = "FORM IS ACTIVE";              // second label
    std::array<std::string, 4> pageCaptions;               // "Page 1 of 4     Create: Form" ...
    std::string buildMenu = "&Build-Form";
    std::string buildOnly = "Build Form Only";
    std::string buildWithHtml = "Build Form With HTML";
};

/// The busy mark read by the mode switch while a save or a load runs.
enum BusyMark : int {
    kIdle = 0,
    kLoading = 1,
    kSaving = 222,
};

/// Values kept for the run: the current project name, the last form file, counters.
struct RunValues
{
    std::string CurrentProjectName; // the name the status text and the recent lists work with
    std::string LastFormFile;       // the last path holding ".FMS"
    std::string LastProjectPath;    // the file name of the last Open
    int busyMark = kIdle;           // 0 idle, 1 loading, 222 saving
    bool LoadInProgress = false;    // from the open dialog to the end of a load
    int previewCaller = 0;          // 9: the preview window was opened from the final page
    std::string savedRows;          // the rows as the last open or save left them (WriteEntries)
    int projectSaves = 0;           // counts the saves and opens that put the rows in step with a file

    // Run defaults that the start and a restore of defaults set.
    std::string GlobalFont = "arial";
    std::string FontSize = "3";
    std::string Italics = "off";
    std::string Bold = "off";

    StatusTexts status;
    std::array<MenuSlot, kMenuSlots> formMenu;   // File1 .. File15
    std::array<MenuSlot, kMenuSlots> surveyMenu; // FileHistory1 .. FileHistory15
    std::array<MenuSlot, kMenuSlots> photoMenu;  // History1 .. History15
    bool photoRecentEnabled = true;              // the Recent menu of the photo show page
};

} // namespace tq::store
