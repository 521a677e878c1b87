// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

class QLabel;
class QPlainTextEdit;
class QWebEngineView;

namespace tq::gui {

/// The edit window: a larger monospace editor for one text row of the edit
/// page, with its fixed heading, Exit and Preview. It shows inside the edit
/// page in place of the rows.
class EditWindow : public QWidget
{
    Q_OBJECT
  public:
    explicit EditWindow(QWidget* parent = nullptr);

    /// Shows `text` for the row `row` under the row's label. A SURVEY uses the
    /// second background colour.
    void open(int row, const QString& label, const QString& text, bool survey);
    int row() const { return m_row; }
    QPlainTextEdit* editor() const { return m_text; }
    QWebEngineView* browser() const { return m_web; }
    /// Shows a preview file below the text.
    void showPreview(const QString& file);

    /// Exit: the edit page takes the text back (WindowToValue) and hides this.
    std::function<void(const QString& text)> onExit;
    /// Preview: the edit page previews the text (PreviewAttribute).
    std::function<void(const QString& text)> onPreview;

  private:
    QLabel* m_label = nullptr;
    QPlainTextEdit* m_text = nullptr;
    QWebEngineView* m_web = nullptr;
    int m_row = -1;
};

} // namespace tq::gui
