// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/edit_page.h"

#include <QHash>
#include <QStringList>
#include <QWidget>
#include <functional>

class QLabel;
class QGridLayout;
class QScrollArea;
class QMenuBar;
class QAction;
class QWebEngineView;
class QStringListModel;
class QCheckBox;
class QTimer;
class QSplitter;

namespace tq {
struct Session;
struct UiPort;
} // namespace tq

namespace tq::gui {

class EditWindow;

/// The edit page: one Entry as a column of labelled rows, each edited by its
/// kind, with Abort, Preview, Exit and Help. The rows live in the core's
/// EditState; this page only shows them and hands the commands to the core.
class EditPage : public QWidget
{
    Q_OBJECT
  public:
    EditPage(Session& session, UiPort& ui, QWidget* parent = nullptr);

    /// Opens the page on (page, row); `selectKey` selects that row's value.
    /// A text past 21 rows is reported as an internal error and nothing opens.
    void open(int page, int row, const QString& selectKey = {});
    const shell::EditState& state() const { return m_state; }

    /// The value widget of a row (QComboBox or QLineEdit), for tests.
    QWidget* valueWidget(int row) const;
    /// The row index of `key` (any case), or -1.
    int rowOf(const QString& key) const;
    /// Copies the value widgets into the state.
    void readValues();
    EditWindow* editWindow() const { return m_window; }
    QWebEngineView* browser() const { return m_web; }
    /// The live preview pane beside the rows, made on first use.
    QWebEngineView* livePreview() const { return m_live; }
    /// Shows or hides the live preview pane (the page remembers the choice).
    void setLivePreviewShown(bool on);
    bool livePreviewShown() const;
    /// Called each time the live preview pane has painted a new page.
    std::function<void()> onLivePainted;

    /// Exit: commit; on success the create page comes back.
    void exitPage();
    void abortPage();
    void previewPage();
    void exitPreview();
    void openEditWindow(int row);

    /// The caption of what is shown: "EDIT WINDOW" while the edit window is
    /// open, else "EDIT PAGE".
    QString caption() const;

    /// Called after the page was left (the views refresh from the store).
    std::function<void()> onLeft;
    /// Called when the edit window opens or closes (the caption changes).
    std::function<void()> onCaptionChanged;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void buildRows();
    void paintRow(int row);
    void markFailedRow();
    void showBrowser(const QString& file);
    void valueTyped();
    QStringList driveFolderChoices(const QString& current) const;
    void refreshLivePreview();

    Session& m_session;
    UiPort& m_ui;
    shell::EditState m_state;
    QLabel* m_caption = nullptr;
    QScrollArea* m_scroll = nullptr;
    QWidget* m_rowsHost = nullptr;
    QGridLayout* m_grid = nullptr;
    QList<QList<QWidget*>> m_rowWidgets; // label, value, button(s) of each row
    QList<QWidget*> m_values;
    QWebEngineView* m_web = nullptr;
    QWebEngineView* m_live = nullptr;
    QWidget* m_livePane = nullptr;
    QCheckBox* m_liveSwitch = nullptr;
    QTimer* m_liveTimer = nullptr;
    QSplitter* m_split = nullptr;
    bool m_splitPlaced = false; // the first showing shared the width out
    QList<QWidget*> m_swatches; // one per row, null where the row holds no colour
    QAction* m_exitPreview = nullptr;
    EditWindow* m_window = nullptr;
    /// One model per pull-down list, shared by the rows: a list of 1000 items is built once.
    QHash<QString, QStringListModel*> m_lists;
};

} // namespace tq::gui
