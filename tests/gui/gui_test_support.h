// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>

class QWidget;
class QAction;

namespace tq::gui::test {

/// Saves a picture of `w` as artifacts/<name>.png for review.
QString SaveScreenshot(QWidget* w, const QString& name);

/// Answers the next modal dialog that opens: `answer` gets the dialog's widget
/// (a QMessageBox, QInputDialog, QFileDialog ...) and must close it.
void AnswerNextDialog(std::function<void(QWidget*)> answer);

/// Finds the action named `name` on the visible page of `root` and triggers it.
bool Trigger(QWidget* root, const QString& name);

/// Text of a message box, with its title, as "TITLE: text".
QString DescribeBox(QWidget* box);

} // namespace tq::gui::test
