// SPDX-License-Identifier: GPL-3.0-or-later
#include "compose/dispatch.h"

#include "compose/extraction.h"
#include "compose/php_pass.h"
#include "html/choice_inputs.h"
#include "html/conditions.h"
#include "html/headings.h"
#include "html/html_text.h"
#include "html/tables.h"
#include "html/text_inputs.h"
#include "html/titles_lines.h"
#include "model/input_types.h"

#include <utility>

namespace tq::compose {

namespace {

using model::HtmlWriter;

// The question writers of both modes, by the row's writer.
void WriteQuestion(write::BuildState& b,
                   model::Mode mode,
                   UiPort& ui,
                   HtmlWriter writer,
                   const std::string& field,
                   const model::InputType& t)
{
    const auto& v = b.values;
    switch (writer) {
    case HtmlWriter::FormText:
        html::WriteFormText(b, field, v.Title, v.PASSWORD, v.Width, t, v.DefaultValue, v.REQ);
        return;
    case HtmlWriter::SurveyText:
        html::WriteSurveyText(b, mode, field, v.Title, v.PASSWORD, v.Width, t, v.DefaultValue, v.REQ);
        return;
    case HtmlWriter::FormChoices:
        html::WriteFormChoices(b, mode, field, v.Title, t, v.DefaultValue, v.REQ);
        return;
    case HtmlWriter::FormTableChoices:
        html::WriteFormChoices(b, mode, field, v.ColChoice, t, v.DefaultValue, v.REQ);
        return;
    case HtmlWriter::SurveyChoices:
        html::WriteSurveyChoices(b, mode, field, v.Title, t, v.DefaultValue, v.REQ);
        return;
    case HtmlWriter::ConditionDropdown:
        html::WriteConditionDropdown(b, mode, field, v.Title, t, v.DefaultValue, v.REQ);
        return;
    case HtmlWriter::ConditionChoices:
        html::WriteConditionChoices(b, mode, field, v.Title, t, v.DefaultValue, v.REQ);
        return;
    case HtmlWriter::TableText:
        html::WriteTableText(b, mode, field, v.Title, t, v.DefaultValue, v.REQ);
        return;
    case HtmlWriter::TableChoices:
        html::WriteTableChoices(b, mode, field, v.Title, t, v.DefaultValue, v.REQ);
        return;
    case HtmlWriter::FormDropdown:
        html::WriteFormDropdown(b, field, v.Title, v.DefaultValue, t, v.REQ);
        return;
    case HtmlWriter::SurveyDropdown:
        html::WriteSurveyDropdown(b, mode, field, v.Title, v.DefaultValue, t, v.REQ);
        return;
    case HtmlWriter::FormCheckboxes:
        html::WriteFormCheckboxes(b, ui, field, v.Title, t, v.DefaultValue, v.REQ);
        return;
    case HtmlWriter::SurveyCheckboxes:
        html::WriteSurveyCheckboxes(b, mode, ui, field, v.Title, t, v.DefaultValue, v.REQ);
        return;
    case HtmlWriter::FormComments:
        html::WriteFormComments(b, field, v.Title, v.Width, v.Height, v.DefaultValue, t, v.REQ);
        return;
    case HtmlWriter::SurveyComments:
        html::WriteSurveyComments(b, mode, field, v.Title, v.Width, v.Height, v.DefaultValue, t, v.REQ);
        return;
    default:
        return;
    }
}

} // namespace

void ClearEntryValues(write::WorkingValues& v)
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
    const model::InputType* row = model::FindInputType(inputType);
    std::string text = attributeText;

    if (row && row->recipe == model::Recipe::HorizontalLine) {
        if (pass != 1)
            return;
        ExtractHorizontalLine(s, ui, text);
        if (b.buildError == 1)
            return;
        html::WriteHorizontalLine(b);
        return;
    }

    ExtractEntry(s, ui, inputType, text);
    if (b.buildError == 1 || !row)
        return;

    if (pass != 1) {
        if (row->php != model::PhpWriter::None)
            WriteEntryPhp(s, ui, *row, fieldName);
        return;
    }

    const model::Mode mode = s.store.state.ProjectMode;
    const model::ModeWriter& w = row->writerIn(mode);
    switch (w.writer) {
    case HtmlWriter::None:
    case HtmlWriter::HorizontalLine:
        return;
    case HtmlWriter::TitleShade:
        html::WriteTitleShade(b);
        return;
    case HtmlWriter::BlankLine:
        html::WriteBlankLine(b);
        return;
    case HtmlWriter::Video:
        html::WriteVideo(b, mode, ui);
        return;
    case HtmlWriter::Picture:
        html::WritePicture(b, mode);
        return;
    default:
        WriteQuestion(b, mode, ui, w.writer, fieldName, *row);
        // the script's mail subject; kept for later builds of this run
        if (row->id == model::InputTypeId::Subject && mode == model::Mode::Form)
            b.mailSubject = v.DefaultValue;
        break;
    }
    if (w.setsConditionField)
        b.lastConditionField = fieldName + "d";
}

} // namespace tq::compose
