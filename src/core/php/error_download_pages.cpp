// SPDX-License-Identifier: GPL-3.0-or-later
#include "php/error_download_pages.h"

#include "model/attribute_text.h"
#include "model/text_ops.h"

#include <string>

namespace tq::php {

namespace {

void WriteLines(write::LineWriter& out, std::initializer_list<std::string_view> lines)
{
    for (std::string_view line : lines)
        out.line(line);
}

void CheckCount(int count, int bound, const char* table)
{
    if (count < 0 || count > bound)
        throw model::InternalError(std::string("internal error: ") + table + " count " + std::to_string(count) +
                                   " out of range");
}

// The link paragraph opens a <b>, a <font> and an <a> that are never closed
// here: the lines that follow go on inside them, as the page always had it.
constexpr std::string_view kLinkOpen =
    R"~(        <p align="center"><b><font color="#FFFFFF" face="arial"><a style="color: #FFFF00")~";

} // namespace

void WriteDownloadFile(write::LineWriter& out, const write::BuildState& state, std::string_view serverPath)
{
    CheckCount(state.downloadTextCount, write::kDownloadTextSlots, "download text");
    CheckCount(state.downloadFileCount, write::kDownloadFileSlots, "download file");

    WriteLines(out, {
                        R"~(/*************************/)~",
                        R"~(/* Show Download of file */)~",
                        R"~(/*************************/)~",
                        R"~()~",
                        R"~(function download_file())~",
                        R"~({)~",
                        R"~(?>)~",
                        R"~(<html>)~",
                        R"~(<head>)~",
                        R"~(<title>Download</title>)~",
                        R"~(</head>)~",
                        R"~()~",
                        R"~(<body>)~",
                        R"~()~",
                        R"~(<div align="center">)~",
                        R"~(  <center>)~",
                        // no blanks between the attributes: the page has always had it so
                        R"~(<table border="1"cellpadding="0"width="50%"bordercolor="#FF0000"bgcolor="#003300">)~",
                        R"~(   <tr>)~",
                        R"~(    <td width="100%">)~",
                        R"~(<div align="center">)~",
                        R"~(        <table border="0" cellpadding="0" width="98%">)~",
                        R"~(            <tr>)~",
                        R"~(              <td width="100%">)~",
                        R"~(                <p align="center">&nbsp;&nbsp;</td>)~",
                        R"~(            </tr>)~",
                        R"~(            <tr>)~",
                        R"~(              <td width="100%" align="center">)~",
                    });

    for (int i = 1; i <= state.downloadTextCount; ++i) {
        out.piece(R"~(        <p align="center"><font color="#FFFFFF" face="arial">)~");
        out.line(state.downloadTexts[static_cast<size_t>(i)] + "</font></p>");
    }
    out.line(kLinkOpen);
    out.line("");
    for (int i = 1; i <= state.downloadFileCount; ++i) {
        const std::string& file = state.downloadFiles[static_cast<size_t>(i)];
        out.line(kLinkOpen);
        out.line("    href=\"" + std::string(serverPath) + file + "\">" + file + "</a></font></b>");
    }
    const std::string& home = state.homePage;
    if (!home.empty() && !model::EqualsNoCase(home, "NONE"))
        out.line(
            "<p align=\"center\"><a href=\"" + home +
            R"~("><input type="button" value="Home" name="B3" style="font-family: Arial; color: #CC3300; font-size: 18pt"></a></p>)~");

    WriteLines(out, {
                        R"~(        </font></b>)~",
                        R"~(    </td>)~",
                        R"~(    </tr>)~",
                        R"~(            <tr>)~",
                        R"~(              <td width="100%" align="center">)~",
                        R"~(        <b><font color="#FFFFFF" face="arial" size="1">&nbsp; </font></b>)~",
                        R"~(    </td>)~",
                        R"~(    </tr>)~",
                        R"~(    </table>)~",
                        R"~(    </center>)~",
                        R"~()~",
                        R"~(    </body>)~",
                        R"~(    </html>)~",
                        R"~(<?php)~",
                        R"~(})~",
                        R"~()~",
                    });
}

void WriteShowError(write::LineWriter& out)
{
    WriteLines(
        out,
        {
            R"~(/******************************/)~",
            R"~(/* Show Error using HTML File */)~",
            R"~(/******************************/)~",
            R"~()~",
            R"~(function show_error($myError))~",
            R"~({)~",
            R"~(?>)~",
            R"~(<html>)~",
            R"~(<head>)~",
            R"~(<title>Show Error</title>)~",
            R"~(</head>)~",
            R"~(    <body>)~",
            R"~()~",
            // the stray quote at the end of this line is part of the page
            R"~( <p align="CENTER"></p>")~",
            R"~(    <div align="center">)~",
            R"~(      <center>)~",
            R"~(      <table border="5" cellpadding="5" width="50%" bgcolor="#006600" bordercolor="#CC3300">)~",
            R"~(        <tr>)~",
            R"~(           <td width="100%">)~",
            R"~(            &nbsp;)~",
            R"~(            <div align="center">)~",
            R"~(               <table border="0" cellpadding="6" width="98%" bgcolor="#FF0000">)~",
            R"~(                <tr>)~",
            R"~(                   <td width="100%">)~",
            R"~(                    <p align="center"><font color="#FFFFFF" face="arial" size="4" >)~",
            R"~(<b>)~",
            R"~(             <?php echo $myError; ?>)~",
            R"~(              </b>)~",
            R"~(            </font></td>)~",
            R"~(                </tr>)~",
            R"~(              </table>)~",
            R"~(            </div>)~",
            R"~(            <p align="center">)~",
            R"~(<b>)~",
            R"~(              <font color="#FFFFFF" face="arial" >)~",
            R"~(            Please click on the&nbsp; </font><font color="#FFFFFF"><font face="arial" >BACK BUTTON&nbsp;</font></font><font color="#FFFFFF" face="arial" >)~",
            R"~(             and correct the error<br /><br>)~",
            R"~(<FORM>)~",
            R"~(  <p align="center"><INPUT TYPE="button" VALUE="     BACK     " onClick="history.go(-1);return true;" style="font-size: 18pt; font-family: Arial"> </FORM>)~",
            R"~(            </font>)~",
            R"~(              </b>)~",
            R"~()~",
            R"~(          </td>)~",
            R"~(        </tr>)~",
            R"~(      </table>)~",
            R"~(      </center>)~",
            R"~()~",
            R"~(    </body>)~",
            R"~(    </html>)~",
            R"~(<?php)~",
            R"~(exit();)~",
            R"~(})~",
            R"~(?>)~",
        });
}

} // namespace tq::php
