// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

class QWebEngineView;

namespace tq::gui {

/// The folder of the help pages that ship with the program: the installed
/// one, or the source tree's when the program runs from its build folder.
QString HelpFolder();

/// The help page of the Help menu command `command` in `folder`, or an empty
/// text when the command has no page of its own or the file is missing.
QString LocalHelpPage(const QString& folder, const QString& command);

/// The help commands that have a page of their own.
QStringList LocalHelpCommands();

/// A window of its own that shows the help pages in the embedded browser.
class HelpWindow : public QWidget
{
    Q_OBJECT
  public:
    explicit HelpWindow(QWidget* parent = nullptr);
    /// Shows `file` and brings the window to the front.
    void showPage(const QString& file);
    QWebEngineView* browser() const { return m_web; }

  private:
    QWebEngineView* m_web = nullptr;
};

} // namespace tq::gui
