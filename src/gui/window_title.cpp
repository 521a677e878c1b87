// SPDX-License-Identifier: GPL-3.0-or-later
#include "window_title.h"

#include <QFileInfo>
#include <QStringList>

namespace tq::gui {

QString WindowTitle(const QString& caption, const QString& filePath, bool unsaved)
{
    QStringList parts;
    if (!caption.isEmpty())
        parts << caption;
    const QString name = QFileInfo(filePath).fileName();
    if (!name.isEmpty() || unsaved)
        parts << (unsaved ? "*" : "") + (name.isEmpty() ? QStringLiteral("Untitled") : name);
    parts << QStringLiteral("Tarnquill");
    return parts.join(QStringLiteral(" \u2014 "));
}

} // namespace tq::gui
