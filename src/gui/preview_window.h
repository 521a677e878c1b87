// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

class QWebEngineView;

namespace tq::gui {

/// The preview window: a generated page in the embedded browser, filling the
/// window, with Exit as its only command.
class PreviewWindow : public QWidget
{
    Q_OBJECT
  public:
    explicit PreviewWindow(QWidget* parent = nullptr);

    /// Loads `file`; `onLoaded` (if set) runs once the page has loaded.
    void showFile(const QString& file);
    QWebEngineView* browser() const { return m_web; }

    /// Exit: the shell sets the content aside and goes back (previewCaller).
    std::function<void()> onExit;
    /// Runs each time a page finished loading (true when it loaded).
    std::function<void(bool)> onLoaded;

  private:
    QWebEngineView* m_web = nullptr;
    bool m_shownBefore = false;
};

} // namespace tq::gui
