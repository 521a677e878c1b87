// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/input_types.h"
#include "session.h"

#include <string_view>

namespace tq::compose {

// The places where the PHP pass of the driver hands over to the script
// writers. The driver opens and closes the files; these write the text.

/// The opening of the script on channel 1, before "\downtemp.txt" is opened.
void WriteScriptHead(Session& s, UiPort& ui);

/// The recipients and the "Validation Code" banner on channel 1, after
/// "\downtemp.txt" was opened on channel 2.
void WriteValidationBanner(Session& s, UiPort& ui);

/// The PHP of one Entry (pass 2 of the dispatcher), after its extraction, by
/// the PHP writer of its row. May set `buildError`.
void WriteEntryPhp(Session& s, UiPort& ui, const model::InputType& type, std::string_view fieldName);

/// The "$option" lines, written when `optionPending` is set, before the copy
/// of "\downtemp.txt".
void WriteOptionLines(Session& s, UiPort& ui);

/// Everything behind the copy of "\downtemp.txt": date, headers, message,
/// the fixed functions and the end of the script.
void WriteScriptTail(Session& s, UiPort& ui);

} // namespace tq::compose
