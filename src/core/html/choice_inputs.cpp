// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/choice_inputs.h"

#include "html/conditions.h"
#include "html/headings.h"
#include "html/html_text.h"
#include "model/text_ops.h"
#include "session.h"

namespace tq::html {

namespace {

write::LineWriter& Out(Session& s)
{
    return s.build.channels[1];
}

bool IsDownload(const std::string& t)
{
    return t == "DOWNLOAD FILES" || t == "DOWNLOAD FILES WITH PASSWORD";
}

// Steps shared by both radio writers: the caption and field (a download with
// password records no field), the page number, and a download's file list.
void RecordChoices(Session& s, std::string_view field, std::string& title, const std::string& t)
{
    auto& b = s.build;
    std::string caption = title;
    NumberForMessage(b, caption, t);
    AppendMessageLine(b, caption);
    AppendMessageLine(b, t == "DOWNLOAD FILES WITH PASSWORD" ? std::string() : std::string(field));
    NumberForPage(b, title, t);
    if (IsDownload(t)) {
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

void CheckNoValue(Session& s, UiPort& ui, const std::string& title)
{
    const auto& boxes = s.build.values.CheckBoxes;
    if (title.empty() || (boxes.count() > 0 && !boxes.at(1).empty()))
        return;
    ui.message("No entry for " + title + "\rThere must be a value in the first entry", "NO VALUE", Icon::Critical);
    s.build.channels.closeAll();
    s.build.buildError = 1;
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

std::string ChoiceFontLine(const Session& s)
{
    // no blank before "color=": the format has none
    return "<font face=" + Quoted(kFace) + "color=" + Quoted(s.build.values.TextColorHex) + " size=" + Quoted("3") +
           ">";
}

void WriteSurveyChoices(Session& s,
                        std::string_view field,
                        std::string title,
                        std::string_view inputType,
                        std::string_view defaultValue,
                        std::string_view required)
{
    auto& out = Out(s);
    const std::string t = model::ToUpper(inputType);
    if (title.empty()) {
        WriteItalicClose(s);
        WriteShadeClose(s);
        return;
    }
    RecordChoices(s, field, title, t);
    out.line("");
    WriteSurveyHeading(s, title, required, inputType);
    if (t == "FOLLOWUP WITH MULTIPLE CHOICES" || model::StartsWithNoCase(t, "QUESTION->")) {
        WriteFollowupChoices(s, field, inputType);
        WriteShadeClose(s);
        return;
    }
    if (IsDownload(t)) {
        WriteDownloadList(s);
        return;
    }
    out.line(ChoiceFontLine(s));
    WriteItalicOpen(s);
    out.line(ParagraphOpen(s.build.values.ALIGN));
    for (const auto& choice : s.build.values.Choices.items) {
        WriteIndent11(s);
        out.piece(RadioTag(choice));
        const std::string suffix = t == "CONDITION WITH COMMENT" ? "&nbsp;&nbsp;&nbsp;" : "";
        out.line(NamePart(field, choice, defaultValue) + suffix);
    }
    WriteItalicClose(s);
    out.line("</font>");
    WriteShadeClose(s);
}

void WriteFormChoices(Session& s,
                      std::string_view field,
                      std::string title,
                      std::string_view inputType,
                      std::string_view defaultValue,
                      std::string_view required)
{
    auto& out = Out(s);
    const std::string t = model::ToUpper(inputType);
    RecordChoices(s, field, title, t);
    out.line("");
    WriteFormHeading(s, title, required, inputType);
    if (t == "FOLLOWUP WITH DROPDOWN" || t == "FOLLOWUP WITH MULTIPLE CHOICES" ||
        model::StartsWithNoCase(t, "QUESTION->")) {
        WriteFollowupChoices(s, field, inputType);
        return;
    }
    if (IsDownload(t)) {
        WriteDownloadList(s);
        return;
    }
    out.line(ChoiceFontLine(s));
    WriteItalicOpen(s);
    const auto& choices = s.build.values.Choices.items;
    for (size_t i = 0; i < choices.size(); ++i) {
        if (t == "CONDITION WITH COMMENT") {
            if (i == 0)
                WriteIndent11(s);
            else
                WriteIndent5(s);
        } else if (model::StartsWithNoCase(t, "QUESTION")) {
            if (i == 0) {
                WriteIndent11(s);
            } else if (t == "QUESTION YESNO VERTICAL REQUIRED") {
                out.line("<br>");
                WriteIndent11(s);
            } else {
                WriteIndent5(s);
            }
        }
        out.piece(RadioTag(choices[i]));
        out.line(NamePart(field, choices[i], defaultValue));
    }
    WriteItalicClose(s);
    out.line("</font>");
}

void WriteSurveyCheckboxes(Session& s,
                           UiPort& ui,
                           std::string_view field,
                           std::string title,
                           std::string_view inputType,
                           std::string_view defaultValue,
                           std::string_view required)
{
    CheckNoValue(s, ui, title);
    if (s.build.buildError == 1)
        return;
    auto& out = Out(s);
    RecordQuestion(s.build, field, title, inputType);
    out.line("");
    WriteSurveyHeading(s, title, required, inputType);
    out.line(ChoiceFontLine(s));
    WriteItalicOpen(s);
    out.line(ParagraphOpen(s.build.values.ALIGN));
    const auto& boxes = s.build.values.CheckBoxes.items;
    for (size_t i = 0; i < boxes.size(); ++i) {
        const std::string& choice = boxes[i];
        const bool checked = IsDefaultChoice(defaultValue, choice);
        // the choices stay open: the next indent's line end closes each line
        if (i == 0) {
            out.piece(CheckboxPiece(field, choice));
            // a checked first choice has no &nbsp; run behind it: the format has none
            out.piece(checked ? " checked > " + choice : " > " + choice + "&nbsp;&nbsp;&nbsp;");
        } else {
            WriteIndent11(s);
            out.piece(CheckboxPiece(field, choice));
            out.piece((checked ? " checked > " : " > ") + choice + "&nbsp;&nbsp;&nbsp; ");
        }
    }
    WriteItalicClose(s);
    out.line("</font>");
    WriteShadeClose(s);
}

void WriteFormCheckboxes(Session& s,
                         UiPort& ui,
                         std::string_view field,
                         std::string title,
                         std::string_view inputType,
                         std::string_view defaultValue,
                         std::string_view required)
{
    CheckNoValue(s, ui, title);
    if (s.build.buildError == 1)
        return;
    auto& out = Out(s);
    const std::string t = model::ToUpper(inputType);
    if (!title.empty()) {
        RecordQuestion(s.build, field, title, inputType);
        out.line("");
        WriteFormHeading(s, title, required, inputType);
        out.line("<font color=" + Quoted(s.build.values.TextColorHex) + " face=" + Quoted(kFace) +
                 " size=" + Quoted("3") + ">");
        WriteItalicOpen(s);
        const auto& boxes = s.build.values.CheckBoxes.items;
        for (size_t i = 0; i < boxes.size(); ++i) {
            if (i == 0) {
                WriteIndent11(s);
            } else if (t == "CHECKBOX VERTICAL") {
                out.line("<br>");
                WriteIndent11(s);
            } else {
                WriteIndent5(s);
            }
            out.piece(CheckboxPiece(field, boxes[i]));
            out.line((IsDefaultChoice(defaultValue, boxes[i]) ? " checked > " : " > ") + boxes[i]);
        }
    }
    WriteItalicClose(s);
    out.line("</font>");
    out.line("<br>");
}

void WriteSurveyDropdown(Session& s,
                         std::string_view field,
                         std::string title,
                         std::string_view defaultValue,
                         std::string_view inputType,
                         std::string_view required)
{
    auto& out = Out(s);
    if (!title.empty()) {
        RecordQuestion(s.build, field, title, inputType);
        out.line("");
        WriteSurveyHeading(s, title, required, inputType);
        out.line("");
        out.line(ParagraphOpen(s.build.values.ALIGN));
        const auto& choices = s.build.values.Choices.items;
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
    WriteStyleClose(s);
    WriteShadeClose(s);
}

void WriteFormDropdown(Session& s,
                       std::string_view field,
                       std::string title,
                       std::string_view defaultValue,
                       std::string_view inputType,
                       std::string_view required)
{
    auto& out = Out(s);
    if (!title.empty()) {
        RecordQuestion(s.build, field, title, inputType);
        out.line("");
        WriteFormHeading(s, title, required, inputType);
        WriteIndent11(s);
        out.line("<select size=" + Quoted("1") + "  name=" + Quoted(field) + " > ");
        const auto& choices = s.build.values.Choices.items;
        // the default only removes its choice; "selected" goes to the list's first choice
        for (size_t i = 0; i < choices.size(); ++i)
            if (choices[i] != defaultValue)
                out.line((i == 0 ? "<option selected>" : "<option>") + choices[i] + "</option>");
        out.line("<option selected>not selected</option>");
        out.line("</select><br>");
        out.line("<br>");
    }
    WriteStyleClose(s);
}

} // namespace tq::html
