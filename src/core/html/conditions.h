// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/input_types.h"
#include "write/build_state.h"

#include <string>
#include <string_view>

namespace tq::html {

/// CONDITION WITH MULTIPLE CHOICES in SURVEY: caption and field to
/// messageLines, the heading, then the followup radio list.
void WriteConditionChoices(write::BuildState& b,
                           model::Mode mode,
                           std::string_view field,
                           std::string title,
                           const model::InputType& type,
                           std::string_view defaultValue,
                           std::string_view required);

/// CONDITION WITH DROPDOWN in SURVEY: radio buttons, the default one closing
/// the style and font at once behind it.
void WriteConditionDropdown(write::BuildState& b,
                            model::Mode mode,
                            std::string_view field,
                            std::string title,
                            const model::InputType& type,
                            std::string_view defaultValue,
                            std::string_view required);

/// The followup radio list of values.Choices; no choice is marked checked.
/// In FORM the QUESTION and FOLLOWUP types add a "<br>".
void WriteFollowupChoices(write::BuildState& b, model::Mode mode, std::string_view field, const model::InputType& type);

/// The list of download files (downloadFiles) with their labels; a VISIBLE
/// DOWNLOAD of "NO" leaves the list out.
void WriteDownloadList(write::BuildState& b, model::Mode mode);

} // namespace tq::html
