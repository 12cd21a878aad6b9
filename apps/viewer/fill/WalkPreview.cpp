#include "apps/viewer/fill/WalkPreview.h"

#include <QPainter>

#include <algorithm>

namespace zorvane::viewer {

namespace {

constexpr int kColumns = 12;
constexpr int kRows = 8;
constexpr QSize kCell(34, 24);

} // namespace

WalkPreview::WalkPreview(QWidget* parent) : QWidget(parent) {
    setAccessibleName(tr("Order in which the wells are filled"));
}

void WalkPreview::Show(const Walk& walk, int start, int stop) {
    walk_ = walk;
    start_ = start;
    stop_ = stop;
    setAccessibleDescription(tr("Columns: %1, rows: %2; the well at the top left is number %3")
                                 .arg(walk.width)
                                 .arg(walk.height)
                                 .arg(walk.NumberAt(0, 0)));
    update();
}

QSize WalkPreview::sizeHint() const {
    return {kColumns * kCell.width() + 1, kRows * kCell.height() + 1};
}

bool WalkPreview::IsFilled(int number) const {
    return number >= start_ && (stop_ == -1 || number <= stop_);
}

void WalkPreview::paintEvent(QPaintEvent*) {
    const auto columns = ShownPlaces(walk_.width, kColumns);
    const auto rows = ShownPlaces(walk_.height, kRows);
    QPainter painter(this);
    const double left = (width() - static_cast<double>(columns.size()) * kCell.width()) / 2;
    const double top = (height() - static_cast<double>(rows.size()) * kCell.height()) / 2;
    for (std::size_t r = 0; r < rows.size(); ++r) {
        for (std::size_t c = 0; c < columns.size(); ++c) {
            const QRectF cell(QPointF(left + static_cast<double>(c) * kCell.width(),
                                      top + static_cast<double>(r) * kCell.height()),
                              kCell);
            if (rows[r] && columns[c]) {
                PaintCell(painter, cell, walk_.NumberAt(*rows[r], *columns[c]));
            } else {
                painter.drawText(cell, Qt::AlignCenter, QStringLiteral("…"));
            }
        }
    }
}

void WalkPreview::PaintCell(QPainter& painter, const QRectF& cell, int number) const {
    const bool filled = IsFilled(number);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().brush(filled ? QPalette::Base : QPalette::Window));
    painter.drawRect(cell);
    painter.setPen(palette().color(filled ? QPalette::Active : QPalette::Disabled, QPalette::Text));
    painter.drawText(cell, Qt::AlignCenter, QString::number(number));
}

} // namespace zorvane::viewer
