// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session.h"

#include <QMainWindow>
#include <memory>

class QStackedWidget;

namespace tq::gui {

class QtPort;

/// The one window of the program: a stack of pages, one visible at a time,
/// each with its own menu bar.
class MainWindow : public QMainWindow
{
    Q_OBJECT
  public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    Session& session() { return m_session; }

  private:
    void buildStartPage();

    Session m_session;
    std::unique_ptr<QtPort> m_port;
    QStackedWidget* m_stack = nullptr;
};

} // namespace tq::gui
