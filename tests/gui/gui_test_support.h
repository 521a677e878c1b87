// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMessageBox>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <string>

class QWidget;
class QAction;
class QTimer;

namespace tq::model {
struct Entry;
}

namespace tq::gui {
class MainWindow;
}

namespace tq::gui::test {

/// Writes the folder pointer of `docs` so that it names `docs`/data, and
/// makes both folders; returns the data folder.
QString PointAtDataFolder(const QTemporaryDir& docs);

/// A main window started on a temporary DataFolder that the folder pointer
/// already names, shown, with ConfirmExit ending nothing.
struct StartedWindow
{
    StartedWindow();
    ~StartedWindow();
    QTemporaryDir docs;
    QString data;
    std::unique_ptr<MainWindow> w;
    bool started = false;

    /// The Entry at `row` of `page`.
    const model::Entry& at(int page, int row) const;
    /// Its Input Type name.
    QString name(int page, int row) const;
    /// The names of rows `first`..`last` of `page`.
    QStringList names(int page, int first, int last) const;
    /// Puts `type` with its default text, in the stored form, into a row, as an add would.
    void put(int page, int row, const std::string& type);
    /// Points the SetupEntry at a new folder docs/web and takes away the sample
    /// marks (";") that stop a build; empty when the SetupEntry has no sample folder.
    QString useWebFolder();
};

/// Saves a picture of `w` as artifacts/<name>.png for review.
QString SaveScreenshot(QWidget* w, const QString& name);

/// Answers the modal dialogs of a command one after another, in order, and
/// records each as "TITLE: text". A dialog beyond the script is recorded with
/// the mark "UNEXPECTED " and closed, so that a test fails instead of hanging.
class DialogScript
{
  public:
    DialogScript();
    ~DialogScript();
    /// The next dialog is answered by `answer`, which must close it.
    DialogScript& then(std::function<void(QWidget*)> answer);
    /// The next dialog is a message box: press `button`.
    DialogScript& press(QMessageBox::StandardButton button);
    /// The next dialog is an input box: type `text` and press OK.
    DialogScript& type(const QString& text);
    /// The next dialog is a file dialog: choose `path`.
    DialogScript& choose(const QString& path);
    /// Every dialog seen so far.
    QStringList seen;
    /// True when every scripted answer was used.
    bool done() const { return m_answers.isEmpty(); }

  private:
    QList<std::function<void(QWidget*)>> m_answers;
    std::unique_ptr<QTimer> m_timer;
};

/// Runs `run`, pressing `button` on the message box it shows; returns the box
/// as "TITLE: text" (empty when none came).
QString AnswerBox(const std::function<void()>& run, QMessageBox::StandardButton button = QMessageBox::Ok);

/// Finds the action named `name` on the visible page of `root` and triggers it.
bool Trigger(QWidget* root, const QString& name);

/// Text of a message box, with its title, as "TITLE: text".
QString DescribeBox(QWidget* box);

} // namespace tq::gui::test
