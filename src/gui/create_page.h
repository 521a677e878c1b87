// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "menus.h"

#include <QWidget>

class QLabel;
class QTableView;
class QPushButton;

namespace tq::model {
struct EntryStore;
}

namespace tq::gui {

class EntryTableModel;
class PickList;

/// The view of one Page: the pick list of Input Types and the 25 rows.
class CreatePage : public QWidget
{
    Q_OBJECT
  public:
    CreatePage(model::EntryStore& store, int page, const CommandHandler& handler, QWidget* parent = nullptr);

    int page() const { return m_page; }
    PickList* pickList() const { return m_pick; }
    EntryTableModel* model() const { return m_model; }
    QTableView* table() const { return m_table; }

    /// Fills the pick list: names in catalogue order, each with its index.
    void setPickList(const QStringList& names, const QList<int>& indexes);
    /// Sets the captions and status labels.
    void setCaptions(const QString& heading, const QString& modeText, const QString& fileText);
    /// Re-reads the rows from the store and enables the row buttons.
    void refresh();
    void setToolTipsShown(bool on);

    // Row and page actions, answered by the window that runs the core.
    std::function<void(int page, int pickIndex)> onAdd;
    std::function<void(int page, int pickIndex)> onQuickPreview;
    std::function<void(int page)> onEscape;
    std::function<void(int page, int row)> onClear;
    std::function<void(int page, int row)> onEdit;
    std::function<void(int page)> onOrder;
    std::function<void(int page)> onClearAll;
    std::function<void(int page, int targetRow, int sourceRow, int pickIndex)> onDrop;
    std::function<void(int page, int row)> onNumberChanged;

  private:
    model::EntryStore& m_store;
    int m_page;
    PickList* m_pick = nullptr;
    QTableView* m_table = nullptr;
    EntryTableModel* m_model = nullptr;
    QLabel* m_heading = nullptr;
    QLabel* m_mode = nullptr;
    QLabel* m_file = nullptr;
    QPushButton* m_order = nullptr;
    QPushButton* m_clearAll = nullptr;
};

} // namespace tq::gui
