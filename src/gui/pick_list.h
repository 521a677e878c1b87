// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>
#include <functional>

namespace tq::gui {

/// The list of Input Types of the active mode. Enter and double click add
/// the selected type, Space previews it, ESC leaves the preview; an item can
/// be dragged onto a row.
class PickList : public QListWidget
{
    Q_OBJECT
  public:
    explicit PickList(QWidget* parent = nullptr);

    std::function<void()> onAdd;
    std::function<void()> onPreview;
    std::function<void()> onEscape;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    QMimeData* mimeData(const QList<QListWidgetItem*>& items) const override;
    QStringList mimeTypes() const override;
};

} // namespace tq::gui
