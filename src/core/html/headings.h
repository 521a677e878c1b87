// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "write/build_state.h"

#include <string>
#include <string_view>

namespace tq {
struct Session;
}

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
bool IsSurvey(const Session& s);

/// Appends one element to messageLines; past 500 throws model::InternalError.
void AppendMessageLine(write::BuildState& b, std::string text);

/// Prefixes the e-mail caption with its number ("4. ", "4a. ", "4b. ") and
/// advances messageNumber by the pair rule.
void NumberForMessage(write::BuildState& b, std::string& caption, std::string_view inputType);

/// With [NUMBER EACH QUESTION=YES, prefixes the page title with its number
/// ("4. &nbsp;"; a "b" number is indented by three &nbsp;) and advances
/// questionNumber by the pair rule. Otherwise leaves everything alone.
void NumberForPage(write::BuildState& b, std::string& title, std::string_view inputType);

/// The prologue of a question: the numbered caption and the field name go to
/// messageLines, then the page title gets its number.
void RecordQuestion(write::BuildState& b, std::string_view fieldName, std::string& title, std::string_view inputType);

/// Cuts the title at each "\n" (any case) into TitleLines, rewriting runs of
/// blanks as &nbsp;. An empty title leaves TitleLines as they stand.
/// More than 150 lines throws model::InternalError.
void SplitTitle(write::BuildState& b, std::string_view title);

/// The heading of a FORM question on channel 1. The font tag stays open.
/// The Required value a heading uses: the two password downloads are always
/// required, whatever their attribute says.
std::string ForcedRequired(std::string_view required, std::string_view inputType);

void WriteFormHeading(Session& s, std::string_view title, std::string_view required, std::string_view inputType);

/// The heading of a SURVEY question on channel 1 (forms A to D by type), then
/// the shade table unless the type is a TITLE.
void WriteSurveyHeading(Session& s, std::string_view title, std::string_view required, std::string_view inputType);

/// The font tag with colour, face and size, then <i> and <b> as set.
void WriteTextOpen(Session& s);
/// "<i>" when italics are on.
void WriteItalicOpen(Session& s);
/// "</i>" when italics are on.
void WriteItalicClose(Session& s);
/// "</i>" then "</b>", each when set.
void WriteStyleClose(Session& s);
/// The shade table of a SURVEY question; nothing in FORM.
void WriteShadeOpen(Session& s);
/// Closes the shade table in SURVEY; nothing in FORM.
void WriteShadeClose(Session& s);
/// Eleven &nbsp; on a line.
void WriteIndent11(Session& s);
/// Five &nbsp; on a line.
void WriteIndent5(Session& s);

} // namespace tq::html
