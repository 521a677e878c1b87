// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaObject>
#include <QWidget>
#include <functional>

class QMenuBar;
class QTimer;
class QWebEngineView;

namespace tq::gui {

/// The preview window: a generated page in the embedded browser, filling the
/// window, with Exit as its only command.
///
/// The browser view is never hidden. It lives beside `area` (the widget the
/// window is shown in, which paints its own background), beneath it while the
/// window is not in sight and over the window's page room while it is. So the
/// engine lays out and paints a new page while the page before stays in sight,
/// and showing the window costs no new surface: a hidden view would first
/// show what it painted before it was hidden.
class PreviewWindow : public QWidget
{
    Q_OBJECT
  public:
    explicit PreviewWindow(QWidget* area, QWidget* parent = nullptr);

    /// Loads `file` into the one browser view the window keeps; `onPainted`
    /// runs once the new page is painted and may be brought into sight.
    void showFile(const QString& file);
    QWebEngineView* browser() const { return m_web; }
    /// True from showFile until its page has painted.
    bool painting() const { return m_painting; }

    /// Exit: the shell sets the content aside and goes back (previewCaller).
    std::function<void()> onExit;
    /// Runs each time a page finished loading (true when it loaded).
    std::function<void(bool)> onLoaded;
    /// Runs once the page of showFile has painted (or failed to load).
    std::function<void()> onPainted;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void placeBrowser();
    void paintedOnNextFrame();
    void painted();

    QWidget* m_area = nullptr;
    QMenuBar* m_bar = nullptr;
    QWebEngineView* m_web = nullptr;
    QTimer* m_paintLimit = nullptr;
    QMetaObject::Connection m_nextFrame;
    bool m_painting = false;
};

} // namespace tq::gui
