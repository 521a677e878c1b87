// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/choice_inputs.h"

#include "html/conditions.h"
#include "html/headings.h"
#include "html/html_text.h"
#include "model/text_ops.h"

namespace tq::html {

namespace {

write::LineWriter& Out(write::BuildState& b)
{
    return b.channels[1];
}

// Steps shared by both radio writers: the caption and field (a download with
// password records no field), the page number, and a download's file list.
void RecordChoices(write::BuildState& b, std::string_view field, std::string& title, const model::InputType& type)
{
    std::string caption = title;
    NumberForMessage(b, caption, type);
    AppendMessageLine(b, caption);
    AppendMessageLine(b, type.id == model::InputTypeId::DownloadFilesWithPassword ? std::string() : std::string(field));
    NumberForPage(b, title, type);
    if (IsDownload(type)) {
        std::string files = "-";
        for (int i = 1; i <= b.downloadFileCount && i <= write::kDownloadFileSlots; ++i)
            files += "  " + b.downloadFiles[static_cast<size_t>(i)];
        AppendMessageLine(b, "FILE(S) THAT WERE DOWNLOADED");
        AppendMessageLine(b, files);
    }
}

std::string CheckboxPiece(std::string_view field, std::string_view choice)
{
    return "<input type=" + Quoted("checkbox") + " name=" + Quoted(std::string(field) + "[]") +
           " value=" + Quoted(choice);
}

void CheckNoValue(write::BuildState& b, UiPort& ui, const std::string& title)
{
    const auto& boxes = b.values.CheckBoxes;
    if (title.empty() || (boxes.count() > 0 && !boxes.at(1).empty()))
        return;
    ui.message("No entry for " + title + "\rThere must be a value in the first entry", "NO VALUE", Icon::Critical);
    b.channels.closeAll();
    b.buildError = 1;
}

} // namespace

bool IsDefaultChoice(std::string_view defaultValue, std::string_view choice)
{
    return model::EqualsNoCase(model::Trim(defaultValue), model::Trim(choice));
}

std::string RadioTag(std::string_view choice)
{
    return "<input type=" + Quoted("radio") + " value=" + Quoted(choice);
}

std::string NamePart(std::string_view field, std::string_view choice, std::string_view defaultValue)
{
    // no blank before "checked": the format has none
    const char* mark = IsDefaultChoice(defaultValue, choice) ? "checked>" : ">";
    return " name=" + Quoted(field) + mark + std::string(choice);
}

std::string ChoiceFontLine(const write::BuildState& b)
{
    // no blank before "color=": the format has none
    return "<font face=" + Quoted(kFace) + "color=" + Quoted(b.values.TextColorHex) + " size=" + Quoted("3") + ">";
}

void WriteSurveyChoices(write::BuildState& b,
                        model::Mode mode,
                        std::string_view field,
                        std::string title,
                        const model::InputType& type,
                        std::string_view defaultValue,
                        std::string_view required)
{
    auto& out = Out(b);
    if (title.empty()) {
        WriteItalicClose(b);
        WriteShadeClose(b, mode);
        return;
    }
    RecordChoices(b, field, title, type);
    out.line("");
    WriteSurveyHeading(b, mode, title, required, type);
    if (type.id == model::InputTypeId::FollowupWithMultipleChoices) {
        WriteFollowupChoices(b, mode, field, type);
        WriteShadeClose(b, mode);
        return;
    }
    if (IsDownload(type)) {
        WriteDownloadList(b, mode);
        return;
    }
    out.line(ChoiceFontLine(b));
    WriteItalicOpen(b);
    out.line(ParagraphOpen(b.values.ALIGN));
    for (const auto& choice : b.values.Choices.items) {
        WriteIndent11(b);
        out.piece(RadioTag(choice));
        const std::string suffix = type.id == model::InputTypeId::ConditionWithComment ? "&nbsp;&nbsp;&nbsp;" : "";
        out.line(NamePart(field, choice, defaultValue) + suffix);
    }
    WriteItalicClose(b);
    out.line("</font>");
    WriteShadeClose(b, mode);
}

void WriteFormChoices(write::BuildState& b,
                      model::Mode mode,
                      std::string_view field,
                      std::string title,
                      const model::InputType& type,
                      std::string_view defaultValue,
                      std::string_view required)
{
    auto& out = Out(b);
    RecordChoices(b, field, title, type);
    out.line("");
    WriteFormHeading(b, title, required, type);
    if (type.id == model::InputTypeId::FollowupWithDropdown ||
        type.id == model::InputTypeId::FollowupWithMultipleChoices) {
        WriteFollowupChoices(b, mode, field, type);
        return;
    }
    if (IsDownload(type)) {
        WriteDownloadList(b, mode);
        return;
    }
    out.line(ChoiceFontLine(b));
    WriteItalicOpen(b);
    const auto& choices = b.values.Choices.items;
    for (size_t i = 0; i < choices.size(); ++i) {
        if (type.id == model::InputTypeId::ConditionWithComment) {
            if (i == 0)
                WriteIndent11(b);
            else
                WriteIndent5(b);
        } else if (IsQuestion(type)) {
            if (i == 0) {
                WriteIndent11(b);
            } else if (type.id == model::InputTypeId::QuestionYesNoVerticalRequired) {
                out.line("<br>");
                WriteIndent11(b);
            } else {
                WriteIndent5(b);
            }
        }
        out.piece(RadioTag(choices[i]));
        out.line(NamePart(field, choices[i], defaultValue));
    }
    WriteItalicClose(b);
    out.line("</font>");
}

void WriteSurveyCheckboxes(write::BuildState& b,
                           model::Mode mode,
                           UiPort& ui,
                           std::string_view field,
                           std::string title,
                           const model::InputType& type,
                           std::string_view defaultValue,
                           std::string_view required)
{
    CheckNoValue(b, ui, title);
    if (b.buildError == 1)
        return;
    auto& out = Out(b);
    RecordQuestion(b, field, title, type);
    out.line("");
    WriteSurveyHeading(b, mode, title, required, type);
    out.line(ChoiceFontLine(b));
    WriteItalicOpen(b);
    out.line(ParagraphOpen(b.values.ALIGN));
    const auto& boxes = b.values.CheckBoxes.items;
    for (size_t i = 0; i < boxes.size(); ++i) {
        const std::string& choice = boxes[i];
        const bool checked = IsDefaultChoice(defaultValue, choice);
        // the choices stay open: the next indent's line end closes each line
        if (i == 0) {
            out.piece(CheckboxPiece(field, choice));
            // a checked first choice has no &nbsp; run behind it: the format has none
            out.piece(checked ? " checked > " + choice : " > " + choice + "&nbsp;&nbsp;&nbsp;");
        } else {
            WriteIndent11(b);
            out.piece(CheckboxPiece(field, choice));
            out.piece((checked ? " checked > " : " > ") + choice + "&nbsp;&nbsp;&nbsp; ");
        }
    }
    WriteItalicClose(b);
    out.line("</font>");
    WriteShadeClose(b, mode);
}

void WriteFormCheckboxes(write::BuildState& b,
                         UiPort& ui,
                         std::string_view field,
                         std::string title,
                         const model::InputType& type,
                         std::string_view defaultValue,
                         std::string_view required)
{
    CheckNoValue(b, ui, title);
    if (b.buildError == 1)
        return;
    auto& out = Out(b);
    if (!title.empty()) {
        RecordQuestion(b, field, title, type);
        out.line("");
        WriteFormHeading(b, title, required, type);
        out.line("<font color=" + Quoted(b.values.TextColorHex) + " face=" + Quoted(kFace) + " size=" + Quoted("3") +
                 ">");
        WriteItalicOpen(b);
        const auto& boxes = b.values.CheckBoxes.items;
        for (size_t i = 0; i < boxes.size(); ++i) {
            if (i == 0) {
                WriteIndent11(b);
            } else if (type.id == model::InputTypeId::CheckboxVertical) {
                out.line("<br>");
                WriteIndent11(b);
            } else {
                WriteIndent5(b);
            }
            out.piece(CheckboxPiece(field, boxes[i]));
            out.line((IsDefaultChoice(defaultValue, boxes[i]) ? " checked > " : " > ") + boxes[i]);
        }
    }
    WriteItalicClose(b);
    out.line("</font>");
    out.line("<br>");
}

void WriteSurveyDropdown(write::BuildState& b,
                         model::Mode mode,
                         std::string_view field,
                         std::string title,
                         std::string_view defaultValue,
                         const model::InputType& type,
                         std::string_view required)
{
    auto& out = Out(b);
    if (!title.empty()) {
        RecordQuestion(b, field, title, type);
        out.line("");
        WriteSurveyHeading(b, mode, title, required, type);
        out.line("");
        out.line(ParagraphOpen(b.values.ALIGN));
        const auto& choices = b.values.Choices.items;
        if (!choices.empty()) {
            out.line("<select size=" + Quoted("1"));
            out.line("  name=" + Quoted(field) + " style=" + Quoted("font-family: arial") + " > ");
            if (!defaultValue.empty())
                out.line("<option>" + std::string(defaultValue) + "</option>");
            for (const auto& choice : choices)
                if (choice != defaultValue)
                    out.line("<option>" + choice + "</option>");
        }
        // written even without a select tag: the format does so
        out.line("<option selected>not selected</option>");
        out.line("</select>");
    }
    WriteStyleClose(b);
    WriteShadeClose(b, mode);
}

void WriteFormDropdown(write::BuildState& b,
                       std::string_view field,
                       std::string title,
                       std::string_view defaultValue,
                       const model::InputType& type,
                       std::string_view required)
{
    auto& out = Out(b);
    if (!title.empty()) {
        RecordQuestion(b, field, title, type);
        out.line("");
        WriteFormHeading(b, title, required, type);
        WriteIndent11(b);
        out.line("<select size=" + Quoted("1") + "  name=" + Quoted(field) + " > ");
        const auto& choices = b.values.Choices.items;
        // the default only removes its choice; "selected" goes to the list's first choice
        for (size_t i = 0; i < choices.size(); ++i)
            if (choices[i] != defaultValue)
                out.line((i == 0 ? "<option selected>" : "<option>") + choices[i] + "</option>");
        out.line("<option selected>not selected</option>");
        out.line("</select><br>");
        out.line("<br>");
    }
    WriteStyleClose(b);
}

} // namespace tq::html
