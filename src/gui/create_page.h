// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "menus.h"

#include <QWidget>

class QLabel;
class QTableView;
class QPushButton;
class QFrame;
class QStackedLayout;
class QWebEngineView;
class QSplitter;

namespace tq::model {
struct EntryStore;
}

namespace tq::gui {

class EntryTableModel;
class PickList;

/// The view of one Page: the pick list of Input Types, the 25 rows of the
/// Page and the quick preview pane.
class CreatePage : public QWidget
{
    Q_OBJECT
  public:
    CreatePage(model::EntryStore& store, int page, const CommandHandler& handler, QWidget* parent = nullptr);

    int page() const { return m_page; }
    PickList* pickList() const { return m_pick; }
    EntryTableModel* model() const { return m_model; }
    QTableView* table() const { return m_table; }

    /// Fills the pick list; the selection stays on the same index.
    void setPickList(const QStringList& names);
    /// Sets the page heading, the two status labels and the mode word of the
    /// row column's heading.
    void setCaptions(const QString& heading, const QString& modeText, const QString& fileText, const QString& mode);
    /// Re-reads the rows from the store and enables the row buttons.
    void refresh();
    /// Sets or empties the tool tips of the rows and the page's commands.
    void setToolTipsShown(bool on);
    /// Selects a row so that the user sees it.
    void selectRow(int row);
    /// Puts the focus on the first row.
    void focusFirstRow();
    /// Selects the pick list and gives it the focus.
    void focusPickList();

    /// Shows `file` in the quick preview pane (made on first use).
    void showPreview(const QString& file);
    /// Hides the quick preview pane.
    void hidePreview();
    bool previewVisible() const;

    // Row and page actions, answered by the window that runs the core.
    std::function<void(int page, int pickIndex)> onAdd;
    std::function<void(int page, int pickIndex)> onQuickPreview;
    std::function<void(int page)> onEscape;
    std::function<void(int page, int row)> onClear;
    std::function<void(int page, int row)> onEdit;
    std::function<void(int page)> onOrder;
    std::function<void(int page)> onClearAll;
    /// A drop on `targetRow`: from row `sourceRow` of this Page, or (sourceRow
    /// -1) the pick list item `pickIndex`.
    std::function<void(int page, int targetRow, int sourceRow, int pickIndex)> onDrop;
    std::function<void(int page, int row)> onNumberChanged;

  protected:
    /// Enter on a row opens its edit page, Delete runs its Clear; a table
    /// that gets the focus shows its current row selected.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    int selectedPickIndex() const;

    model::EntryStore& m_store;
    int m_page;
    PickList* m_pick = nullptr;
    QTableView* m_table = nullptr;
    EntryTableModel* m_model = nullptr;
    QLabel* m_heading = nullptr;
    QLabel* m_mode = nullptr;
    QLabel* m_file = nullptr;
    QLabel* m_rowsHeading = nullptr;
    QPushButton* m_order = nullptr;
    QPushButton* m_clearAll = nullptr;
    QPushButton* m_background = nullptr;
    QFrame* m_previewPane = nullptr;
    QSplitter* m_split = nullptr;
    QWebEngineView* m_web = nullptr;
};

} // namespace tq::gui
