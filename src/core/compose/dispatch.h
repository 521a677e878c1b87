// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session.h"
#include "write/working_values.h"

#include <string>
#include <string_view>

namespace tq::compose {

/// Clears the values of one Entry before its extraction: default value, the
/// visible-download values, title, password, width, height, user name,
/// error texts, required value, and the lists of choices, check boxes,
/// default lines and introduction lines.
void ClearEntryValues(write::WorkingValues& v);

/// The one road of every Entry in both passes: looks the type up in the
/// table of Input Types, clears the Entry values, extracts the attributes
/// (all types but HORIZONTAL LINE), then in pass 1 calls the row's writer of
/// the ProjectMode, and in pass 2 the row's PHP writer. A fault of the extraction has set `buildError` 1 and
/// nothing is written; an unknown type leaves `buildError` 5.
void DispatchEntry(Session& s,
                   UiPort& ui,
                   int pass,
                   const std::string& fieldName,
                   const std::string& inputType,
                   const std::string& attributeText);

} // namespace tq::compose
