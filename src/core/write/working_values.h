// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/attribute_text.h"

#include <string>

namespace tq::write {

/// The SetupEntry's values as read at the start of a build (20 keys in order).
struct SetupValues
{
    std::string BackgroundColor;     // [BACKGROUND COLOR=  page colour
    std::string WebFolder;           // [DRIVE FOLDER PATH=
    std::string OutputName;          // [TQL OUTPUT FILE=
    std::string FROM;                // [FROM=
    std::string COMPLETED;           // [COMPLETED=
    std::string GlobalAlign;         // [GLOBAL ALIGN=  default alignment
    std::string GlobalTextColor;     // [GLOBAL TEXT COLOR=
    std::string SubmitName;          // [SUBMIT NAME=
    std::string SubmitAlign;         // [SUBMIT ALIGN=
    std::string SubmitButtonColor;   // [SUBMIT BUTTON COLOR=
    std::string BackgroundImagePath; // [BACKGROUND IMAGE PATH=
    std::string EMAIL1;
    std::string EMAIL2;             // cleared when "NONE"
    std::string EMAIL3;             // cleared when "NONE"
    std::string NumberEachQuestion; // [NUMBER EACH QUESTION=
    std::string ShowToolTips;       // [SHOW TOOL TIPS=
    std::string IncludeFrame;       // [INCLUDE FRAME WITH FORM=
    std::string FrameBorderColor;   // [FRAME BORDER COLOR=
    std::string FrameColor;         // [FRAME COLOR=
    int TotalFrames = 0;            // [TOTAL FRAMES=
    // Derived when the SetupEntry is read at build time.
    int FrameOff = 1;               // 0 when FORM and [INCLUDE FRAME WITH FORM= is "YES", else 1
    std::string BackgroundColorHex; // ColorToHex copies of the colour keys
    std::string SubmitButtonColorHex;
    std::string FrameBorderColorHex;
    std::string FrameColorHex;
};

/// The working values of one Entry, filled by the extraction and read by the
/// writers of both passes. Colour keys keep their raw decimal text and a copy
/// passed through ColorToHex.
struct WorkingValues
{
    std::string Title;
    std::string TitleSize;
    std::string ALIGN; // shared alignment; survives from Entry to Entry as the format requires
    std::string Italics;
    std::string Bold;
    std::string TextColor;
    std::string TextColorHex;
    std::string Width;
    std::string Height;
    std::string MSG;  // [ERROR MESSAGE=
    std::string MSG2; // [BLANK ERROR=
    std::string REQ;  // [REQUIRED=
    std::string USERNAME;
    std::string PASSWORD;
    std::string DefaultValue;     // the type's default value, NONE already made empty
    model::LineList DefaultLines; // SplitLines of the default value
    model::ChoiceList Choices;    // every other list
    model::ChoiceList CheckBoxes; // list "CHECK BOX"
    model::ChoiceList RowChoices; // list "ROW CHOICES": the table's column choices
    model::LineList IntroLines;   // SURVEY INTRO's title lines
    std::string ShadeWidth;       // raw, or its ColorToHex copy when it holds no "%" (the reader's rule)
    std::string ShadeColor;       // raw decimal text
    std::string ShadeColorHex;    // ColorToHex(ShadeColor)
    std::string ChoicesBackColor;
    std::string ChoicesBackColorHex;
    std::string AnswerBackColor;
    std::string AnswerBackColorHex;
    std::string DefaultColor;
    std::string DefaultColorHex;
    std::string ColChoice;
    std::string RequiredTable; // [REQUIRED TABLE=, also copied to REQ
    // A table keeps its own text colour and styles, apart from the heading's;
    // the global overrides never touch them.
    std::string TableTextColor;
    std::string TableTextColorHex;
    std::string TableItalics;
    std::string TableBold;
    std::string TitleShadeWidth;
    // pictures and videos
    std::string ServerPath; // [SERVER PICTURE PATH= or [SERVER VIDEO PATH=
    std::string VideoAlign;
    std::string VideoWidth;
    std::string VideoHeight;
    std::string Autostart;
    std::string Loop;
    std::string PictureAlign; // a PICTURE's [ALIGN= (also in ALIGN, which its writer uses)
    std::string PictureWidth;
    std::string PictureHeight;
    // downloads
    std::string ServerDownload;
    std::string ShowFileLabels;
    std::string VisibleDownload;         // DOWNLOAD FILES
    std::string VisibleDownloadPassword; // DOWNLOAD FILES WITH PASSWORD
    std::string ServerFolderPath;        // [SERVER DOWNLOAD= with a "/" added behind a folder
    std::string ThankYouFile;
    // cancel button, blank line, horizontal line
    std::string ButtonName;
    std::string LinkTo;
    std::string NewLine;
    std::string LineWidth;
    std::string LineSize;
    std::string LineAlign;
    std::string LineColor;
    std::string LineColorHex;
    std::string LeftMargin;
};

} // namespace tq::write
