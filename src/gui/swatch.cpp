// SPDX-License-Identifier: GPL-3.0-or-later
#include "swatch.h"

#include <QWidget>

namespace tq::gui {

QColor CoreColor(long color)
{
    return QColor(static_cast<int>(color & 0xff), static_cast<int>((color >> 8) & 0xff),
                  static_cast<int>((color >> 16) & 0xff));
}

void PaintSwatch(QWidget* swatch, long color)
{
    swatch->setStyleSheet(
        QString("#%1 { background: %2; border: 1px solid #666; }").arg(swatch->objectName(), CoreColor(color).name()));
    swatch->setToolTip(CoreColor(color).name());
}

} // namespace tq::gui
