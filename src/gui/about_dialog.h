// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace tq {
struct UiPort;
}

namespace tq::gui {

/// The About box: the program's name and version, `cmdOK` to close it and
/// `cmdSysInfo` for the system information tool, which this platform lacks.
class AboutDialog : public QDialog
{
    Q_OBJECT
  public:
    AboutDialog(UiPort& ui, QWidget* parent = nullptr);
};

} // namespace tq::gui
