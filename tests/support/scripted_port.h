// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

#include <deque>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace tq::test {

/// One message or question that the core showed.
struct Shown
{
    std::string kind; // "message", "ask", "input", "open", "save", "folder", "color"
    std::string text;
    std::string title;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
    int defaultButton = 0;
};

/// A port for tests: records every message (text, title, icon) and answers
/// questions and dialogs from queues kept on the instance. A question with no
/// answer queued fails the running test.
class ScriptedPort : public UiPort
{
  public:
    void message(std::string_view text, std::string_view title, Icon icon) override;
    Answer ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon, int defaultButton) override;
    std::optional<std::string>
    inputBox(std::string_view prompt, std::string_view title, std::string_view initial) override;
    std::optional<std::string> openFileDialog(const FileDialogOptions& options) override;
    std::optional<std::string> saveFileDialog(const FileDialogOptions& options) override;
    std::optional<std::string> browseForFolder(std::string_view title, std::string_view initial) override;
    std::optional<long> chooseColor(long initial, std::string_view title) override;

    void showView(View v) override { views.push_back(v); }
    void openEditPage(int page, int row, std::string_view selectKey) override;
    void selectRow(int page, int row) override { selectedRows.push_back({page, row}); }
    void setBusy(bool on) override { busyCalls.push_back(on); }
    bool startProgram(std::string_view program,
                      const std::vector<std::string>& args,
                      std::string_view workingFolder) override;
    bool openTarget(std::string_view target) override;
    void setClipboard(std::string_view text) override { clipboard = std::string(text); }
    std::optional<std::string> httpGet(std::string_view url, int timeoutMs) override;

    /// Queues the answer of the next question.
    void answer(Answer a) { answers.push_back(a); }
    /// Queues the text of the next input box (nullopt: cancelled).
    void input(std::optional<std::string> s) { inputs.push_back(std::move(s)); }
    /// Queues the result of the next file or folder dialog (nullopt: cancelled).
    void file(std::optional<std::string> s) { files.push_back(std::move(s)); }
    void color(std::optional<long> c) { colors.push_back(c); }
    void http(std::optional<std::string> body) { httpBodies.push_back(std::move(body)); }

    /// Messages only (not questions), in order.
    std::vector<Shown> messages() const;
    /// The last message or question; fails the test when none was shown.
    const Shown& last() const;
    void clear() { shown.clear(); }

    std::vector<Shown> shown;
    std::deque<Answer> answers;
    std::deque<std::optional<std::string>> inputs;
    std::deque<std::optional<std::string>> files;
    std::deque<std::optional<long>> colors;
    std::deque<std::optional<std::string>> httpBodies;
    std::vector<View> views;
    struct EditCall
    {
        int page;
        int row;
        std::string key;
    };
    std::vector<EditCall> editCalls;
    std::vector<std::pair<int, int>> selectedRows;
    std::vector<bool> busyCalls;
    struct Started
    {
        std::string program;
        std::vector<std::string> args;
        std::string folder;
    };
    std::vector<Started> started;
    bool startResult = true;
    std::vector<std::string> opened;
    bool openResult = true;
    std::string clipboard;
    std::vector<std::string> httpUrls;
};

/// Reads a whole file as bytes; empty when it does not exist.
std::string ReadFileBytes(const std::string& path);
/// Writes bytes to a file, creating its folder.
void WriteFileBytes(const std::string& path, const std::string& bytes);

/// Whether a message has this text, title and icon (Icon::None: any icon).
::testing::AssertionResult Said(const Shown& m, std::string_view text, std::string_view title, Icon icon = Icon::None);

/// A fresh temporary folder, removed with the object.
class TempDir
{
  public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;
    const std::string& path() const { return m_path; }
    std::string file(std::string_view name) const;

  private:
    std::string m_path;
};

} // namespace tq::test
