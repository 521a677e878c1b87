// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "menus.h"

#include <QWidget>

class QLabel;

namespace tq::gui {

/// The first page the user sees: the program's banner, the two status
/// labels and the main menu.
class StartPage : public QWidget
{
    Q_OBJECT
  public:
    StartPage(const CommandHandler& handler, QWidget* parent = nullptr);

    /// Sets the two status labels (active mode, file loaded).
    void setStatus(const QString& modeText, const QString& fileText);

  private:
    QLabel* m_mode = nullptr;
    QLabel* m_file = nullptr;
};

} // namespace tq::gui
