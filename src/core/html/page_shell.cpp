// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/page_shell.h"

#include "html/headings.h"
#include "html/html_text.h"
#include "model/text_ops.h"

namespace tq::html {

namespace {

// A first character ";" marks the sample path: no image. An empty path has
// no first character and so counts as an image.
bool HasBackgroundImage(const write::SetupValues& setup)
{
    return setup.BackgroundImagePath.empty() || setup.BackgroundImagePath.front() != ';';
}

} // namespace

void WritePageHead(write::BuildState& b, model::Mode mode)
{
    auto& out = b.channels[1];
    const auto& setup = b.setupValues;
    if (b.wholePage) {
        out.line("<html>");
        out.line("<body>");
        out.line("");
        // the second body tag after the first belongs to the format
        if (mode == model::Mode::Survey)
            out.line("<body bgcolor=" + Quoted(setup.BackgroundColorHex) + ">");
    }
    if (setup.FrameOff == 0 && mode != model::Mode::Survey)
        WriteFrameOpen(b);
    if (HasBackgroundImage(setup))
        out.line("<body background=" + Quoted(setup.BackgroundImagePath) + ">");
    out.line("<form action=" + Quoted(b.formAction) + " method=" + Quoted("post") + ">");
}

void WriteFrameOpen(write::BuildState& b)
{
    const auto& setup = b.setupValues;
    if (setup.FrameOff == 1 || b.FrameOpened)
        return;
    b.FrameOpened = true;
    auto& out = b.channels[1];
    out.line("<div align=" + Quoted("center") + ">");
    out.line("  <center> ");
    for (int i = 0; i < setup.TotalFrames; ++i) {
        out.line("");
        // no blank before "bordercolor=": the format runs the two together
        out.line("  <table border=" + Quoted("4") + " cellpadding=" + Quoted("0") + " width=" + Quoted("100%") +
                 "bordercolor=" + Quoted(setup.FrameBorderColorHex) + " bgcolor=" + Quoted("#" + setup.FrameColorHex) +
                 ">");
        out.line("    <tr>");
        out.line("      <td width=" + Quoted("100%") + ">");
        out.line("");
    }
    out.line("<div align=" + Quoted("center") + ">");
    out.piece("<table border=" + Quoted("0") + " width=");
    if (HasBackgroundImage(setup)) {
        out.piece(Quoted("100%"));
        out.line(" background= " + Quoted(setup.BackgroundImagePath) + ">");
    } else {
        // the table tag stays without its ">": the next write continues the line
        out.piece(Quoted("97%"));
    }
    out.line("  <tr>");
    out.line("    <td width=" + Quoted("100%") + ">");
    out.line("");
}

void WriteFrameClose(write::BuildState& b)
{
    if (b.setupValues.FrameOff == 1)
        return;
    // one frame level is closed whatever TOTAL FRAMES is; the others stay open
    auto& out = b.channels[1];
    out.line("");
    out.line("<p align=" + Quoted("center") + ">&nbsp;</td>");
    out.line("    </tr>");
    out.line("  </table>");
    out.line("</div>");
    out.line("");
    out.line("</td>");
    out.line("    </tr>");
    out.line("  </table>");
    out.line("  </center>");
    out.line("</div>");
    out.line("");
}

void WriteBlockOpen(write::BuildState& b)
{
    auto& out = b.channels[1];
    const std::string& align = b.values.ALIGN;
    out.line("<div align=" + Quoted(align) + ">");
    out.line("  <center>");
    out.line("  <table border=" + Quoted("0") + " cellpadding=" + Quoted("0") + " width=" + Quoted("98%") + ">");
    out.line("    <tr>");
    out.line("      <td width=" + Quoted("100%") + " align=" + Quoted(align) + ">");
}

void WriteBlockClose(write::BuildState& b)
{
    auto& out = b.channels[1];
    out.line("      </td>");
    out.line("    </tr>");
    out.line("  </table>");
    out.line("  </center></div>");
    out.line("<br>");
}

void WritePageClose(write::BuildState& b, model::Mode mode, std::string_view submitName)
{
    auto& out = b.channels[1];
    const auto& setup = b.setupValues;
    const auto& v = b.values;
    out.line("");
    out.line("<p align=" + Quoted(setup.SubmitAlign) + ">");
    out.line("<input type=" + Quoted("submit") + " style=" + Quoted("color: " + setup.SubmitButtonColorHex) +
             " value=" + Quoted(submitName) + "></p>");
    // a name of one character writes no cancel button
    if (v.ButtonName.size() > 1) {
        out.line("<br>");
        out.line("<p align=" + Quoted(v.ALIGN) + "><a href=" + Quoted(v.LinkTo) + "><font color=" +
                 Quoted(v.DefaultColorHex) + "><input type=" + Quoted("button") + " value=" + Quoted(v.ButtonName) +
                 " name=" + Quoted("B4") + " style=" + Quoted("font-family: Arial; color: " + v.DefaultColorHex) + ">");
        WriteStyleClose(b);
        out.line("</font></a></p>");
        out.line("");
    }
    out.line("</form>");
    if (mode != model::Mode::Survey && setup.FrameOff == 0)
        WriteFrameClose(b);
    if (b.wholePage) {
        out.line("</body>");
        out.line("</html>");
    }
}

} // namespace tq::html
