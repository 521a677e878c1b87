// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

namespace tq::model {

constexpr int kPageCount = 4;
constexpr int kRowsPerPage = 25;
constexpr int kMaxEntries = 100;
constexpr int kMaxFlatLines = 400;

enum class Highlight { None, Green, Red };

/// One row of a Page.
struct Entry
{
    std::string InputTypeName;   // empty: the row is empty
    std::string AttributeText;   // normally ends in CR LF
    std::string ReferenceNumber; // kept as typed; survives ClearRow
    bool EditEnabled = false;
    Highlight highlight = Highlight::None;
};

/// Two slots of the quick preview: the Entry and its generated Followup.
struct PreviewSlot
{
    std::string InputTypeName;
    std::string AttributeText;
};

/// The state record shared by all parts of the program.
struct StateRecord
{
    std::string ProjectMode = "FORM";
    std::string CurrentFileName;
    std::string LoadedMarker;
    int EditPage = 1;
    int EditRow = 0;
    int DragSource = 0;
    bool QuickPreviewActive = false;
    std::array<PreviewSlot, 2> PreviewSlots;
    bool PreviewFromEdit = false;
    bool NewProjectPending = false;
    bool SwitchInProgress = false;
    bool KeepSetupRow = false;
    std::string SavedSetupName;
    std::string SavedSetupText;
    int AbortFlag = 0;
    bool LoadPending = false; // the opening marker: the clear prompt runs on behalf of an open
    int commitMode = 0; // 10 while Exit of the edit page commits, 11 during an Entry preview, else 0
    bool CommitFailed = false; // a line check of the edit page refused the commit
    int buildError = 0;
};

/// The four Pages of 25 rows and the state record.
struct EntryStore
{
    std::array<std::array<Entry, kRowsPerPage>, kPageCount> pages; // pages[Page - 1][row]
    StateRecord state;
    int MaxEntries = kMaxEntries;
};

} // namespace tq::model
