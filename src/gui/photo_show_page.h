// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"
#include "session.h"

#include <QString>
#include <QWidget>
#include <functional>

class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;

namespace tq::gui {

/// The photo show page (PhotoShow): the slide show's settings as fields and
/// lists over the session's ShowPage, the colour button and its sample panel,
/// Save/Open/Recent, the build and the commands that follow it. Every change
/// in a control goes straight into the session's record.
class PhotoShowPage : public QWidget
{
    Q_OBJECT
  public:
    PhotoShowPage(Session& session, UiPort& ui, QWidget* parent = nullptr);

    /// Re-reads every control, the fade switch and the Recent menu from the session.
    void refresh();
    /// Runs one of the page's commands by its name (Save, Open, History1..,
    /// History100, Help, Exit, BuildPhotoShow, ViewInstructions, ViewShowLive,
    /// FtpOutputFiles, OpenLocalShow, BackgroundColor). False for another name.
    bool runCommand(const QString& name);

    /// Where the template photodata.php is proposed; the installed data folder.
    QString programFolder;
    /// Exit: back to the page that called this one.
    std::function<void()> onExit;

  private:
    QLineEdit* addField(const QString& name, std::string_view label, std::string show::ShowSettings::*field);
    QComboBox* addList(const QString& name, std::string_view label, std::string show::ShowSettings::*field);
    void fillList(QComboBox* box, const std::string& value);
    void applyFadeSwitch();
    void refreshRecent();
    void openRecent(int slot);

    Session& m_session;
    UiPort& m_ui;
    QWidget* m_form = nullptr;
    QList<std::pair<QLineEdit*, std::string show::ShowSettings::*>> m_fields;
    QList<std::pair<QComboBox*, std::string show::ShowSettings::*>> m_lists;
    QComboBox* m_fadeMode = nullptr;
    QComboBox* m_fadeSteps = nullptr;
    QComboBox* m_fadeDelay = nullptr;
    QFrame* m_sample = nullptr;
    QLineEdit* m_output = nullptr;
    QList<QPushButton*> m_afterBuild;
    QMenu* m_recent = nullptr;
    bool m_loading = true; // the controls are being filled: their signals change nothing
};

} // namespace tq::gui
