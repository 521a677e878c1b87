// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaObject>
#include <QPixmap>
#include <QWidget>
#include <functional>

class QLabel;
class QTimer;
class QWebEngineView;

namespace tq::gui {

/// The preview window: a generated page in the embedded browser, filling the
/// window, with Exit as its only command.
class PreviewWindow : public QWidget
{
    Q_OBJECT
  public:
    explicit PreviewWindow(QWidget* parent = nullptr);

    /// Loads `file` into the one browser view the window keeps. When the
    /// window is not on show yet, `shownNow` (a picture of what the user sees
    /// now) stays in sight over it until the new page has painted: neither the
    /// page before nor a blank one flashes up.
    void showFile(const QString& file, const QPixmap& shownNow = {});
    QWebEngineView* browser() const { return m_web; }
    /// True while the picture of the page before still covers the browser.
    bool covered() const;

    /// Exit: the shell sets the content aside and goes back (previewCaller).
    std::function<void()> onExit;
    /// Runs each time a page finished loading (true when it loaded).
    std::function<void(bool)> onLoaded;
    /// Runs once the new page of showFile is in sight.
    std::function<void()> onPainted;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void cover(const QPixmap& shownNow);
    void uncoverOnNextFrame();
    void uncover();

    QWebEngineView* m_web = nullptr;
    QLabel* m_cover = nullptr;
    QTimer* m_coverLimit = nullptr;
    QMetaObject::Connection m_nextFrame;
};

} // namespace tq::gui
