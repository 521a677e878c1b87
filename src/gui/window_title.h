// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tq::gui {

/// The main window's title, its parts joined by " \u2014 ": the page's caption
/// when it has one ("EDIT PAGE"), the project file's name (its file name only)
/// with a leading "*" while `unsaved` ("*Untitled" for rows never saved), and
/// the program's name: "EDIT PAGE \u2014 *club.fms \u2014 Tarnquill".
QString WindowTitle(const QString& caption, const QString& filePath, bool unsaved);

} // namespace tq::gui
