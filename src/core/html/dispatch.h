// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "compose/php_pass.h"
#include "session.h"

#include <string>
#include <string_view>

namespace tq::html {

/// The writer an Input Type takes in the HTML pass, by the dispatch table.
enum class EntryWriter {
    None,              // SETUP and every type outside the table
    Text,              // WriteSurveyText / WriteFormText
    Cancel,            // CANCEL BUTTON: the text writers, which write nothing for it
    HorizontalLine,    // written here, HTML pass only, with its own short extraction
    TitleShade,        // written here
    BlankLine,         // written here
    Video,             // written here
    Picture,           // written here
    Choices,           // WriteSurveyChoices / WriteFormChoices
    ConditionDropdown, // WriteConditionDropdown / WriteFormChoices
    ConditionChoices,  // WriteConditionChoices / WriteFormChoices
    TableText,         // WriteTableText / WriteFormChoices
    TableChoices,      // WriteTableChoices / WriteFormChoices
    Dropdown,          // WriteSurveyDropdown / WriteFormDropdown
    Checkboxes,        // WriteSurveyCheckboxes / WriteFormCheckboxes
    Comments,          // WriteSurveyComments / WriteFormComments
};

/// One row of the dispatch table.
struct DispatchRow
{
    EntryWriter writer = EntryWriter::None;
    compose::PhpWriter php = compose::PhpWriter::None;
};

/// The row of the dispatch table for an Input Type (compared upper-cased,
/// whole names only). A type outside the table gets the empty row.
DispatchRow LookUpEntry(std::string_view inputType);

/// True when the HTML pass sets `lastConditionField` behind this writer in
/// this mode: the first choices group and the condition rows, but not a
/// CONDITION WITH MULTIPLE CHOICES in SURVEY nor a TABLE.
bool SetsConditionField(EntryWriter writer, bool survey);

/// Clears the values of one Entry before its extraction: default value, the
/// visible-download values, title, password, width, height, user name,
/// error texts, required value, and the lists of choices, check boxes,
/// default lines and introduction lines.
void ClearEntryValues(compose::WorkingValues& v);

/// The one road of every Entry in both passes: clears the Entry values,
/// extracts the attributes (all types but HORIZONTAL LINE), then in pass 1
/// calls the writer of the type and the ProjectMode, and in pass 2 the PHP
/// writer of the type. A fault of the extraction has set `buildError` 1 and
/// nothing is written; an unknown type leaves `buildError` 5.
void DispatchEntry(Session& s,
                   UiPort& ui,
                   int pass,
                   const std::string& fieldName,
                   const std::string& inputType,
                   const std::string& attributeText);

} // namespace tq::html
