// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/tables.h"

#include "html/headings.h"
#include "html/html_text.h"
#include "model/text_ops.h"

namespace tq::html {

namespace {

std::string TableFont(const write::WorkingValues& v)
{
    return "<font color=" + Quoted(v.TableTextColorHex) + " size=" + Quoted(v.TitleSize) + " face=" + Quoted(kFace) +
           ">";
}

void WriteTable(write::BuildState& b,
                model::Mode mode,
                std::string_view field,
                const model::InputType& type,
                std::string_view required,
                bool text)
{
    auto& out = b.channels[1];
    const auto& v = b.values;
    const bool req = model::EqualsNoCase(required, "YES");
    const bool italics = IsOn(v.TableItalics);
    const bool bold = IsOn(v.TableBold);

    // in a whole page each table opens a document of its own: the format does so
    if (b.wholePage) {
        for (const char* l : {"<html>", "<head>", "<title>Survey</title>", "</head>", "<body>"})
            out.line(l);
        if (mode == model::Mode::Survey)
            out.line("<body bgcolor=" + Quoted(b.setupValues.BackgroundColorHex) + ">");
    }
    out.line("<div align=" + Quoted(v.ALIGN) + ">");
    out.line("  <table border=" + Quoted("0") + " width=" + Quoted("85%") + ">");
    out.line("");
    out.line("<tr>");
    if (text) {
        out.line("<td width=" + Quoted("16%") + " align=" + Quoted("center")); // the tag runs on to the next lines
        out.line("");
        out.piece(" <p align=" + Quoted("center") + "><font face=" + Quoted(kFace) + ">");
        if (req)
            out.piece("Required");
        out.line("</font></td>");
    } else {
        out.line("<td width=" + Quoted("16%") + " align=" + Quoted("center") + "></td>");
        out.line("");
    }

    const auto& columns = v.RowChoices.items;
    for (const auto& label : columns) {
        out.piece("<td align=" + Quoted("center") + " bgcolor=" + Quoted(v.ChoicesBackColorHex) + ">" + TableFont(v));
        out.piece(std::string(italics ? "<i>" : "") + (bold ? "<b>" : "") + label);
        out.piece(std::string(italics ? "</i>" : "") + (bold ? "</b>" : ""));
        out.line("</font></td>");
    }
    out.line(text ? "</tr>" : "</tr>  </center>");
    out.line("<tr>");
    out.line("");

    out.line("<td width=" + Quoted(text ? "14%" : "16%") + " align=" + Quoted("center") +
             " bgcolor=" + Quoted(v.ChoicesBackColorHex) + ">");
    out.line(TableFont(v));
    if (italics)
        out.line("<i>");
    if (bold)
        out.line("<b>");
    SplitTitle(b, v.ColChoice);
    auto& lines = b.TitleLines;
    if (lines.count() > 0) {
        std::string caption = lines.items[0];
        NumberForMessage(b, caption, type);
        AppendMessageLine(b, caption);
        AppendMessageLine(b, std::string(field));
        NumberForPage(b, lines.items[0], type);
        if (!text && req)
            lines.items[0] = "&nbsp;&nbsp;* " + lines.items[0] + "&nbsp;&nbsp;";
    }
    for (const auto& l : lines.items) {
        const size_t nbsp = text ? l.find("&nbsp;") : std::string::npos;
        out.line(nbsp == std::string::npos ? std::string_view(l) : model::Trim(std::string_view(l).substr(0, nbsp)));
    }
    if (italics)
        out.line("</i>");
    if (bold)
        out.line("</b>");
    out.line("</font>");
    if (text) {
        out.piece(TableFont(v) + " &nbsp;");
        out.line("</font>");
    }
    out.line("</td>");

    for (const auto& column : columns) {
        out.piece("<td width=" + Quoted("12%") + " align=" + Quoted("center") +
                  " bgcolor=" + Quoted(v.AnswerBackColorHex) + ">");
        if (text) {
            out.piece("<input type=" + Quoted("radio") + " value=" + Quoted(column) + "          ");
            out.piece("face=" + Quoted(kFace) + " ");
            out.piece(" name=" + Quoted(field) + ">");
        } else {
            out.piece("<input type=" + Quoted("radio") + " value=" + Quoted(column));
            out.piece("  face=" + Quoted(kFace) + " ");
            // the label stands inside the tag before a stray quote: the format does so
            out.piece(column + "\" name=" + Quoted(field) + ">");
        }
        // closes a font tag that this cell never opened: the format does so
        out.line("</font></td>");
    }

    out.line("     </tr>");
    out.line("");
    out.line("    <tr>");
    // the colspan is 5 whatever the number of columns
    out.line("<td width=" + Quoted("85%") + " align=" + Quoted("left") + " height=" + Quoted("1") +
             " colspan=" + Quoted("5") + ">&nbsp;</td>");
    out.line("     </tr>");
    out.line("");
    out.line("   </table>");
    out.line(text ? "  </div>" : "  </center></div>");
    if (b.wholePage) {
        out.line("</body>");
        out.line("</html>");
    }
}

} // namespace

void WriteTableText(write::BuildState& b,
                    model::Mode mode,
                    std::string_view field,
                    std::string_view /*title*/,
                    const model::InputType& type,
                    std::string_view /*defaultValue*/,
                    std::string_view required)
{
    WriteTable(b, mode, field, type, required, true);
}

void WriteTableChoices(write::BuildState& b,
                       model::Mode mode,
                       std::string_view field,
                       std::string_view /*title*/,
                       const model::InputType& type,
                       std::string_view /*defaultValue*/,
                       std::string_view required)
{
    WriteTable(b, mode, field, type, required, false);
}

} // namespace tq::html
