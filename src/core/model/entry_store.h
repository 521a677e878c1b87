// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/internal_error.h"
#include "model/mode.h"
#include "port/ui_port.h"

#include <array>
#include <string>
#include <string_view>

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

/// What a commit of the edit page is run for: the line checks differ.
enum class CommitMode {
    Plain = 0,         // every other commit
    Exit = 10,         // Exit of the edit page commits: the FROM and COMPLETED semicolons are refused too
    EntryPreview = 11, // the Entry preview commits: nothing is tested
};

/// The state record shared by all parts of the program.
struct StateRecord
{
    Mode ProjectMode = Mode::Form;
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
    bool SkipClearPrompt = false; // one shot: the next ClearAllRows does not ask
    bool OrderPrompt = false;     // the Order command asks before ReorderEntries runs
    std::string SavedSetupName;
    std::string SavedSetupText;
    int AbortFlag = 0;
    bool LoadPending = false; // the opening marker: the clear prompt runs on behalf of an open
    CommitMode commitMode = CommitMode::Plain;
    bool CommitFailed = false; // a line check of the edit page refused the commit
};

using PageRows = std::array<std::array<Entry, kRowsPerPage>, kPageCount>;

/// Four Pages of empty rows whose ReferenceNumber is the row's ordinal.
PageRows MakeDefaultPages();

/// The four Pages of 25 rows and the state record.
struct EntryStore
{
    PageRows pages = MakeDefaultPages(); // pages[Page - 1][row]
    StateRecord state;
    int MaxEntries = kMaxEntries;
};

/// A row's address: Page 1 to 4, row 0 to 24.
struct RowRef
{
    int page = 1;
    int row = 0;
    bool operator==(const RowRef&) const = default;
};

/// The flat list: line 2k-1 holds the InputTypeName and line 2k the
/// AttributeText of the k-th Entry gathered. Lines count from 1.
struct FlatList
{
    std::array<std::string, kMaxFlatLines> lines;
    int EntryLineCount = 0;

    /// Line N (1 to 400); InternalError outside.
    const std::string& at(int n) const;
    std::string& at(int n);
    /// Appends a line; InternalError past 400 lines.
    void push(std::string line);
    /// Empties every line and the count.
    void clear();
};

/// The ordinal k = 25 * (page - 1) + row + 1 of a row (1 to 100).
int RowOrdinal(int page, int row);

/// Plain access to a row. InternalError for a Page outside 1 to 4 or a row
/// outside 0 to 24.
Entry& GetEntry(EntryStore& store, int page, int row);
const Entry& GetEntry(const EntryStore& store, int page, int row);

/// Sets a row's InputTypeName as given.
void SetInputTypeName(EntryStore& store, int page, int row, std::string text);

/// How SetAttributeText stores a text.
enum class Stored {
    Normalized, // through NormalizeAttributeText
    AsIs,       // already in its stored form (a row moved by dragging)
};

/// Stores `text` in a row, through NormalizeAttributeText (its messages go
/// to `ui`) unless `how` is Stored::AsIs.
void SetAttributeText(
    EntryStore& store, UiPort& ui, int page, int row, std::string_view text, Stored how = Stored::Normalized);

/// Counts the rows whose InputTypeName is not exactly empty (a row of blanks
/// counts), the SetupEntry included; rows 0 to 24, and Pages 1 to 4 in each.
int CountFilledRows(const EntryStore& store);

/// Fills `list` with the rows in use (a name that is not blank after
/// trimming), Page 1 to 4 and rows 0 to 24 in order, two lines each.
void FillFlatList(const EntryStore& store, FlatList& list);

/// The Page and row of flat-list line N: k = (N + 1) / 2, then N below 51,
/// 101, 151 or any other gives Page 1, 2, 3 or 4. InternalError when that
/// names no row (N outside 1 to 200).
RowRef FlatLineToRow(int n);

/// Resets Highlight on all 100 rows, unless the preview was asked for on the
/// edit page (PreviewFromEdit).
void ClearHighlights(EntryStore& store);

/// Disables the edit command on every row, then enables it on the SetupEntry
/// (row 0 of Page 1).
void ClearEditMarkers(EntryStore& store);

/// ClearEditMarkers, then enables the edit command on every row whose
/// InputTypeName is not exactly empty.
void RefreshEditMarkers(EntryStore& store);

/// Gives every row its ordinal as ReferenceNumber: what the program starts with.
void InitRowBookkeeping(EntryStore& store);

/// Empties InputTypeName and AttributeText of all 100 rows, the SetupEntry
/// included. ReferenceNumber, markers and highlights stay as they are: the
/// caller refreshes them.
void ResetEntries(EntryStore& store);

} // namespace tq::model
