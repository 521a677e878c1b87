// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/conditions.h"

#include "html/choice_inputs.h"
#include "html/headings.h"
#include "html/html_text.h"
#include "model/text_ops.h"
#include "port/platform.h"
#include "session.h"

#include <fstream>
#include <sstream>

namespace tq::html {

namespace {

write::LineWriter& Out(Session& s)
{
    return s.build.channels[1];
}

} // namespace

void WriteConditionChoices(Session& s,
                           std::string_view field,
                           std::string title,
                           std::string_view inputType,
                           std::string_view /*defaultValue*/,
                           std::string_view required)
{
    if (!title.empty()) {
        std::string caption = title;
        NumberForMessage(s.build, caption, inputType);
        AppendMessageLine(s.build, caption);
        AppendMessageLine(s.build, std::string(field));
        NumberForPage(s.build, title, inputType);
        WriteSurveyHeading(s, title, required, inputType);
        WriteFollowupChoices(s, field, inputType);
    }
    WriteShadeClose(s);
}

void WriteConditionDropdown(Session& s,
                            std::string_view field,
                            std::string title,
                            std::string_view inputType,
                            std::string_view defaultValue,
                            std::string_view required)
{
    auto& out = Out(s);
    if (!title.empty()) {
        RecordQuestion(s.build, field, title, inputType);
        WriteSurveyHeading(s, title, required, inputType);
        out.line(ChoiceFontLine(s));
        out.line("<p align=" + Quoted(s.build.values.ALIGN) + ">");
        for (const auto& choice : s.build.values.Choices.items) {
            WriteIndent11(s);
            out.piece(RadioTag(choice));
            out.line(NamePart(field, choice, defaultValue) + "&nbsp;&nbsp;&nbsp;");
            // the default closes style and font at once, and the list goes on: the format does so
            if (IsDefaultChoice(defaultValue, choice)) {
                WriteStyleClose(s);
                out.line("</font>");
            }
        }
        WriteStyleClose(s);
        out.line("</font>");
        if (model::StartsWithNoCase(inputType, "CONDITION"))
            WriteStyleClose(s);
    }
    WriteShadeClose(s);
}

void WriteFollowupChoices(Session& s, std::string_view field, std::string_view inputType)
{
    auto& out = Out(s);
    WriteItalicOpen(s);
    out.line(ChoiceFontLine(s));
    WriteIndent11(s);
    const auto& choices = s.build.values.Choices.items;
    for (size_t i = 0; i < choices.size(); ++i) {
        // no blank before "name=", and no choice is checked here
        const std::string tag = "<input type=" + Quoted("radio") + " value=" + Quoted(choices[i]) +
                                "name=" + Quoted(field) + ">" + choices[i];
        if (i + 1 < choices.size()) {
            out.piece(tag);
            WriteIndent11(s); // its line end closes the choice's line
        } else {
            out.line(tag + "<br></font>");
        }
    }
    WriteItalicClose(s);
    out.line("</font>");
    if (!IsSurvey(s)) {
        const std::string t = model::ToUpper(inputType);
        if (model::StartsWithNoCase(t, "QUESTION") || t == "FOLLOWUP WITH DROPDOWN" ||
            t == "FOLLOWUP WITH MULTIPLE CHOICES")
            out.line("<br>");
    }
}

void WriteDownloadList(Session& s)
{
    auto& out = Out(s);
    const auto& b = s.build;
    const auto& v = b.values;
    out.line("<p align=" + Quoted(v.ALIGN) + "><font face=" + Quoted(kFace) + "color=" + Quoted(v.TextColorHex) +
             " size=" + Quoted("3") + ">");
    WriteItalicOpen(s);
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
    WriteItalicClose(s);
    out.line("</font>");
    WriteShadeClose(s);
}

} // namespace tq::html
