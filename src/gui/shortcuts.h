// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/mode.h"
#include "port/ui_port.h"

#include <QKeySequence>
#include <QList>
#include <QString>
#include <string_view>

namespace tq::gui {

/// One standard key and the menu command it stands for on a page.
struct KeyCommand
{
    QKeySequence key;
    QString command; // the objectName of the page's action, else a command of the window
};

/// The standard keys of the program with the commands they run on `view`
/// in `mode` ("FORM" or "SURVEY"): new, open and save follow the active
/// mode; Page Up and Page Down only move between the four Pages. A key the
/// view has no command for is left out.
QList<KeyCommand> KeysOf(View view, model::Mode mode);

} // namespace tq::gui
