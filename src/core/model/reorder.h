// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/entry_store.h"
#include "port/ui_port.h"

#include <string_view>

namespace tq::model {

/// The leading number of a text: blanks skipped, a sign, digits with a
/// fraction and an exponent ("12abc" is 12, "2.5" is 2.5); 0 when none.
double LeadingNumber(std::string_view text);

/// The question of the Order command, "REORDER ENTRIES"; true on Yes.
bool AskToReorder(UiPort& ui);

/// Sorts the filled rows of all four Pages by their ReferenceNumber, compacts
/// them from row 0 of Page 1 and numbers all 100 rows anew. Under OrderPrompt
/// it asks first (and clears the flag); No changes nothing. A number of 0 on
/// any row, filled or empty, shows ORDER ERROR and changes
/// no row; numbers above MaxEntries are cut to it; equal numbers keep Page and
/// row order; a fractional number matches no place and its row is lost.
/// Unless SwitchInProgress, ends with NO CHANGES NEEDED or ORDER UPDATED,
/// judged on the names of Page 1 only. Returns false on the order error.
bool ReorderEntries(EntryStore& store, UiPort& ui);

/// A changed ReferenceNumber: a row whose name starts with "CONDITION" gives
/// its number to the row below, so that its Followup sorts right behind it.
/// Row 24 has no row below. Returns true when the number was given on.
bool FollowPartnerNumber(EntryStore& store, int page, int row);

} // namespace tq::model
