// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tq {
struct Session;
}

namespace tq::html {

/// CONDITION WITH MULTIPLE CHOICES in SURVEY: caption and field to
/// messageLines, the heading, then the followup radio list.
void WriteConditionChoices(Session& s,
                           std::string_view field,
                           std::string title,
                           std::string_view inputType,
                           std::string_view defaultValue,
                           std::string_view required);

/// CONDITION WITH DROPDOWN in SURVEY: radio buttons, the default one closing
/// the style and font at once behind it.
void WriteConditionDropdown(Session& s,
                            std::string_view field,
                            std::string title,
                            std::string_view inputType,
                            std::string_view defaultValue,
                            std::string_view required);

/// The followup radio list of values.Choices; no choice is marked checked.
/// In FORM the QUESTION and FOLLOWUP types add a "<br>".
void WriteFollowupChoices(Session& s, std::string_view field, std::string_view inputType);

/// The list of download files (downloadFiles) with their labels; a VISIBLE
/// DOWNLOAD of "NO" leaves the list out.
void WriteDownloadList(Session& s);

/// The edit window's text as an attribute value, through the scratch file
/// \junk.txt in `dataFolder`: CR LF becomes "\n", trailing "\n" go, and unless
/// `keepBlanks` two blanks become "&nbsp;" and a tab three. "NONE" in any
/// case, and a text of fewer than 5 characters, stay as they are.
std::string TextToAttribute(const std::string& dataFolder, const std::string& text, bool keepBlanks);

/// The reverse for the edit window: "\n" (any case) becomes CR LF and
/// "&nbsp;" two blanks. "NONE" in any case stays.
std::string AttributeToText(const std::string& dataFolder, const std::string& text);

} // namespace tq::html
