// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>

class QMenuBar;
class QMenu;
class QAction;
class QWidget;

namespace tq::gui {

/// Which page a menu bar belongs to; the pages share most commands.
enum class MenuKind { StartPage, CreatePage1, CreatePageN, FinalPage };

/// Runs a command by its name ("CreateNewForm", "File3", "Web1" ...).
using CommandHandler = std::function<void(const QString& command)>;

/// Builds the menu bar of a page. Every action carries its command's name as
/// objectName and calls `handler` with that name when triggered.
QMenuBar* BuildMenuBar(MenuKind kind, QWidget* parent, const CommandHandler& handler);

/// Adds an action named `name` with `caption` to `menu`, routed to `handler`.
QAction* AddCommand(QMenu* menu, const QString& name, const QString& caption, const CommandHandler& handler);

} // namespace tq::gui
