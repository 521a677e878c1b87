// SPDX-License-Identifier: GPL-3.0-or-later
#include "console_port.h"

#include "run_process.h"

#include <ostream>

namespace tq::cli {

void ConsolePort::message(std::string_view text, std::string_view title, Icon)
{
    ++messageCount;
    m_err << title << ": " << ConvertLineBreaks(text, "\n") << '\n';
}

static Answer DefaultAnswer(Buttons buttons, int defaultButton)
{
    switch (buttons) {
    case Buttons::Ok:
        return Answer::Ok;
    case Buttons::YesNo:
        return defaultButton == 2 ? Answer::No : Answer::Yes;
    case Buttons::YesNoCancel:
        return defaultButton == 2 ? Answer::No : defaultButton == 3 ? Answer::Cancel : Answer::Yes;
    }
    return Answer::Cancel;
}

Answer ConsolePort::ask(std::string_view text, std::string_view title, Buttons buttons, Icon, int defaultButton)
{
    Answer a = DefaultAnswer(buttons, defaultButton);
    if (replace && title == "EDIT SETUP")
        a = Answer::No;
    else if (replace && (title == "Duplicate File" || title == "FILE EXIST"))
        a = Answer::Yes;
    const char* word = a == Answer::Yes ? "Yes" : a == Answer::No ? "No" : a == Answer::Cancel ? "Cancel" : "OK";
    m_err << title << ": " << ConvertLineBreaks(text, "\n") << " [" << word << "]\n";
    return a;
}

std::optional<std::string> ConsolePort::inputBox(std::string_view prompt, std::string_view title, std::string_view)
{
    m_err << title << ": " << ConvertLineBreaks(prompt, "\n") << " [cancelled]\n";
    return std::nullopt;
}

std::optional<std::string> ConsolePort::openFileDialog(const FileDialogOptions&)
{
    return std::nullopt;
}

std::optional<std::string> ConsolePort::saveFileDialog(const FileDialogOptions&)
{
    return std::nullopt;
}

std::optional<std::string> ConsolePort::browseForFolder(std::string_view, std::string_view)
{
    return std::nullopt;
}

std::optional<long> ConsolePort::chooseColor(long, std::string_view)
{
    return std::nullopt;
}

std::optional<ProcessResult>
ConsolePort::runProcess(std::string_view program, const std::vector<std::string>& args, int timeoutMs)
{
    return RunProcess(program, args, timeoutMs);
}

} // namespace tq::cli
