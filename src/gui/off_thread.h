// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

#include <QObject>
#include <functional>

namespace tq::gui {

/// Runs `work` on a thread of its own so that the window keeps painting and
/// answering; `done` runs on the window's thread when it has ended, unless
/// `context` is gone by then.
void RunOffThread(QObject* context, std::function<void()> work, std::function<void()> done);

/// A port for core code that runs off the window's thread: every message,
/// question and dialog is handed to `target` on the window's thread, and the
/// caller waits for the answer there.
class WindowThreadPort : public UiPort
{
  public:
    WindowThreadPort(QObject* windowObject, UiPort& target) : m_window(windowObject), m_target(target) {}

    void message(std::string_view text, std::string_view title, Icon icon) override;
    Answer ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon, int defaultButton) override;
    std::optional<std::string>
    inputBox(std::string_view prompt, std::string_view title, std::string_view initial) override;
    std::optional<std::string> passwordBox(std::string_view prompt, std::string_view title) override;
    std::optional<std::string> openFileDialog(const FileDialogOptions& options) override;
    std::optional<std::string> saveFileDialog(const FileDialogOptions& options) override;
    std::optional<std::string> browseForFolder(std::string_view title, std::string_view initial) override;
    std::optional<long> chooseColor(long initial, std::string_view title) override;

  private:
    /// Runs `call` on the window's thread and waits for it (at once when already there).
    void onWindowThread(const std::function<void()>& call);

    QObject* m_window;
    UiPort& m_target;
};

} // namespace tq::gui
