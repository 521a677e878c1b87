// SPDX-License-Identifier: GPL-3.0-or-later
// A session whose channel 1 writes to a temporary file, for the page writers' tests.
#pragma once

#include "scripted_port.h"
#include "session.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace tq::test {

struct HtmlFixture
{
    TempDir dir;
    Session s;
    ScriptedPort port;

    explicit HtmlFixture(std::string_view mode = "FORM")
    {
        s.store.state.ProjectMode = std::string(mode);
        s.DataFolder = dir.path();
        s.build.setupValues.NumberEachQuestion = "NO";
        auto& v = s.build.values;
        v.TitleSize = "3";
        v.ALIGN = "left";
        v.Italics = "off";
        v.Bold = "off";
        v.TextColorHex = "000000";
        s.build.channels[1].open(dir.file("out.htm"));
    }

    /// Closes channel 1 and returns what was written.
    std::string Output()
    {
        s.build.channels[1].close();
        return ReadFileBytes(dir.file("out.htm"));
    }
};

/// One golden case of a question writer: the Entry's values and the file
/// that holds the expected fragment.
struct QuestionCase
{
    std::string golden{}; // "form/name.htm"
    std::string type{};
    std::string field{};
    std::string title{};
    std::string required{};
    std::string defaultValue{};
    std::string width{};
    std::string height{};
    bool numbered = false;
    int numberBefore = 0; // questionNumber and messageNumber before the call
    std::string italics = "off";
    std::string bold = "off";
    std::string align = "left";
    std::string size = "3";
    std::vector<std::string> defaultLines{};
    std::vector<std::string> introLines{};
    std::vector<std::string> choices{};  // Choices, or CheckBoxes for the CHECKBOX types
    std::string caption{};               // the expected first messageLines element, "" for none
    std::vector<std::string> files{};    // downloadFiles
    std::string labels{};                // [SHOW FILE LABELS
    std::string visible{};               // [VISIBLE DOWNLOAD of either download type
    std::vector<std::string> messages{}; // when set, the whole of messageLines

    /// Mode taken from the golden folder name.
    std::string Mode() const { return golden.rfind("survey/", 0) == 0 ? "SURVEY" : "FORM"; }

    void Prepare(HtmlFixture& f) const
    {
        auto& v = f.s.build.values;
        v.ALIGN = align;
        v.TitleSize = size;
        v.Italics = italics;
        v.Bold = bold;
        v.ShadeWidth = "80%";
        v.ShadeColorHex = "C0C0C0";
        f.s.build.setupValues.NumberEachQuestion = numbered ? "YES" : "NO";
        f.s.build.questionNumber = numberBefore;
        f.s.build.messageNumber = numberBefore;
        for (const auto& l : defaultLines)
            v.DefaultLines.push(l);
        for (const auto& l : introLines)
            v.IntroLines.push(l);
        v.ShowFileLabels = labels;
        (type == "DOWNLOAD FILES" ? v.VisibleDownload : v.VisibleDownloadPassword) = visible;
        f.s.build.downloadFileCount = static_cast<int>(files.size());
        for (size_t i = 0; i < files.size(); ++i)
            f.s.build.downloadFiles.at(i + 1) = files[i];
        for (const auto& c : choices) {
            if (type.rfind("CHECKBOX", 0) == 0)
                v.CheckBoxes.push(c);
            else
                v.Choices.push(c);
        }
    }
};

/// Checks messageLines against the case: the whole list, or the caption and the field.
inline void ExpectMessages(const HtmlFixture& f, const QuestionCase& c)
{
    const auto& b = f.s.build;
    if (!c.messages.empty()) {
        ASSERT_EQ(b.messageLineCount, static_cast<int>(c.messages.size()));
        for (size_t i = 0; i < c.messages.size(); ++i)
            EXPECT_EQ(b.messageLines.at(i + 1), c.messages[i]) << "slot " << i + 1;
    } else if (c.caption.empty()) {
        EXPECT_EQ(b.messageLineCount, 0);
    } else {
        ASSERT_EQ(b.messageLineCount, 2);
        EXPECT_EQ(b.messageLines[1], c.caption);
        EXPECT_EQ(b.messageLines[2], c.field);
    }
}

inline std::ostream& operator<<(std::ostream& os, const QuestionCase& c)
{
    return os << c.golden;
}

/// The lines joined, each with its CR LF.
inline std::string Lines(std::initializer_list<std::string_view> lines)
{
    std::string out;
    for (auto l : lines) {
        out += l;
        out += "\r\n";
    }
    return out;
}

/// A golden fragment under tests/golden/html/questions/.
inline std::string Golden(std::string_view name)
{
    const std::string path = std::string(TQ_GOLDEN_DIR) + "/html/questions/" + std::string(name);
    if (!std::filesystem::exists(path))
        ADD_FAILURE() << "missing golden file " << path;
    return ReadFileBytes(path);
}

} // namespace tq::test
