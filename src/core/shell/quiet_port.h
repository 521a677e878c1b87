// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

namespace tq::shell {

/// A port that shows nothing and answers every question with No (OK for an
/// OK box) and every dialog with Cancel: for runs with their messages off.
struct QuietPort : UiPort
{
    void message(std::string_view text, std::string_view title, Icon icon) override;
    Answer ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon, int defaultButton) override;
    std::optional<std::string>
    inputBox(std::string_view prompt, std::string_view title, std::string_view initial) override;
    std::optional<std::string> openFileDialog(const FileDialogOptions& options) override;
    std::optional<std::string> saveFileDialog(const FileDialogOptions& options) override;
    std::optional<std::string> browseForFolder(std::string_view title, std::string_view initial) override;
    std::optional<long> chooseColor(long initial, std::string_view title) override;
};

} // namespace tq::shell
