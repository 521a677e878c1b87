// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/entry_store.h"
#include "write/line_writer.h"
#include "write/working_values.h"

#include <array>
#include <string>

namespace tq::write {

constexpr int kMessageLineSlots = 500;
constexpr int kDownloadTextSlots = 150;
constexpr int kDownloadFileSlots = 50;

/// The values of one build, kept for the run of the program and reset by the
/// driver. Slots are counted from 1 as the format counts them; slot 0 is unused.
struct BuildState
{
    int buildError = 0; // 0 go on, 1 stop (user told), 5 unknown Input Type
    bool setupHold = false;
    bool cancelled = false;
    int folderJump = 0;
    bool entryPreview = false;
    bool editPreview = false;
    bool wholePage = false;
    int questionNumber = 0;
    int phpQuestionNumber = 0; // numbers the messages of the script; reset with questionNumber
    int messageNumber = 0;     // the number in the e-mail captions; advances like questionNumber

    /// The heading lines of the Entry in hand (SplitTitle); past 150 is an InternalError.
    model::HtmlLineList TitleLines;

    int messageLineCount = 0;
    std::array<std::string, kMessageLineSlots + 1> messageLines;

    int downloadTextCount = 0;
    std::array<std::string, kDownloadTextSlots + 1> downloadTexts;
    int downloadFileCount = 0;
    std::array<std::string, kDownloadFileSlots + 1> downloadFiles;
    std::array<std::string, kDownloadFileSlots + 1> downloadNames;

    std::string homePage;
    bool optionPending = false;
    std::string lastConditionField;
    std::string htmlPath;
    std::string phpPath;
    std::string formAction;
    /// The mail subject of the script: the SUBJECT Entry's default value, taken
    /// in the HTML pass of a FORM. Not reset per build: a list without SUBJECT
    /// keeps the subject of the last build of this run.
    std::string mailSubject;

    /// The flat list of the build: line 2k-1 the Input Type, line 2k the
    /// AttributeText. Not gathered for an Entry preview, which keeps the last one.
    model::FlatList flatList;

    bool FrameOpened = false; // the frame tables are written at most once per build
    int lastPhpSlot = 0;      // the last slot the PHP pass handled; kept from build to build
    bool inProgress = false;  // the in-progress flags of the driver
    bool endProgram = false;  // a fatal file fault: the shell ends the program after its box

    bool passActive = false; // the pass flag of the driver
    int pass = 0;            // 1 HTML pass, 2 PHP pass
    int reminderCounter = 0; // publishing-instructions reminder

    Channels channels; // 1 main file, 2 download checks, 3 scratch
    SetupValues setupValues;
    WorkingValues values;
};

} // namespace tq::write
