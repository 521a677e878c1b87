// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/quiet_port.h"

namespace tq::shell {

void QuietPort::message(std::string_view, std::string_view, Icon) {}

Answer QuietPort::ask(std::string_view, std::string_view, Buttons buttons, Icon, int)
{
    return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
}

std::optional<std::string> QuietPort::inputBox(std::string_view, std::string_view, std::string_view)
{
    return std::nullopt;
}

std::optional<std::string> QuietPort::openFileDialog(const FileDialogOptions&)
{
    return std::nullopt;
}

std::optional<std::string> QuietPort::saveFileDialog(const FileDialogOptions&)
{
    return std::nullopt;
}

std::optional<std::string> QuietPort::browseForFolder(std::string_view, std::string_view)
{
    return std::nullopt;
}

std::optional<long> QuietPort::chooseColor(long, std::string_view)
{
    return std::nullopt;
}

} // namespace tq::shell
