#include "apps/viewer/panels/PlateItemDelegate.h"

#include <QApplication>
#include <QPainter>

namespace zorvane::viewer {

namespace {

constexpr int kPadding = 6;

QFont SmallFont(const QFont& font) {
    QFont small = font;
    small.setPointSizeF(font.pointSizeF() * 0.88);
    return small;
}

QString SecondLine(const QModelIndex& index) {
    const QString details = index.data(PlateItemDelegate::kDetails).toString();
    const QString tags = index.data(PlateItemDelegate::kTags).toString();
    return tags.isEmpty() ? details : details + QStringLiteral(" · ") + tags;
}

QColor TextColor(const QStyleOptionViewItem& option, bool muted) {
    const bool selected = option.state & QStyle::State_Selected;
    const auto group = !(option.state & QStyle::State_Enabled) ? QPalette::Disabled
                       : option.state & QStyle::State_Active   ? QPalette::Active
                                                               : QPalette::Inactive;
    QColor color =
        option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
    if (muted) color.setAlphaF(0.72F);
    return color;
}

} // namespace

QSize PlateItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    const int lines =
        QFontMetrics(option.font).height() + QFontMetrics(SmallFont(option.font)).height();
    return {0, lines + 2 * kPadding};
}

void PlateItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QString name = item.text;
    item.text.clear();
    const QStyle* style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const QRect area = option.rect.adjusted(kPadding + 2, kPadding, -kPadding, -kPadding);
    const auto line = [&](const QString& text, const QFont& font, bool muted, int alignment) {
        painter->setFont(font);
        painter->setPen(TextColor(item, muted));
        painter->drawText(area, alignment,
                          QFontMetrics(font).elidedText(text, Qt::ElideRight, area.width()));
    };
    painter->save();
    line(name, option.font, false, Qt::AlignLeft | Qt::AlignTop);
    line(SecondLine(index), SmallFont(option.font), true, Qt::AlignLeft | Qt::AlignBottom);
    painter->restore();
}

} // namespace zorvane::viewer
