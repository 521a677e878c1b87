// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/quick_preview.h"

#include "html/conditions.h"
#include "html/html_text.h"
#include "model/attribute_text.h"
#include "model/text_ops.h"
#include "port/platform.h"
#include "session.h"

namespace tq::html {

bool UsesQuickPreview(std::string_view attributeName)
{
    std::string name = model::ToUpper(model::Trim(attributeName));
    if (!name.empty() && name[0] == '[')
        name.erase(0, 1);
    if (name == "USERNAME" || name.find("DEFAULT") != std::string::npos)
        return true;
    for (const char* exact : {"ERROR MESSAGE", "BLANK ERROR", "INSTRUCTIONS", "PHONE # DEFAULT VALUE",
                              "TQL OUTPUT FILE", "FROM", "LINK TO", "PASSWORD", "THANK YOU FILE"})
        if (name == exact)
            return true;
    return model::StartsWithNoCase(name, "EMAIL #") || model::StartsWithNoCase(name, "SERVER");
}

std::string WriteQuickPreview(Session& s, std::string_view attributeName, std::string_view text)
{
    const model::LineList lines = model::SplitLines(std::string(text));
    if (lines.count() > kQuickPreviewLines)
        throw model::InternalError("internal error: quick preview bound " + std::to_string(kQuickPreviewLines) +
                                   " passed");
    const std::string path = platform::JoinPath(s.DataFolder, "\\Previewsingle.htm");
    auto& out = s.build.channels[1];
    out.open(path);
    out.line("<html>");
    out.line("<body>");
    // " & 4" stands inside the first border value, and blanks are missing between attributes: the format does so
    out.piece("<table border=" + Quoted(" & 4") + "cellpadding=" + Quoted("0"));
    out.line("width=" + Quoted("100%") + "bordercolor=" + Quoted("00CE00") + "bgcolor=" + Quoted("#004000") + ">");
    out.line("    <tr>");
    out.line("      <td width=" + Quoted("100%") + ">");
    out.line(" <table border=" + Quoted("4") + "cellpadding=" + Quoted("0") + "width=" + Quoted("100%") +
             " bordercolor=" + Quoted("00CE00") + " bgcolor=" + Quoted("#004000") + ">");
    out.line(" <tr>");
    out.line("    <td width=" + Quoted("100%") + ">");
    out.line("<font color=" + Quoted("FFFFFF") + "face=" + Quoted("arial") + "size=" + Quoted("3") + ">");
    out.line("<p align=" + Quoted("left") + ">");
    out.line("<b>");
    out.line("<font color=" + Quoted("#FF0000") + "face=" + Quoted("arial") + " size=" + Quoted("3") + ">");
    out.line(model::ToUpper(attributeName));
    out.line("<br><br>");
    out.line("</font></b>");
    for (int i = 1; i <= lines.count(); ++i) {
        out.piece(lines.at(i));
        if (i < lines.count())
            out.line(" <br>");
    }
    out.line("<br>"); // behind the last text line, on the same line
    // closes elements that were never opened here: the format does so
    for (const char* l : {"</form>", "&nbsp;</font></td>", "  </table>", "</div>", "</td>", "    </tr>", "  </table>",
                          "  </center>", "</div>", "", "</body>", "</html>"})
        out.line(l);
    s.build.channels.closeAll();
    s.build.entryPreview = false;
    s.build.wholePage = false;
    return path;
}

} // namespace tq::html
