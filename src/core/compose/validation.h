// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

#include <string>
#include <string_view>

namespace tq {
struct Session;
}
namespace tq::model {
struct EntryStore;
}

namespace tq::compose {

/// Maps a slot of the flat list (counted from 1; an Entry is the odd slot of
/// its Input Type) to its Page (1 to 4) and row (0 to 24). Slots 1 to 50 are
/// Page 1, 51 to 100 Page 2, 101 to 150 Page 3, the rest Page 4.
void LocateEntry(int slot, int& row, int& page);

/// Takes the user back to the Entry of `slot` after a failed check: shows its
/// Page, selects its row and opens it on the edit page. `buildError` stays 1.
void ReportBuildFault(Session& s, UiPort& ui, int slot);

/// The report of an Input Type that is not in the catalogue: shows the Page
/// of `slot` with the row selected and the stop box "... is not a valid input
/// type.". Leaves `buildError` at 1 and all channels closed. A fault of the
/// report itself comes as a "FATAL ERROR" box and the report goes on.
void ReportUnknownType(Session& s, UiPort& ui, int slot, std::string_view inputType);

/// Takes out every CR LF pair of `text`, starting again from the front after
/// each one, so that a text that went through a multi-line box is one line.
void FixLineBreaks(std::string& text);

/// Rewrites one attribute of `text` through the two scratch files of the
/// DataFolder: every line that holds `key` (compared in upper case, e.g.
/// "[ALIGN") becomes the key as the text spells it, "=", `value` and "]".
/// `text` then holds the rewritten lines, each ended by CR LF. A file fault
/// sets `buildError` to 1; success clears it.
void RewriteAttribute(Session& s, std::string_view key, std::string_view value, std::string& text);

/// The pair rule for reference numbers: when the Input Type of (page, row)
/// starts with "CONDITION", the row below takes its ReferenceNumber. Row 24
/// has no row below. Returns true when the row below changed.
bool KeepPairTogether(model::EntryStore& store, int page, int row);

/// A Condition by name: its first nine characters are "CONDITION" (upper case).
bool IsConditionType(std::string_view inputType);
/// A Followup by name: its first eight characters are "FOLLOWUP" (upper case).
bool IsFollowupType(std::string_view inputType);
/// The download pair is told by the first five characters of the last stored
/// key: "DOWNL" for a download, "CONDI" for a Condition.
bool IsDownloadKey(std::string_view key);
bool IsConditionKey(std::string_view key);

} // namespace tq::compose
