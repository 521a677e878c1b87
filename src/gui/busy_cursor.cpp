// SPDX-License-Identifier: GPL-3.0-or-later
#include "busy_cursor.h"

#include <QApplication>

namespace tq::gui {

BusyCursor::BusyCursor()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

BusyCursor::~BusyCursor()
{
    QApplication::restoreOverrideCursor();
}

} // namespace tq::gui
