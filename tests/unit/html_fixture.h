// SPDX-License-Identifier: GPL-3.0-or-later
// A session whose channel 1 writes to a temporary file, for the page writers' tests.
#pragma once

#include "html/choice_inputs.h"
#include "html/conditions.h"
#include "html/text_inputs.h"
#include "model/input_types.h"
#include "scripted_port.h"
#include "session.h"

#include <filesystem>
#include <gtest/gtest.h>
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
        s.store.state.ProjectMode = model::ModeOf(mode);
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
    std::string required = "no";
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
    std::string caption{};               // recorded with the field; "" for none
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
        for (const auto& c : choices)
            (type.rfind("CHECKBOX", 0) == 0 ? v.CheckBoxes : v.Choices).push(c);
    }
};

inline std::ostream& operator<<(std::ostream& os, const QuestionCase& c)
{
    return os << c.golden;
}

/// The message lines the case records: the whole list, or the caption and the field.
inline void ExpectMessages(const HtmlFixture& f, const QuestionCase& c)
{
    std::vector<std::string> want = c.messages;
    if (want.empty() && !c.caption.empty())
        want = {c.caption, c.field};
    const auto& b = f.s.build;
    EXPECT_EQ(std::vector<std::string>(b.messageLines.begin() + 1, b.messageLines.begin() + 1 + b.messageLineCount),
              want);
}

/// A golden fragment under tests/golden/html/questions/.
inline std::string Golden(std::string_view name)
{
    const std::string path = std::string(TQ_GOLDEN_DIR) + "/html/questions/" + std::string(name);
    EXPECT_TRUE(std::filesystem::exists(path)) << path;
    return ReadFileBytes(path);
}

/// Writes the case with the writer the dispatcher would pick for its type.
inline std::string WriteQuestion(HtmlFixture& f, const QuestionCase& c)
{
    namespace html = tq::html;
    c.Prepare(f);
    const bool survey = c.Mode() == "SURVEY";
    const model::Mode mode = survey ? model::Mode::Survey : model::Mode::Form;
    const std::string& t = c.type;
    const model::InputType* row = model::FindInputType(t);
    EXPECT_NE(row, nullptr) << t;
    if (!row)
        return {};
    auto& b = f.s.build;
    auto starts = [&](const char* p) { return t.rfind(p, 0) == 0; };
    if (t == "CONDITION WITH MULTIPLE CHOICES")
        html::WriteConditionChoices(b, mode, c.field, c.title, *row, c.defaultValue, c.required);
    else if (t == "CONDITION WITH DROPDOWN")
        html::WriteConditionDropdown(b, mode, c.field, c.title, *row, c.defaultValue, c.required);
    else if (starts("CHECKBOX"))
        survey ? html::WriteSurveyCheckboxes(b, mode, f.port, c.field, c.title, *row, c.defaultValue, c.required)
               : html::WriteFormCheckboxes(b, f.port, c.field, c.title, *row, c.defaultValue, c.required);
    else if (starts("DROPDOWN") || t == "FOLLOWUP WITH DROPDOWN")
        survey ? html::WriteSurveyDropdown(b, mode, c.field, c.title, c.defaultValue, *row, c.required)
               : html::WriteFormDropdown(b, c.field, c.title, c.defaultValue, *row, c.required);
    else if (starts("QUESTION") || starts("DOWNLOAD") || starts("TABLE") || t == "CONDITION WITH COMMENT" ||
             t == "FOLLOWUP WITH MULTIPLE CHOICES")
        (survey ? html::WriteSurveyChoices : html::WriteFormChoices)(b, mode, c.field, c.title, *row, c.defaultValue,
                                                                     c.required);
    else if (starts("COMMENTS") || t == "FOLLOWUP WITH COMMENT")
        survey
            ? html::WriteSurveyComments(b, mode, c.field, c.title, c.width, c.height, c.defaultValue, *row, c.required)
            : html::WriteFormComments(b, c.field, c.title, c.width, c.height, c.defaultValue, *row, c.required);
    else
        survey ? html::WriteSurveyText(b, mode, c.field, c.title, "pw", c.width, *row, c.defaultValue, c.required)
               : html::WriteFormText(b, c.field, c.title, "pw", c.width, *row, c.defaultValue, c.required);
    return f.Output();
}

/// Each case's fragment against its golden file, and the message lines it records.
class QuestionGolden : public ::testing::TestWithParam<QuestionCase>
{
  protected:
    void Check()
    {
        const QuestionCase& c = GetParam();
        HtmlFixture f(c.Mode());
        EXPECT_EQ(WriteQuestion(f, c), Golden(c.golden)) << c.golden;
        ExpectMessages(f, c);
        EXPECT_TRUE(f.port.shown.empty());
    }
};

} // namespace tq::test
