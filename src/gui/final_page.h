// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "menus.h"
#include "shell/instructions.h"

#include <QWidget>
#include <functional>
#include <string>

class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

namespace tq::gui {

/// The final page after a build: the generated HTML code, the numbered
/// instructions, the files to upload, the clipboard copy and the full-screen
/// preview, with the page's own menus.
class FinalPage : public QWidget
{
    Q_OBJECT
  public:
    FinalPage(UiPort& ui, const CommandHandler& handler, QWidget* parent = nullptr);

    /// Shows what ShowInstructions returned.
    void fill(const shell::FinalPageText& text);
    /// The publish check's line under the instructions; empty hides it.
    void setPublishWarning(const QString& warning);

    QPlainTextEdit* codeBox() const { return m_code; }
    QPlainTextEdit* instructionBox() const { return m_instructions; }
    QLabel* publishWarning() const { return m_warning; }

    /// PREVIEW FULL SCREEN: the shell shows the output file in the preview window.
    std::function<void()> onPreviewFullScreen;

  private:
    UiPort& m_ui;
    QLabel* m_title = nullptr;
    QLabel* m_uploadLabel = nullptr;
    QPlainTextEdit* m_code = nullptr;
    QPlainTextEdit* m_instructions = nullptr;
    QLabel* m_warning = nullptr;
    QListWidget* m_uploads = nullptr;
    QPushButton* m_copy = nullptr;
    std::string m_codeText; // the output file as it stands, CR LF kept
};

} // namespace tq::gui
