// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/catalogue.h"
#include "model/entry_store.h"
#include "model/settings.h"
#include "port/ui_port.h"

#include <optional>
#include <string_view>

namespace tq::model {

/// The records that the editing operations change. All four belong to one
/// session; `ui` shows their messages and refreshes the views.
struct EditContext
{
    EntryStore& store;
    TemplateSettings& settings;
    Catalogue& catalogue;
    UiPort& ui;
};

/// The row a pair may start on: `row` itself, or the sentinel CatalogueCount
/// when `row` is 24 and `name` starts with "CONDITION" or is "DOWNLOAD FILES
/// WITH PASSWORD" (no room for the Followup on this Page).
int PairRowGuard(const Catalogue& catalogue, std::string_view name, int row);

/// True for the names that make an insert open two rows: the four partners,
/// "FOLLOWUP WITH DROPDOWN" and "FOLLOWUP WITH COMMENT".
bool NeedsTwoRows(std::string_view name);

/// Enter or double click on the pick list: adds the Input Type at
/// `catalogueIndex` (-1: nothing selected, which says so) at the first
/// empty row of `page`, a pair's Followup in the row below. A pair never
/// starts on row 24; a full Page moves the add on to the next Page (which
/// is shown), and past Page 4 "Entries are full" is shown. Under
/// QuickPreviewActive the Entry goes to PreviewSlots and no row changes;
/// under PreviewFromEdit the Entry is the row under edit.
/// Returns the row that took the Entry; nullopt when no row was stored.
std::optional<RowRef> AddToFirstFreeRow(EditContext& c, int page, int catalogueIndex);

/// A drop on `row` of `page`. The source is the dragged row of the same Page
/// when DragSource is above 30 (it is copied, its row stays), else the pick
/// list item `pickIndex`. Refuses a drop on a Followup (INVALID), a pair on
/// row 24 (silently) and the SETUP row (CANNOT COPY SETUP). A filled target
/// is pushed down to make room; a pair gets its Followup behind it. A
/// dragged row is copied from where the drag mark points after the room was
/// made and the mark moved one down: a row from below the drop is found
/// again, while from above it the row after the source is taken, and an
/// empty one ends the drop.
void InsertAtRow(EditContext& c, int page, int row, int pickIndex);

/// Makes room on one Page before row `row - 1`: two blank rows in mode 1,
/// one in mode 2 (where an empty row there is not written again). Rows
/// pushed past row 24 are lost. Reference numbers and edit commands stay.
void InsertRows(EntryStore& store, int page, int row, int mode);

/// The Clear command of a row: empties it, and the other half of its pair
/// (a Followup below or a partner above).
void ClearRow(EditContext& c, int page, int row);

/// Empties every row, the SETUP row included, after asking when there is
/// data (mode 1; modes 2 and 22 never ask; SkipClearPrompt skips once).
/// On No, AbortFlag is 1 and nothing changes; returns false then. The
/// SetupEntry is kept in SavedSetupName/Text unless KeepSetupRow is set.
bool ClearAllRows(EditContext& c, int mode);

/// The CLR All command: ClearAllRows(1), then unless refused InitSetupRow.
void ClearAllCommand(EditContext& c);

} // namespace tq::model
