// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

#include <iosfwd>

namespace tq::cli {

/// The command-line tool's port: each message goes to the error stream as
/// "TITLE: text" (CR shown as a line break); every question is answered with
/// its default button unless `replace` asks for Yes on the questions about
/// existing output files.
class ConsolePort : public UiPort
{
  public:
    explicit ConsolePort(std::ostream& err) : m_err(err) {}

    void message(std::string_view text, std::string_view title, Icon icon) override;
    Answer ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon, int defaultButton) override;
    std::optional<std::string>
    inputBox(std::string_view prompt, std::string_view title, std::string_view initial) override;
    std::optional<std::string> openFileDialog(const FileDialogOptions& options) override;
    std::optional<std::string> saveFileDialog(const FileDialogOptions& options) override;
    std::optional<std::string> browseForFolder(std::string_view title, std::string_view initial) override;
    std::optional<long> chooseColor(long initial, std::string_view title) override;
    /// Runs the program for real (the publish check's "php -l").
    std::optional<ProcessResult>
    runProcess(std::string_view program, const std::vector<std::string>& args, int timeoutMs) override;

    /// Answer the "EDIT SETUP" question with No and "Duplicate File" with Yes.
    bool replace = false;
    /// Number of messages shown so far.
    int messageCount = 0;

  private:
    std::ostream& m_err;
};

} // namespace tq::cli
