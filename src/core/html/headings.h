// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/input_types.h"
#include "write/build_state.h"

#include <string>
#include <string_view>

namespace tq::html {

/// The font face of every heading and choice; no attribute changes it.
inline constexpr std::string_view kFace = "arial";

/// The name= of an Entry's controls: the first five characters of the Input
/// Type and its odd slot in the flat list, trimmed and lower-cased. A blank
/// inside stays: CELL PHONE NUMBER in slot 11 gives "cell 11".
std::string FieldName(std::string_view inputType, int position);

/// The name of the single Entry of a preview: the whole type lower-cased and "1".
std::string PreviewFieldName(std::string_view inputType);

/// True when the session's ProjectMode is SURVEY (compared upper-cased).
bool IsSurvey(const write::BuildState& b);

// The families of Input Types the page writers tell apart, by the rows' ids.

/// TITLE SHADE and the three TITLE types.
bool IsTitle(const model::InputType& type);
/// The three CONDITION types.
bool IsCondition(const model::InputType& type);
/// The four FOLLOWUP types.
bool IsFollowup(const model::InputType& type);
/// The five QUESTION types.
bool IsQuestion(const model::InputType& type);
/// CHECKBOX HORIZONTAL and VERTICAL.
bool IsCheckbox(const model::InputType& type);
/// The three COMMENTS types.
bool IsComments(const model::InputType& type);
/// DOWNLOAD FILES and DOWNLOAD FILES WITH PASSWORD.
bool IsDownload(const model::InputType& type);

/// Appends one element to messageLines; past 500 throws model::InternalError.
void AppendMessageLine(write::BuildState& b, std::string text);

/// Prefixes the e-mail caption with its number ("4. ", "4a. ", "4b. ") and
/// advances messageNumber by the pair rule.
void NumberForMessage(write::BuildState& b, std::string& caption, const model::InputType& type);

/// With [NUMBER EACH QUESTION=YES, prefixes the page title with its number
/// ("4. &nbsp;"; a "b" number is indented by three &nbsp;) and advances
/// questionNumber by the pair rule. Otherwise leaves everything alone.
void NumberForPage(write::BuildState& b, std::string& title, const model::InputType& type);

/// The prologue of a question: the numbered caption and the field name go to
/// messageLines, then the page title gets its number.
void RecordQuestion(write::BuildState& b, std::string_view fieldName, std::string& title, const model::InputType& type);

/// Cuts the title at each "\n" (any case) into TitleLines, rewriting runs of
/// blanks as &nbsp;. An empty title leaves TitleLines as they stand.
/// More than 150 lines throws model::InternalError.
void SplitTitle(write::BuildState& b, std::string_view title);

/// The heading of a FORM question on channel 1. The font tag stays open.
/// The Required value a heading uses: the two password downloads are always
/// required, whatever their attribute says.
std::string ForcedRequired(std::string_view required, const model::InputType& type);

void WriteFormHeading(write::BuildState& b,
                      std::string_view title,
                      std::string_view required,
                      const model::InputType& type);

/// The heading of a SURVEY question on channel 1 (forms A to D by type), then
/// the shade table unless the type is a TITLE.
void WriteSurveyHeading(write::BuildState& b,
                        model::Mode mode,
                        std::string_view title,
                        std::string_view required,
                        const model::InputType& type);

/// The font tag with colour, face and size, then <i> and <b> as set.
void WriteTextOpen(write::BuildState& b);
/// "<i>" when italics are on.
void WriteItalicOpen(write::BuildState& b);
/// "</i>" when italics are on.
void WriteItalicClose(write::BuildState& b);
/// "</i>" then "</b>", each when set.
void WriteStyleClose(write::BuildState& b);
/// The shade table of a SURVEY question; nothing in FORM.
void WriteShadeOpen(write::BuildState& b, model::Mode mode);
/// Closes the shade table in SURVEY; nothing in FORM.
void WriteShadeClose(write::BuildState& b, model::Mode mode);
/// Eleven &nbsp; on a line.
void WriteIndent11(write::BuildState& b);
/// Five &nbsp; on a line.
void WriteIndent5(write::BuildState& b);

} // namespace tq::html
