// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "menus.h"

#include <QWidget>
#include <array>
#include <functional>

class QLineEdit;

namespace tq::store {
struct SetupStore;
}

namespace tq::gui {

/// The Setup page: the 15 web site rows (order number, menu name, server
/// path, folder path, e-mail address), the three tool paths, the sort and
/// find buttons. Its fields write straight into the setup store; refresh()
/// reads them back after a command of the core.
class SetupPage : public QWidget
{
    Q_OBJECT
  public:
    /// `handler` runs the page's commands; the buttons run "cmdSortAZ",
    /// "cmdSortNumber", "cmdFindWebEditor", "cmdFindFtp" and "cmdFindBrowser".
    SetupPage(store::SetupStore& setup, const CommandHandler& handler, QWidget* parent = nullptr);

    /// Shows the store's values in the fields.
    void refresh();

    /// A right press inside one of the seven kinds of field: its text.
    std::function<void(const QString& text)> onCopyField;

  private:
    struct RowEdits
    {
        QLineEdit* order = nullptr;
        QLineEdit* menuName = nullptr;
        QLineEdit* serverPath = nullptr;
        QLineEdit* folderPath = nullptr;
        QLineEdit* email = nullptr;
    };
    QLineEdit* makeField(const QString& name, std::string* target, bool copies);

    store::SetupStore& m_setup;
    std::array<RowEdits, 15> m_rows;
    QLineEdit* m_ftp = nullptr;
    QLineEdit* m_editor = nullptr;
    QLineEdit* m_browser = nullptr;
    QList<QPair<QLineEdit*, std::string*>> m_bindings;
};

} // namespace tq::gui
