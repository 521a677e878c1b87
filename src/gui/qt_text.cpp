// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt_text.h"

#include <QByteArray>

namespace tq::gui {

QString ToQ(std::string_view s)
{
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

std::string FromQ(const QString& s)
{
    return s.toUtf8().toStdString();
}

} // namespace tq::gui
