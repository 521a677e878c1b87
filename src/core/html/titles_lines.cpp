// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/titles_lines.h"

#include "html/headings.h"
#include "html/html_text.h"
#include "html/page_shell.h"
#include "model/attribute_text.h"
#include "model/text_ops.h"

#include <cctype>
#include <string>
#include <string_view>

namespace tq::html {

namespace {

// The video lines; `closing` ends the img tag.
void WriteVideoLines(write::BuildState& b, std::string_view closing)
{
    auto& out = b.channels[1];
    const auto& v = b.values;
    out.line("<p align=" + Quoted(v.VideoAlign) + ">");
    out.piece("<img border=" + Quoted("0") + " dynsrc=" + Quoted(v.ServerPath));
    out.piece(model::EqualsNoCase(v.Autostart, "ON") ? " start=" + Quoted("fileopen")
                                                     : " start=" + Quoted("mouseover"));
    out.line(" width=" + Quoted(v.VideoWidth) + " height=" + Quoted(v.VideoHeight) + " loop=" + Quoted(v.Loop) +
             std::string(closing));
}

} // namespace

void WriteHorizontalLine(write::BuildState& b)
{
    auto& out = b.channels[1];
    const auto& v = b.values;
    out.line("");
    out.line("<br>");
    out.piece("<hr size=" + Quoted(v.LineSize));
    out.piece(" align = " + Quoted(v.LineAlign));
    // no blank between the width's closing quote and "noshade"
    out.piece(" Width = " + Quoted(v.LineWidth));
    out.piece("noshade Color = \"");
    out.line(v.LineColorHex + "\" > ");
    out.line("<br>");
    out.line("");
}

void WriteTitleShade(write::BuildState& b)
{
    auto& out = b.channels[1];
    const auto& v = b.values;
    SplitTitle(b, v.Title);
    out.line("<table border=" + Quoted("0") + " width=" + Quoted(v.TitleShadeWidth) + " height=" + Quoted("34") +
             " align=" + Quoted(v.ALIGN) + ">");
    out.line("  <tr>");
    // the shade colour is fixed; no attribute changes it
    out.line("    <td width=" + Quoted("100%") + " align=" + Quoted(v.ALIGN) + " bgcolor=" + Quoted("#EFEFEF") +
             " height=" + Quoted("24") + "><font color=" + Quoted(v.TextColorHex) + " face=" + Quoted(kFace) +
             " size=" + Quoted(v.TitleSize) + ">");
    if (IsOn(v.Italics))
        out.line("<i>");
    if (IsOn(v.Bold))
        out.line("<b>");
    const auto& lines = b.TitleLines;
    for (int i = 1; i < lines.count(); ++i)
        out.line(lines.at(i) + "<br>");
    if (lines.count() > 0)
        out.line(lines.at(lines.count()));
    WriteStyleClose(b);
    out.line("</font></td>");
    out.line("  </tr>");
    out.line("  <tr>");
    out.line("<td width=" + Quoted("100%") + " align=" + Quoted("center") + " height=" + Quoted("4") + "></td>");
    out.line("  </tr>");
    out.line("</table>");
    if (!model::EqualsNoCase(v.ALIGN, "CENTER"))
        out.line("<br><br>");
}

void WriteBlankLine(write::BuildState& b)
{
    const long count = model::LeadingWhole(b.values.NewLine, 1'000'000);
    if (count > 32767)
        throw model::InternalError("internal error: overflow in NEW LINE " + b.values.NewLine);
    for (long i = 0; i < count; ++i)
        b.channels[1].line("<br>");
}

void WriteVideo(write::BuildState& b, model::Mode mode, UiPort& ui)
{
    const auto& v = b.values;
    const std::string p = model::ToUpper(v.ServerPath);
    const bool wmv = p.find(".WMV") != std::string::npos;
    const bool mp4 = p.find(".MP4") != std::string::npos;
    const bool avi = p.find(".AVI") != std::string::npos;
    if (!wmv && !mp4 && !avi) {
        if (p != "NONE")
            ui.message(v.ServerPath + " format is not supported", "ERROR", Icon::Critical);
        return;
    }
    if (mode != model::Mode::Survey) {
        // a FORM's video has no wrapper table
        WriteVideoLines(b, "></p>");
        return;
    }
    WriteBlockOpen(b);
    if (wmv)
        WriteVideoLines(b, "></p>");
    if (mp4) {
        // an MP4 leaves here: its wrapper table stays open
        WriteVideoLines(b, "></p>");
        return;
    }
    if (avi)
        WriteVideoLines(b, ">");
    WriteBlockClose(b);
}

void WritePicture(write::BuildState& b, model::Mode mode)
{
    const auto& v = b.values;
    if (model::EqualsNoCase(v.ServerPath, "NONE"))
        return;
    if (mode != model::Mode::Survey && b.lastPhpSlot != 3)
        b.channels[1].line("<br><br>");
    WriteBlockOpen(b);
    b.channels[1].line("<img border=" + Quoted("0") + " src=" + Quoted(v.ServerPath) +
                       " Width = " + Quoted(v.PictureWidth) + " Height = " + Quoted(v.PictureHeight) +
                       " Align=" + Quoted(v.ALIGN) + ">");
    WriteBlockClose(b);
}

} // namespace tq::html
