// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "compose/build_state.h"
#include "port/ui_port.h"

#include <string>
#include <string_view>

namespace tq::php {

/// True when the Input Type (any case) has a script writer: every type the
/// dispatcher handles except SETUP, HORIZONTAL LINE, TITLE SHADE, BLANK LINE,
/// VIDEO and PICTURE.
bool HasEntryPhp(std::string_view inputType);

/// True for the three types of the download writer: DOWNLOAD FILES,
/// DOWNLOAD FILES WITH PASSWORD and FOLLOWUP FILES WITH PASSWORD (any case).
bool IsDownloadType(std::string_view inputType);

/// Numbers the two messages of an Entry when `[NUMBER EACH QUESTION=` is YES:
/// a Condition or DOWNLOAD FILES WITH PASSWORD advances `phpQuestionNumber`
/// and gets " 3a. ", a Followup keeps the number and gets " 3b. ", every other
/// type advances it and gets "3. "; " for question 3a" goes behind. Does
/// nothing when the switch is off.
void NumberMessages(compose::BuildState& state, std::string_view inputType, std::string& msg, std::string& msg2);

/// The general writer: the checks of one field on channel 1, from the Entry's
/// values (MSG, MSG2, REQ, USERNAME, PASSWORD) in `state.values`, and the new
/// `lastConditionField`. Writes nothing for an empty key, VIDEO, and the
/// TITLE and SURVEY types; other types without checks only number.
void WriteGeneralPhp(compose::BuildState& state, std::string_view inputType, std::string_view key);

/// The download writer. DOWNLOAD FILES writes download_file() or its check,
/// DOWNLOAD FILES WITH PASSWORD its check; FOLLOWUP FILES WITH PASSWORD must
/// follow one of those or a Condition: then it writes its checks on channel 1
/// and its password check on channel 2 (\downtemp.txt). Out of place, it shows
/// the "ERROR" box and sets `buildError` to 1. Writes nothing for an empty key
/// or title.
void WriteDownloadPhp(UiPort& ui, compose::BuildState& state, std::string_view inputType, std::string_view key);

/// The PHP pass's call for one Entry whose attributes are extracted: the
/// download writer or the general writer by Input Type; nothing for a type
/// without a script writer.
void WriteEntryPhp(UiPort& ui, compose::BuildState& state, std::string_view inputType, std::string_view key);

} // namespace tq::php
