// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/titles_lines.h"

#include "html/page_shell.h"
#include "model/attribute_text.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>

namespace tq::html {

namespace {

std::string Upper(std::string_view s)
{
    std::string out(s);
    std::transform(out.begin(), out.end(), out.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return out;
}

std::string Quoted(std::string_view s)
{
    std::string out = "\"";
    out += s;
    out += '"';
    return out;
}

bool SurveyMode(const Session& s)
{
    return Upper(s.store.state.ProjectMode) == "SURVEY";
}

// The leading whole number of a text ("12abc" is 12, "abc" is 0).
long LeadingNumber(std::string_view text)
{
    size_t i = text.find_first_not_of(' ');
    if (i == std::string_view::npos)
        return 0;
    bool negative = false;
    if (text[i] == '-' || text[i] == '+') {
        negative = text[i] == '-';
        ++i;
    }
    long n = 0;
    for (; i < text.size() && std::isdigit(static_cast<unsigned char>(text[i])); ++i) {
        n = n * 10 + (text[i] - '0');
        if (n > 1'000'000)
            break;
    }
    return negative ? -n : n;
}

// The video lines; `closing` ends the img tag.
void WriteVideoLines(Session& s, std::string_view closing)
{
    auto& out = s.build.channels[1];
    const auto& v = s.build.values;
    out.line("<p align=" + Quoted(v.VideoAlign) + ">");
    out.piece("<img border=" + Quoted("0") + " dynsrc=" + Quoted(v.ServerPath));
    out.piece(Upper(v.Autostart) == "ON" ? " start=" + Quoted("fileopen") : " start=" + Quoted("mouseover"));
    out.line(" width=" + Quoted(v.VideoWidth) + " height=" + Quoted(v.VideoHeight) + " loop=" + Quoted(v.Loop) +
             std::string(closing));
}

} // namespace

void WriteHorizontalLine(Session& s)
{
    auto& out = s.build.channels[1];
    const auto& v = s.build.values;
    out.line("");
    out.line("<br>");
    out.piece("<hr size=" + Quoted(v.LineSize));
    out.piece(" align = " + Quoted(v.LineAlign));
    // no blank between the width's closing quote and "noshade"
    out.piece(" Width = " + Quoted(v.LineWidth));
    out.piece("noshade Color = \"");
    out.line(model::ColorToHex(v.LineColor) + "\" > ");
    out.line("<br>");
    out.line("");
}

void WriteBlankLine(Session& s)
{
    const long count = LeadingNumber(s.build.values.NewLine);
    if (count > 32767)
        throw model::InternalError("internal error: overflow in NEW LINE " + s.build.values.NewLine);
    for (long i = 0; i < count; ++i)
        s.build.channels[1].line("<br>");
}

void WriteVideo(Session& s, UiPort& ui)
{
    const auto& v = s.build.values;
    const std::string p = Upper(v.ServerPath);
    const bool wmv = p.find(".WMV") != std::string::npos;
    const bool mp4 = p.find(".MP4") != std::string::npos;
    const bool avi = p.find(".AVI") != std::string::npos;
    if (!wmv && !mp4 && !avi) {
        if (p != "NONE")
            ui.message(v.ServerPath + " format is not supported", "ERROR", Icon::Critical);
        return;
    }
    if (!SurveyMode(s)) {
        // a FORM's video has no wrapper table
        WriteVideoLines(s, "></p>");
        return;
    }
    WriteBlockOpen(s);
    if (wmv)
        WriteVideoLines(s, "></p>");
    if (mp4) {
        // an MP4 leaves here: its wrapper table stays open
        WriteVideoLines(s, "></p>");
        return;
    }
    if (avi)
        WriteVideoLines(s, ">");
    WriteBlockClose(s);
}

void WritePicture(Session& s)
{
    auto& b = s.build;
    const auto& v = b.values;
    if (Upper(v.ServerPath) == "NONE")
        return;
    if (!SurveyMode(s) && b.lastPhpSlot != 3)
        b.channels[1].line("<br><br>");
    WriteBlockOpen(s);
    b.channels[1].line("<img border=" + Quoted("0") + " src=" + Quoted(v.ServerPath) +
                       " Width = " + Quoted(v.PictureWidth) + " Height = " + Quoted(v.PictureHeight) +
                       " Align=" + Quoted(v.ALIGN) + ">");
    WriteBlockClose(s);
}

} // namespace tq::html
