// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/conditions.h"

#include "html/choice_inputs.h"
#include "html/headings.h"
#include "html/html_text.h"
#include "model/text_ops.h"
#include "port/platform.h"

#include <fstream>
#include <sstream>

namespace tq::html {

namespace {

write::LineWriter& Out(write::BuildState& b)
{
    return b.channels[1];
}

} // namespace

void WriteConditionChoices(write::BuildState& b,
                           model::Mode mode,
                           std::string_view field,
                           std::string title,
                           const model::InputType& type,
                           std::string_view /*defaultValue*/,
                           std::string_view required)
{
    if (!title.empty()) {
        std::string caption = title;
        NumberForMessage(b, caption, type);
        AppendMessageLine(b, caption);
        AppendMessageLine(b, std::string(field));
        NumberForPage(b, title, type);
        WriteSurveyHeading(b, mode, title, required, type);
        WriteFollowupChoices(b, mode, field, type);
    }
    WriteShadeClose(b, mode);
}

void WriteConditionDropdown(write::BuildState& b,
                            model::Mode mode,
                            std::string_view field,
                            std::string title,
                            const model::InputType& type,
                            std::string_view defaultValue,
                            std::string_view required)
{
    auto& out = Out(b);
    if (!title.empty()) {
        RecordQuestion(b, field, title, type);
        WriteSurveyHeading(b, mode, title, required, type);
        out.line(ChoiceFontLine(b));
        out.line("<p align=" + Quoted(b.values.ALIGN) + ">");
        for (const auto& choice : b.values.Choices.items) {
            WriteIndent11(b);
            out.piece(RadioTag(choice));
            out.line(NamePart(field, choice, defaultValue) + "&nbsp;&nbsp;&nbsp;");
            // the default closes style and font at once, and the list goes on: the format does so
            if (IsDefaultChoice(defaultValue, choice)) {
                WriteStyleClose(b);
                out.line("</font>");
            }
        }
        WriteStyleClose(b);
        out.line("</font>");
        if (IsCondition(type))
            WriteStyleClose(b);
    }
    WriteShadeClose(b, mode);
}

void WriteFollowupChoices(write::BuildState& b, model::Mode mode, std::string_view field, const model::InputType& type)
{
    auto& out = Out(b);
    WriteItalicOpen(b);
    out.line(ChoiceFontLine(b));
    WriteIndent11(b);
    const auto& choices = b.values.Choices.items;
    for (size_t i = 0; i < choices.size(); ++i) {
        // no blank before "name=", and no choice is checked here
        const std::string tag = "<input type=" + Quoted("radio") + " value=" + Quoted(choices[i]) +
                                "name=" + Quoted(field) + ">" + choices[i];
        if (i + 1 < choices.size()) {
            out.piece(tag);
            WriteIndent11(b); // its line end closes the choice's line
        } else {
            out.line(tag + "<br></font>");
        }
    }
    WriteItalicClose(b);
    out.line("</font>");
    if (mode != model::Mode::Survey) {
        if (IsQuestion(type) || type.id == model::InputTypeId::FollowupWithDropdown ||
            type.id == model::InputTypeId::FollowupWithMultipleChoices)
            out.line("<br>");
    }
}

void WriteDownloadList(write::BuildState& b, model::Mode mode)
{
    auto& out = Out(b);
    const auto& v = b.values;
    out.line("<p align=" + Quoted(v.ALIGN) + "><font face=" + Quoted(kFace) + "color=" + Quoted(v.TextColorHex) +
             " size=" + Quoted("3") + ">");
    WriteItalicOpen(b);
    const bool labels = model::EqualsNoCase(v.ShowFileLabels, "YES");
    const bool left = model::EqualsNoCase(v.ALIGN, "LEFT");
    for (int i = 1; i <= b.downloadFileCount && i <= write::kDownloadFileSlots; ++i) {
        if (model::EqualsNoCase(v.VisibleDownload, "NO") || model::EqualsNoCase(v.VisibleDownloadPassword, "NO"))
            break;
        // a number's text keeps its leading blank: the label reads "File  1:"
        const std::string number = " " + std::to_string(i);
        if (b.downloadFileCount == 1)
            out.line(Repeat("&nbsp;", 10));
        else if (labels && left)
            out.line(Repeat("&nbsp;", 10) + "File " + number + ":&nbsp;&nbsp;");
        else if (labels)
            out.line("File " + number + ":");
        else if (left)
            out.line(Repeat("&nbsp;", 12));
        else
            out.line("");
        out.line(b.downloadFiles[static_cast<size_t>(i)] + " <br>");
    }
    WriteItalicClose(b);
    out.line("</font>");
    WriteShadeClose(b, mode);
}

} // namespace tq::html
