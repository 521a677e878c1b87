// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

#include <functional>

class QTimer;
class QWidget;

namespace tq::gui {

/// The port of the desktop program: message boxes, dialogs, the desktop's
/// handlers. CR in a text becomes a line break here.
class QtPort : public UiPort
{
  public:
    explicit QtPort(QWidget* parent);
    ~QtPort() override;

    void message(std::string_view text, std::string_view title, Icon icon) override;
    Answer ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon, int defaultButton) override;
    std::optional<std::string>
    inputBox(std::string_view prompt, std::string_view title, std::string_view initial) override;
    std::optional<std::string> passwordBox(std::string_view prompt, std::string_view title) override;
    std::optional<std::string> openFileDialog(const FileDialogOptions& options) override;
    std::optional<std::string> saveFileDialog(const FileDialogOptions& options) override;
    std::optional<std::string> browseForFolder(std::string_view title, std::string_view initial) override;
    std::optional<long> chooseColor(long initial, std::string_view title) override;
    void setBusy(bool on) override;
    bool openTarget(std::string_view target) override;
    void setClipboard(std::string_view text) override;
    void showView(View v) override;
    void openEditPage(int page, int row, std::string_view selectKey) override;
    void selectRow(int page, int row) override;
    void entriesChanged() override;
    void hidePreviews() override;
    std::optional<std::string> httpGet(std::string_view url, int timeoutMs) override;
    bool startProgram(std::string_view program,
                      const std::vector<std::string>& args,
                      std::string_view workingFolder) override;
    std::optional<ProcessResult>
    runProcess(std::string_view program, const std::vector<std::string>& args, int timeoutMs) override;

    // The window that owns the pages answers the shell hooks.
    std::function<void(View)> onShowView;
    std::function<void(int, int, std::string)> onOpenEditPage;
    std::function<void(int, int)> onSelectRow;
    std::function<void()> onEntriesChanged;
    std::function<void()> onHidePreviews;
    /// Called with true when the busy pointer has stood for half a second, and
    /// with false when it goes: the window shows a progress line meanwhile.
    std::function<void(bool)> onLongWait;

  private:
    QWidget* m_parent;
    bool m_busy = false;
    QTimer* m_longWait = nullptr;
};

} // namespace tq::gui
