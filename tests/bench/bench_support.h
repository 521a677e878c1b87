// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

#include <string>

namespace tq::bench {

/// A port that shows nothing and answers every question with its default.
struct QuietPort : UiPort
{
    int messages = 0;
    void message(std::string_view, std::string_view, Icon) override { ++messages; }
    Answer ask(std::string_view, std::string_view title, Buttons b, Icon, int def) override;
    std::optional<std::string> inputBox(std::string_view, std::string_view, std::string_view) override
    {
        return std::nullopt;
    }
    std::optional<std::string> openFileDialog(const FileDialogOptions&) override { return std::nullopt; }
    std::optional<std::string> saveFileDialog(const FileDialogOptions&) override { return std::nullopt; }
    std::optional<std::string> browseForFolder(std::string_view, std::string_view) override { return std::nullopt; }
    std::optional<long> chooseColor(long, std::string_view) override { return std::nullopt; }
};

/// A one-line attribute text of about `bytes` bytes made of ordinary items.
std::string MakeAttributeText(size_t bytes);

/// A fresh folder under the system's temporary folder.
std::string MakeTempFolder(const std::string& tag);

} // namespace tq::bench
