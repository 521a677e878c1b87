// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/input_types.h"
#include "write/build_state.h"

#include <string>
#include <string_view>

namespace tq::html {

/// TABLE TEXT REQUIRED in SURVEY: a header row of the column labels
/// (values.RowChoices) and one row of radios, "Required" in the corner cell.
/// In a whole-page build the table is a document of its own. The caption
/// (values.ColChoice) records the question in messageLines. `title` and
/// `defaultValue` are not used.
void WriteTableText(write::BuildState& b,
                    model::Mode mode,
                    std::string_view field,
                    std::string_view title,
                    const model::InputType& type,
                    std::string_view defaultValue,
                    std::string_view required);

/// TABLE CHOICES REQUIRED in SURVEY: as WriteTableText, with the star in the
/// caption and each label inside its radio tag.
void WriteTableChoices(write::BuildState& b,
                       model::Mode mode,
                       std::string_view field,
                       std::string_view title,
                       const model::InputType& type,
                       std::string_view defaultValue,
                       std::string_view required);

} // namespace tq::html
