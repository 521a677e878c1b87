// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/dispatch.h"

#include "compose/extraction.h"
#include "html/choice_inputs.h"
#include "html/conditions.h"
#include "html/headings.h"
#include "html/html_text.h"
#include "html/tables.h"
#include "html/text_inputs.h"
#include "html/titles_lines.h"
#include "model/text_ops.h"

#include <utility>

namespace tq::html {

namespace {

using compose::PhpWriter;

struct TableRow
{
    std::string_view type;
    EntryWriter writer;
    PhpWriter php;
};

// The dispatch table, in its order.
constexpr TableRow kTable[] = {
    {"SETUP", EntryWriter::None, PhpWriter::None},
    {"NAME", EntryWriter::Text, PhpWriter::Plain},
    {"SUBJECT", EntryWriter::Text, PhpWriter::Plain},
    {"EMAIL", EntryWriter::Text, PhpWriter::Plain},
    {"PHONE NUMBER", EntryWriter::Text, PhpWriter::Plain},
    {"CELL PHONE NUMBER", EntryWriter::Text, PhpWriter::Plain},
    {"CANCEL BUTTON", EntryWriter::Cancel, PhpWriter::Plain},
    {"HORIZONTAL LINE", EntryWriter::HorizontalLine, PhpWriter::None},
    {"TITLE SHADE", EntryWriter::TitleShade, PhpWriter::None},
    {"BLANK LINE", EntryWriter::BlankLine, PhpWriter::None},
    {"VIDEO", EntryWriter::Video, PhpWriter::None},
    {"PICTURE", EntryWriter::Picture, PhpWriter::None},
    {"TITLE 1 SINGLE LINE", EntryWriter::Text, PhpWriter::Plain},
    {"TITLE 2 DOUBLE LINE", EntryWriter::Text, PhpWriter::Plain},
    {"TITLE HEADER", EntryWriter::Text, PhpWriter::Plain},
    {"SURVEY INTRO", EntryWriter::Text, PhpWriter::Plain},
    {"USER NAME", EntryWriter::Text, PhpWriter::Plain},
    {"PASSWORD", EntryWriter::Text, PhpWriter::Plain},
    {"SECURITY CODE", EntryWriter::Text, PhpWriter::Plain},
    {"QUESTION MULTIPLE CHOICES COMMENTS", EntryWriter::Choices, PhpWriter::Paired},
    {"QUESTION MULTIPLE CHOICES", EntryWriter::Choices, PhpWriter::Paired},
    {"QUESTION YESNO REQUIRED", EntryWriter::Choices, PhpWriter::Paired},
    {"QUESTION YESNO NOT REQUIRED", EntryWriter::Choices, PhpWriter::Paired},
    {"QUESTION YESNO VERTICAL REQUIRED", EntryWriter::Choices, PhpWriter::Paired},
    {"CONDITION WITH COMMENT", EntryWriter::Choices, PhpWriter::Paired},
    {"DOWNLOAD FILES", EntryWriter::Choices, PhpWriter::Plain},
    {"DOWNLOAD FILES WITH PASSWORD", EntryWriter::Choices, PhpWriter::Plain},
    {"CONDITION WITH DROPDOWN", EntryWriter::ConditionDropdown, PhpWriter::Paired},
    {"CONDITION WITH MULTIPLE CHOICES", EntryWriter::ConditionChoices, PhpWriter::Paired},
    {"TABLE TEXT REQUIRED", EntryWriter::TableText, PhpWriter::Paired},
    {"TABLE CHOICES REQUIRED", EntryWriter::TableChoices, PhpWriter::Paired},
    {"FOLLOWUP FILES WITH PASSWORD", EntryWriter::Text, PhpWriter::Paired},
    {"FOLLOWUP WITH MULTIPLE CHOICES", EntryWriter::Choices, PhpWriter::Paired},
    {"DROPDOWN REQUIRED", EntryWriter::Dropdown, PhpWriter::Plain},
    {"DROPDOWN NOT REQUIRED", EntryWriter::Dropdown, PhpWriter::Plain},
    {"FOLLOWUP WITH DROPDOWN", EntryWriter::Dropdown, PhpWriter::Plain},
    {"CHECKBOX HORIZONTAL", EntryWriter::Checkboxes, PhpWriter::Plain},
    {"CHECKBOX VERTICAL", EntryWriter::Checkboxes, PhpWriter::Plain},
    {"COMMENTS REQUIRED", EntryWriter::Comments, PhpWriter::Plain},
    {"COMMENTS NOT REQUIRED", EntryWriter::Comments, PhpWriter::Plain},
    {"COMMENTS WITH TEXT", EntryWriter::Comments, PhpWriter::Plain},
    {"FOLLOWUP WITH COMMENT", EntryWriter::Comments, PhpWriter::Plain},
};

// The question writers of both modes, by the writer of the table.
void WriteQuestion(Session& s, UiPort& ui, EntryWriter writer, const std::string& field, const std::string& t)
{
    const auto& v = s.build.values;
    const bool survey = IsSurvey(s);
    switch (writer) {
    case EntryWriter::Text:
    case EntryWriter::Cancel:
        if (survey)
            WriteSurveyText(s, field, v.Title, v.PASSWORD, v.Width, t, v.DefaultValue, v.REQ);
        else
            WriteFormText(s, field, v.Title, v.PASSWORD, v.Width, t, v.DefaultValue, v.REQ);
        return;
    case EntryWriter::Choices:
        if (survey)
            WriteSurveyChoices(s, field, v.Title, t, v.DefaultValue, v.REQ);
        else
            WriteFormChoices(s, field, v.Title, t, v.DefaultValue, v.REQ);
        return;
    case EntryWriter::ConditionDropdown:
        if (survey)
            WriteConditionDropdown(s, field, v.Title, t, v.DefaultValue, v.REQ);
        else
            WriteFormChoices(s, field, v.Title, t, v.DefaultValue, v.REQ);
        return;
    case EntryWriter::ConditionChoices:
        if (survey)
            WriteConditionChoices(s, field, v.Title, t, v.DefaultValue, v.REQ);
        else
            WriteFormChoices(s, field, v.Title, t, v.DefaultValue, v.REQ);
        return;
    case EntryWriter::TableText:
    case EntryWriter::TableChoices:
        // in FORM a table is a radio question titled by its [COLCHOICE
        if (!survey)
            WriteFormChoices(s, field, v.ColChoice, t, v.DefaultValue, v.REQ);
        else if (writer == EntryWriter::TableText)
            WriteTableText(s, field, v.Title, t, v.DefaultValue, v.REQ);
        else
            WriteTableChoices(s, field, v.Title, t, v.DefaultValue, v.REQ);
        return;
    case EntryWriter::Dropdown:
        if (survey)
            WriteSurveyDropdown(s, field, v.Title, v.DefaultValue, t, v.REQ);
        else
            WriteFormDropdown(s, field, v.Title, v.DefaultValue, t, v.REQ);
        return;
    case EntryWriter::Checkboxes:
        if (survey)
            WriteSurveyCheckboxes(s, ui, field, v.Title, t, v.DefaultValue, v.REQ);
        else
            WriteFormCheckboxes(s, ui, field, v.Title, t, v.DefaultValue, v.REQ);
        return;
    case EntryWriter::Comments:
        if (survey)
            WriteSurveyComments(s, field, v.Title, v.Width, v.Height, v.DefaultValue, t, v.REQ);
        else
            WriteFormComments(s, field, v.Title, v.Width, v.Height, v.DefaultValue, t, v.REQ);
        return;
    default:
        return;
    }
}

} // namespace

DispatchRow LookUpEntry(std::string_view inputType)
{
    const std::string t = model::ToUpper(inputType);
    for (const auto& row : kTable)
        if (row.type == t)
            return {row.writer, row.php};
    return {};
}

bool SetsConditionField(EntryWriter writer, bool survey)
{
    switch (writer) {
    case EntryWriter::Choices:
    case EntryWriter::ConditionDropdown:
        return true;
    case EntryWriter::ConditionChoices:
        return !survey;
    default:
        return false;
    }
}

void ClearEntryValues(compose::WorkingValues& v)
{
    v.DefaultValue.clear();
    v.VisibleDownload.clear();
    v.VisibleDownloadPassword.clear();
    v.Title.clear();
    v.PASSWORD.clear();
    v.Width.clear();
    v.Height.clear();
    v.USERNAME.clear();
    v.MSG.clear();
    v.MSG2.clear();
    v.REQ.clear();
    v.Choices.clear();
    v.CheckBoxes.clear();
    v.DefaultLines.clear();
    v.IntroLines.clear();
}

void DispatchEntry(Session& s,
                   UiPort& ui,
                   int pass,
                   const std::string& fieldName,
                   const std::string& inputType,
                   const std::string& attributeText)
{
    auto& b = s.build;
    auto& v = b.values;
    ClearEntryValues(v);
    const DispatchRow row = LookUpEntry(inputType);
    const std::string t = model::ToUpper(inputType);
    std::string text = attributeText;

    if (row.writer == EntryWriter::HorizontalLine) {
        if (pass != 1)
            return;
        compose::ExtractHorizontalLine(s, ui, text);
        if (b.buildError == 1)
            return;
        WriteHorizontalLine(s);
        return;
    }

    compose::ExtractEntry(s, ui, inputType, text);
    if (b.buildError == 1)
        return;

    if (pass != 1) {
        if (row.php != PhpWriter::None)
            compose::WriteEntryPhp(s, ui, row.php, fieldName, t);
        return;
    }

    const bool survey = model::EqualsNoCase(s.store.state.ProjectMode, "SURVEY");
    switch (row.writer) {
    case EntryWriter::None:
    case EntryWriter::HorizontalLine:
        return;
    case EntryWriter::TitleShade:
        WriteTitleShade(s);
        return;
    case EntryWriter::BlankLine:
        WriteBlankLine(s);
        return;
    case EntryWriter::Video:
        WriteVideo(s, ui);
        return;
    case EntryWriter::Picture:
        WritePicture(s);
        return;
    default:
        WriteQuestion(s, ui, row.writer, fieldName, t);
        // the script's mail subject; kept for later builds of this run
        if (t == "SUBJECT" && !survey)
            b.mailSubject = v.DefaultValue;
        break;
    }
    if (SetsConditionField(row.writer, survey))
        b.lastConditionField = fieldName + "d";
}

} // namespace tq::html
