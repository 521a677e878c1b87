// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/input_types.h"
#include "port/ui_port.h"
#include "write/build_state.h"

#include <string>
#include <string_view>

namespace tq::html {

/// True when the trimmed, upper-cased default equals the trimmed, upper-cased choice.
bool IsDefaultChoice(std::string_view defaultValue, std::string_view choice);

/// The first part of the radio tag: "<input type="radio" value="CHOICE"" (no line end).
std::string RadioTag(std::string_view choice);

/// The name part of the radio tag: ` name="FIELD"checked>CHOICE` for the
/// default choice, ` name="FIELD">CHOICE` for the others.
std::string NamePart(std::string_view field, std::string_view choice, std::string_view defaultValue);

/// The font line of a choice list; its size is always 3.
std::string ChoiceFontLine(const write::BuildState& b);

/// A radio question in SURVEY: the numbered caption and field (none for a
/// download with password) go to messageLines, downloads add their file list;
/// followup and download types go to their own writers.
void WriteSurveyChoices(write::BuildState& b,
                        model::Mode mode,
                        std::string_view field,
                        std::string title,
                        const model::InputType& type,
                        std::string_view defaultValue,
                        std::string_view required);

/// A radio question in FORM, and every condition and table type of a FORM.
void WriteFormChoices(write::BuildState& b,
                      model::Mode mode,
                      std::string_view field,
                      std::string title,
                      const model::InputType& type,
                      std::string_view defaultValue,
                      std::string_view required);

/// Check boxes in SURVEY, named FIELD[]. With a title and an empty first
/// choice: the "NO VALUE" box, all channels closed, buildError 1, nothing written.
void WriteSurveyCheckboxes(write::BuildState& b,
                           model::Mode mode,
                           UiPort& ui,
                           std::string_view field,
                           std::string title,
                           const model::InputType& type,
                           std::string_view defaultValue,
                           std::string_view required);

/// Check boxes in FORM, with the same "NO VALUE" stop.
void WriteFormCheckboxes(write::BuildState& b,
                         UiPort& ui,
                         std::string_view field,
                         std::string title,
                         const model::InputType& type,
                         std::string_view defaultValue,
                         std::string_view required);

/// A select list in SURVEY: the default first, then every other choice, and
/// always "not selected" last and selected.
void WriteSurveyDropdown(write::BuildState& b,
                         model::Mode mode,
                         std::string_view field,
                         std::string title,
                         std::string_view defaultValue,
                         const model::InputType& type,
                         std::string_view required);

/// A select list in FORM: the default only removes its choice.
void WriteFormDropdown(write::BuildState& b,
                       std::string_view field,
                       std::string title,
                       std::string_view defaultValue,
                       const model::InputType& type,
                       std::string_view required);

} // namespace tq::html
