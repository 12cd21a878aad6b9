#pragma once

#include <QStyledItemDelegate>

namespace zorvane::viewer {

/// Draws a plate of a list in two lines: its name, and its size and tags.
class PlateItemDelegate final : public QStyledItemDelegate {
    Q_OBJECT

  public:
    static constexpr int kDetails = Qt::UserRole;
    static constexpr int kTags = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace zorvane::viewer
