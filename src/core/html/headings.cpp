// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/headings.h"

#include "html/html_text.h"
#include "model/input_types.h"
#include "model/text_ops.h"
#include "session.h"

namespace tq::html {

namespace {

write::LineWriter& Out(Session& s)
{
    return s.build.channels[1];
}

// The pair rule: a condition and its followup share one number, "4a" and "4b".
std::string PairNumber(int& counter, std::string_view inputType)
{
    const std::string t = model::ToUpper(inputType);
    if (t == "DOWNLOAD FILES WITH PASSWORD" || t == "CONDITION WITH COMMENT" ||
        t == "CONDITION WITH MULTIPLE CHOICES" || t == "CONDITION WITH DROPDOWN") {
        ++counter;
        return std::to_string(counter) + "a";
    }
    if (t == "FOLLOWUP FILES WITH PASSWORD" || t == "FOLLOWUP WITH COMMENT" || t == "FOLLOWUP WITH MULTIPLE CHOICES" ||
        t == "FOLLOWUP WITH DROPDOWN")
        return std::to_string(counter) + "b";
    ++counter;
    return std::to_string(counter);
}

// Runs of four blanks become &nbsp;. The cut keeps the first p-2 characters
// and resumes at p+2, so the characters p-1 to p+1 go: the format does so.
std::string RewriteBlanks(std::string line)
{
    if (line.size() >= 2 && line[0] == ' ' && line[1] == ' ')
        line = "&nbsp;" + line;
    const int start = static_cast<int>(line.size()) - 2;
    for (int p = start; p >= 6; --p) {
        const size_t at = static_cast<size_t>(p - 1);
        if (at + 4 <= line.size() && line.compare(at, 4, "    ") == 0)
            line = line.substr(0, static_cast<size_t>(p - 2)) + "&nbsp;" + line.substr(static_cast<size_t>(p + 1));
    }
    return line;
}

std::string FontFaceSize(const write::WorkingValues& v)
{
    return "<font face=" + Quoted(kFace) + " size=" + Quoted(v.TitleSize) + ">";
}

void WriteFormA(Session& s)
{
    auto& out = Out(s);
    const auto& v = s.build.values;
    const auto& lines = s.build.TitleLines;
    out.line("<p align=" + Quoted(v.ALIGN) + ">" + FontFaceSize(v));
    for (int i = 1; i <= lines.count(); ++i)
        out.line(i < lines.count() ? lines.at(i) + "<br>" : lines.at(i));
    WriteStyleClose(s);
    out.line("</font> </p>");
}

void WriteFormB(Session& s)
{
    auto& out = Out(s);
    const auto& v = s.build.values;
    const auto& lines = s.build.TitleLines;
    // no blank before "color=": the format has none
    out.line(FontFaceSize(v) + "<p align=" + Quoted(v.ALIGN) + "color=" + Quoted(v.TextColorHex) + ">");
    out.line(ParagraphOpen(v.ALIGN));
    for (int i = 1; i <= lines.count(); ++i) {
        out.line(FontFaceSize(v) + ParagraphOpen(v.ALIGN) + lines.at(i));
        WriteStyleClose(s);
        out.line("</font> </p>");
        out.line(ParagraphOpen(v.ALIGN));
    }
}

void WriteFormC(Session& s)
{
    auto& out = Out(s);
    const auto& v = s.build.values;
    const auto& lines = s.build.TitleLines;
    for (int i = 1; i <= lines.count(); ++i) {
        out.line(FontFaceSize(v) + ParagraphOpen(v.ALIGN) + lines.at(i));
        WriteStyleClose(s);
        out.line("</font> </p>");
    }
    if (lines.count() > 0)
        out.line(ParagraphOpen(v.ALIGN) + FontFaceSize(v));
}

void WriteFormD(Session& s)
{
    auto& out = Out(s);
    const auto& v = s.build.values;
    const auto& lines = s.build.TitleLines;
    out.line(ParagraphOpen(v.ALIGN) + FontFaceSize(v) + "</p>");
    out.line("");
    if (lines.count() == 0)
        return;
    out.piece(ParagraphOpen(v.ALIGN) + FontFaceSize(v));
    // every line but the last is written twice: the format requires it
    for (int i = 1; i < lines.count(); ++i) {
        out.line(lines.at(i) + " </p>");
        out.line(ParagraphOpen(v.ALIGN) + lines.at(i));
        WriteStyleClose(s);
        out.line("</font> </p>");
    }
    out.line(ParagraphOpen(v.ALIGN) + lines.at(lines.count()));
    WriteStyleClose(s);
    out.line("</font> </p>");
}

bool IsFormA(const std::string& t)
{
    static const char* const kTypes[] = {"DROPDOWN REQUIRED",
                                         "DROPDOWN NOT REQUIRED",
                                         "QUESTION MULTIPLE CHOICES COMMENTS",
                                         "QUESTION MULTIPLE CHOICES",
                                         "QUESTION",
                                         "FOLLOWUP WITH COMMENT",
                                         "USER NAME",
                                         "DOWNLOAD FILES WITH PASSWORD",
                                         "FOLLOWUP FILES WITH PASSWORD",
                                         "PASSWORD",
                                         "SECURITY CODE",
                                         "NAME",
                                         "SUBJECT",
                                         "PHONE NUMBER",
                                         "CELL PHONE NUMBER",
                                         "FOLLOWUP WITH MULTIPLE CHOICES"};
    for (const char* k : kTypes)
        if (t == k)
            return true;
    return model::StartsWithNoCase(t, "COMMENTS") || model::StartsWithNoCase(t, "CONDITION");
}

void WriteSurveyLines(Session& s, std::string_view required, const std::string& t)
{
    if (model::StartsWithNoCase(t, "TITLE")) {
        WriteFormA(s);
        return;
    }
    auto& lines = s.build.TitleLines;
    if (model::EqualsNoCase(required, "YES") && lines.count() > 0)
        lines.items[0] = "* " + lines.items[0];
    if (IsFormA(t))
        WriteFormA(s);
    else if (t == "FOLLOWUP WITH DROPDOWN")
        WriteFormB(s);
    else if (model::StartsWithNoCase(t, "CHECKBOX"))
        WriteFormC(s);
    else
        WriteFormD(s);
}

} // namespace

std::string ForcedRequired(std::string_view required, std::string_view inputType)
{
    const std::string t = model::ToUpper(inputType);
    if (t == "DOWNLOAD FILES WITH PASSWORD" || t == "FOLLOWUP FILES WITH PASSWORD")
        return "yes";
    return std::string(required);
}

std::string FieldName(std::string_view inputType, int position)
{
    std::string name(inputType.substr(0, 5));
    name += std::to_string(position);
    return model::ToLower(model::Trim(name));
}

std::string PreviewFieldName(std::string_view inputType)
{
    return model::ToLower(inputType) + "1";
}

bool IsSurvey(const Session& s)
{
    return model::ModeOf(s.store.state.ProjectMode) == model::Mode::Survey;
}

void AppendMessageLine(write::BuildState& b, std::string text)
{
    if (b.messageLineCount >= write::kMessageLineSlots)
        throw model::InternalError("internal error: messageLines bound " + std::to_string(write::kMessageLineSlots) +
                                   " passed");
    ++b.messageLineCount;
    b.messageLines[static_cast<size_t>(b.messageLineCount)] = std::move(text);
}

void NumberForMessage(write::BuildState& b, std::string& caption, std::string_view inputType)
{
    caption = PairNumber(b.messageNumber, inputType) + ". " + caption;
}

void NumberForPage(write::BuildState& b, std::string& title, std::string_view inputType)
{
    if (!model::EqualsNoCase(b.setupValues.NumberEachQuestion, "YES"))
        return;
    const std::string n = PairNumber(b.questionNumber, inputType);
    const std::string prefix = model::ContainsNoCase(n, "B") ? "&nbsp;&nbsp;&nbsp;" + n + ". &nbsp;" : n + ". &nbsp;";
    title = prefix + title;
}

void RecordQuestion(write::BuildState& b, std::string_view fieldName, std::string& title, std::string_view inputType)
{
    std::string caption = title;
    NumberForMessage(b, caption, inputType);
    AppendMessageLine(b, caption);
    AppendMessageLine(b, std::string(fieldName));
    NumberForPage(b, title, inputType);
}

void SplitTitle(write::BuildState& b, std::string_view title)
{
    if (title.empty())
        return;
    auto& lines = b.TitleLines;
    lines.clear();
    std::string rest(title);
    for (;;) {
        const size_t at = model::ToUpper(rest).find("\\N");
        if (at == std::string::npos)
            break;
        lines.push(rest.substr(0, at));
        rest.erase(0, at + 2);
        while (model::StartsWithNoCase(rest, "\\N")) {
            lines.push("");
            rest.erase(0, 2);
        }
    }
    if (!rest.empty())
        lines.push(rest);
    for (auto& line : lines.items)
        line = RewriteBlanks(line);
}

void WriteFormHeading(Session& s, std::string_view title, std::string_view required, std::string_view inputType)
{
    auto& out = Out(s);
    const std::string req = ForcedRequired(required, inputType);
    WriteTextOpen(s);
    if (!title.empty())
        SplitTitle(s.build, title);
    out.line(ParagraphOpen(s.build.values.ALIGN));
    if (model::EqualsNoCase(req, "YES"))
        out.piece("* ");
    const auto& lines = s.build.TitleLines;
    for (int i = 1; i <= lines.count(); ++i) {
        const std::string& l = lines.at(i);
        for (size_t k = 0; k < l.size() && l[k] == ' '; ++k)
            out.piece("&nbsp;");
        out.line(i < lines.count() ? l + " <br>" : l);
    }
    WriteStyleClose(s);
    out.line("<br>");
}

void WriteSurveyHeading(Session& s, std::string_view title, std::string_view required, std::string_view inputType)
{
    auto& out = Out(s);
    const std::string req = ForcedRequired(required, inputType);
    const std::string t = model::ToUpper(inputType);
    WriteTextOpen(s);
    if (!title.empty())
        SplitTitle(s.build, title);
    const auto& intro = s.build.values.IntroLines;
    if (intro.count() > 0) {
        out.line(ParagraphOpen(s.build.values.ALIGN));
        for (int i = 1; i <= intro.count(); ++i)
            out.line(i == 1 ? intro.at(i) : "<br>" + intro.at(i));
        out.line("</font></p>");
    }
    out.line("");
    if (intro.count() == 0) {
        WriteSurveyLines(s, req, t);
        if (!model::StartsWithNoCase(t, "TITLE"))
            WriteShadeOpen(s);
    }
}

void WriteTextOpen(Session& s)
{
    auto& out = Out(s);
    const auto& v = s.build.values;
    out.line("<font color=" + Quoted(v.TextColorHex) + " face=" + Quoted(kFace) + " size=" + Quoted(v.TitleSize) + ">");
    WriteItalicOpen(s);
    if (IsOn(v.Bold))
        out.line("<b>");
}

void WriteItalicOpen(Session& s)
{
    if (IsOn(s.build.values.Italics))
        Out(s).line("<i>");
}

void WriteItalicClose(Session& s)
{
    if (IsOn(s.build.values.Italics))
        Out(s).line("</i>");
}

void WriteStyleClose(Session& s)
{
    WriteItalicClose(s);
    if (IsOn(s.build.values.Bold))
        Out(s).line("</b>");
}

void WriteShadeOpen(Session& s)
{
    if (!IsSurvey(s))
        return;
    auto& out = Out(s);
    const auto& v = s.build.values;
    // ShadeWidth holds the reader's copy: a width without "%" has been through the colour rule
    out.line("<div align=" + Quoted(v.ALIGN) + ">");
    out.line("<table border=" + Quoted("0") + " width=" + Quoted(v.ShadeWidth) + " bgcolor=" + Quoted(v.ShadeColorHex) +
             ">");
    out.line("<tr><td width=" + Quoted(v.ShadeWidth) + " align=" + Quoted("center") + ">");
}

void WriteShadeClose(Session& s)
{
    if (!IsSurvey(s))
        return;
    // closes a center tag that was never opened here: the format does so
    Out(s).line("</td></tr></table></center></div>");
    Out(s).line("<br>");
}

void WriteIndent11(Session& s)
{
    Out(s).line(Repeat("&nbsp;", 11));
}

void WriteIndent5(Session& s)
{
    Out(s).line(Repeat("&nbsp;", 5));
}

} // namespace tq::html
