// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/input_types.h"
#include "port/ui_port.h"
#include "write/build_state.h"

#include <string>
#include <string_view>

namespace tq::php {

/// The PHP of one Entry whose attributes are extracted, by the PHP writer of
/// its row: the checks of its field on channel 1 from the Entry's values
/// (MSG, MSG2, REQ, USERNAME, PASSWORD) in `state.values`, its question
/// number, and the new `lastConditionField`. Nothing for an empty key (or an
/// empty title of a download type). A FOLLOWUP FILES WITH PASSWORD must follow
/// a download type or a Condition: then its password check goes to channel 2
/// (\downtemp.txt); out of place it shows the "ERROR" box and sets
/// `buildError` to 1.
void WriteEntryPhp(UiPort& ui, write::BuildState& state, const model::InputType& type, std::string_view key);

/// WriteEntryPhp for a type by name (any case); nothing for a name outside
/// the table of Input Types.
void WriteEntryPhp(UiPort& ui, write::BuildState& state, std::string_view inputType, std::string_view key);

} // namespace tq::php
