// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

class QWidget;

namespace tq::gui {

/// A colour as the core keeps it (red in the low byte, blue in the third) as a Qt colour.
QColor CoreColor(long color);

/// Fills `swatch` (a small framed widget beside a colour number) with `color`.
void PaintSwatch(QWidget* swatch, long color);

} // namespace tq::gui
