// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/headings.h"

#include "html/html_text.h"
#include "model/input_types.h"
#include "model/text_ops.h"

namespace tq::html {

namespace {

write::LineWriter& Out(write::BuildState& b)
{
    return b.channels[1];
}

// The pair rule: a condition and its followup share one number, "4a" and "4b".
std::string PairNumber(int& counter, const model::InputType& type)
{
    switch (type.numbering) {
    case model::Numbering::PairFirst:
        ++counter;
        return std::to_string(counter) + "a";
    case model::Numbering::PairSecond:
        return std::to_string(counter) + "b";
    case model::Numbering::Own:
        break;
    }
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

void WriteFormA(write::BuildState& b)
{
    auto& out = Out(b);
    const auto& v = b.values;
    const auto& lines = b.TitleLines;
    out.line("<p align=" + Quoted(v.ALIGN) + ">" + FontFaceSize(v));
    for (int i = 1; i <= lines.count(); ++i)
        out.line(i < lines.count() ? lines.at(i) + "<br>" : lines.at(i));
    WriteStyleClose(b);
    out.line("</font> </p>");
}

void WriteFormB(write::BuildState& b)
{
    auto& out = Out(b);
    const auto& v = b.values;
    const auto& lines = b.TitleLines;
    // no blank before "color=": the format has none
    out.line(FontFaceSize(v) + "<p align=" + Quoted(v.ALIGN) + "color=" + Quoted(v.TextColorHex) + ">");
    out.line(ParagraphOpen(v.ALIGN));
    for (int i = 1; i <= lines.count(); ++i) {
        out.line(FontFaceSize(v) + ParagraphOpen(v.ALIGN) + lines.at(i));
        WriteStyleClose(b);
        out.line("</font> </p>");
        out.line(ParagraphOpen(v.ALIGN));
    }
}

void WriteFormC(write::BuildState& b)
{
    auto& out = Out(b);
    const auto& v = b.values;
    const auto& lines = b.TitleLines;
    for (int i = 1; i <= lines.count(); ++i) {
        out.line(FontFaceSize(v) + ParagraphOpen(v.ALIGN) + lines.at(i));
        WriteStyleClose(b);
        out.line("</font> </p>");
    }
    if (lines.count() > 0)
        out.line(ParagraphOpen(v.ALIGN) + FontFaceSize(v));
}

void WriteFormD(write::BuildState& b)
{
    auto& out = Out(b);
    const auto& v = b.values;
    const auto& lines = b.TitleLines;
    out.line(ParagraphOpen(v.ALIGN) + FontFaceSize(v) + "</p>");
    out.line("");
    if (lines.count() == 0)
        return;
    out.piece(ParagraphOpen(v.ALIGN) + FontFaceSize(v));
    // every line but the last is written twice: the format requires it
    for (int i = 1; i < lines.count(); ++i) {
        out.line(lines.at(i) + " </p>");
        out.line(ParagraphOpen(v.ALIGN) + lines.at(i));
        WriteStyleClose(b);
        out.line("</font> </p>");
    }
    out.line(ParagraphOpen(v.ALIGN) + lines.at(lines.count()));
    WriteStyleClose(b);
    out.line("</font> </p>");
}

// The heading form A: every question type but the dropdown Followup, the
// check boxes and the ones that write form D.
bool IsFormA(const model::InputType& type)
{
    using I = model::InputTypeId;
    switch (type.id) {
    case I::DropdownRequired:
    case I::DropdownNotRequired:
    case I::QuestionMultipleChoicesComments:
    case I::QuestionMultipleChoices:
    case I::FollowupWithComment:
    case I::UserName:
    case I::DownloadFilesWithPassword:
    case I::FollowupFilesWithPassword:
    case I::Password:
    case I::SecurityCode:
    case I::Name:
    case I::Subject:
    case I::PhoneNumber:
    case I::CellPhoneNumber:
    case I::FollowupWithMultipleChoices:
        return true;
    default:
        return IsComments(type) || IsCondition(type);
    }
}

void WriteSurveyLines(write::BuildState& b, std::string_view required, const model::InputType& type)
{
    if (IsTitle(type)) {
        WriteFormA(b);
        return;
    }
    auto& lines = b.TitleLines;
    if (model::EqualsNoCase(required, "YES") && lines.count() > 0)
        lines.items[0] = "* " + lines.items[0];
    if (IsFormA(type))
        WriteFormA(b);
    else if (type.id == model::InputTypeId::FollowupWithDropdown)
        WriteFormB(b);
    else if (IsCheckbox(type))
        WriteFormC(b);
    else
        WriteFormD(b);
}

} // namespace

bool IsTitle(const model::InputType& type)
{
    using I = model::InputTypeId;
    return type.id == I::TitleShade || type.id == I::Title1SingleLine || type.id == I::Title2DoubleLine ||
           type.id == I::TitleHeader;
}

bool IsCondition(const model::InputType& type)
{
    using I = model::InputTypeId;
    return type.id == I::ConditionWithComment || type.id == I::ConditionWithDropdown ||
           type.id == I::ConditionWithMultipleChoices;
}

bool IsFollowup(const model::InputType& type)
{
    using I = model::InputTypeId;
    return type.id == I::FollowupWithComment || type.id == I::FollowupWithDropdown ||
           type.id == I::FollowupWithMultipleChoices || type.id == I::FollowupFilesWithPassword;
}

bool IsQuestion(const model::InputType& type)
{
    using I = model::InputTypeId;
    return type.id == I::QuestionMultipleChoicesComments || type.id == I::QuestionMultipleChoices ||
           type.id == I::QuestionYesNoRequired || type.id == I::QuestionYesNoNotRequired ||
           type.id == I::QuestionYesNoVerticalRequired;
}

bool IsCheckbox(const model::InputType& type)
{
    return type.id == model::InputTypeId::CheckboxHorizontal || type.id == model::InputTypeId::CheckboxVertical;
}

bool IsComments(const model::InputType& type)
{
    using I = model::InputTypeId;
    return type.id == I::CommentsRequired || type.id == I::CommentsNotRequired || type.id == I::CommentsWithText;
}

bool IsDownload(const model::InputType& type)
{
    return type.id == model::InputTypeId::DownloadFiles || type.id == model::InputTypeId::DownloadFilesWithPassword;
}

std::string ForcedRequired(std::string_view required, const model::InputType& type)
{
    if (type.id == model::InputTypeId::DownloadFilesWithPassword ||
        type.id == model::InputTypeId::FollowupFilesWithPassword)
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

void AppendMessageLine(write::BuildState& b, std::string text)
{
    if (b.messageLineCount >= write::kMessageLineSlots)
        throw model::InternalError("internal error: messageLines bound " + std::to_string(write::kMessageLineSlots) +
                                   " passed");
    ++b.messageLineCount;
    b.messageLines[static_cast<size_t>(b.messageLineCount)] = std::move(text);
}

void NumberForMessage(write::BuildState& b, std::string& caption, const model::InputType& type)
{
    caption = PairNumber(b.messageNumber, type) + ". " + caption;
}

void NumberForPage(write::BuildState& b, std::string& title, const model::InputType& type)
{
    if (!model::EqualsNoCase(b.setupValues.NumberEachQuestion, "YES"))
        return;
    const std::string n = PairNumber(b.questionNumber, type);
    const std::string prefix = model::ContainsNoCase(n, "B") ? "&nbsp;&nbsp;&nbsp;" + n + ". &nbsp;" : n + ". &nbsp;";
    title = prefix + title;
}

void RecordQuestion(write::BuildState& b, std::string_view fieldName, std::string& title, const model::InputType& type)
{
    std::string caption = title;
    NumberForMessage(b, caption, type);
    AppendMessageLine(b, caption);
    AppendMessageLine(b, std::string(fieldName));
    NumberForPage(b, title, type);
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

void WriteFormHeading(write::BuildState& b,
                      std::string_view title,
                      std::string_view required,
                      const model::InputType& type)
{
    auto& out = Out(b);
    const std::string req = ForcedRequired(required, type);
    WriteTextOpen(b);
    if (!title.empty())
        SplitTitle(b, title);
    out.line(ParagraphOpen(b.values.ALIGN));
    if (model::EqualsNoCase(req, "YES"))
        out.piece("* ");
    const auto& lines = b.TitleLines;
    for (int i = 1; i <= lines.count(); ++i) {
        const std::string& l = lines.at(i);
        for (size_t k = 0; k < l.size() && l[k] == ' '; ++k)
            out.piece("&nbsp;");
        out.line(i < lines.count() ? l + " <br>" : l);
    }
    WriteStyleClose(b);
    out.line("<br>");
}

void WriteSurveyHeading(write::BuildState& b,
                        model::Mode mode,
                        std::string_view title,
                        std::string_view required,
                        const model::InputType& type)
{
    auto& out = Out(b);
    const std::string req = ForcedRequired(required, type);
    WriteTextOpen(b);
    if (!title.empty())
        SplitTitle(b, title);
    const auto& intro = b.values.IntroLines;
    if (intro.count() > 0) {
        out.line(ParagraphOpen(b.values.ALIGN));
        for (int i = 1; i <= intro.count(); ++i)
            out.line(i == 1 ? intro.at(i) : "<br>" + intro.at(i));
        out.line("</font></p>");
    }
    out.line("");
    if (intro.count() == 0) {
        WriteSurveyLines(b, req, type);
        if (!IsTitle(type))
            WriteShadeOpen(b, mode);
    }
}

void WriteTextOpen(write::BuildState& b)
{
    auto& out = Out(b);
    const auto& v = b.values;
    out.line("<font color=" + Quoted(v.TextColorHex) + " face=" + Quoted(kFace) + " size=" + Quoted(v.TitleSize) + ">");
    WriteItalicOpen(b);
    if (IsOn(v.Bold))
        out.line("<b>");
}

void WriteItalicOpen(write::BuildState& b)
{
    if (IsOn(b.values.Italics))
        Out(b).line("<i>");
}

void WriteItalicClose(write::BuildState& b)
{
    if (IsOn(b.values.Italics))
        Out(b).line("</i>");
}

void WriteStyleClose(write::BuildState& b)
{
    WriteItalicClose(b);
    if (IsOn(b.values.Bold))
        Out(b).line("</b>");
}

void WriteShadeOpen(write::BuildState& b, model::Mode mode)
{
    if (mode != model::Mode::Survey)
        return;
    auto& out = Out(b);
    const auto& v = b.values;
    // ShadeWidth holds the reader's copy: a width without "%" has been through the colour rule
    out.line("<div align=" + Quoted(v.ALIGN) + ">");
    out.line("<table border=" + Quoted("0") + " width=" + Quoted(v.ShadeWidth) + " bgcolor=" + Quoted(v.ShadeColorHex) +
             ">");
    out.line("<tr><td width=" + Quoted(v.ShadeWidth) + " align=" + Quoted("center") + ">");
}

void WriteShadeClose(write::BuildState& b, model::Mode mode)
{
    if (mode != model::Mode::Survey)
        return;
    // closes a center tag that was never opened here: the format does so
    Out(b).line("</td></tr></table></center></div>");
    Out(b).line("<br>");
}

void WriteIndent11(write::BuildState& b)
{
    Out(b).line(Repeat("&nbsp;", 11));
}

void WriteIndent5(write::BuildState& b)
{
    Out(b).line(Repeat("&nbsp;", 5));
}

} // namespace tq::html
