#pragma once

#include "apps/viewer/logic/Walk.h"

#include <QWidget>

namespace zorvane::viewer {

/// A small grid with the numbers under which an array fill reaches the wells of a block. Wells that
/// the fill skips are pale.
class WalkPreview final : public QWidget {
    Q_OBJECT

  public:
    explicit WalkPreview(QWidget* parent = nullptr);

    /// `stop` is -1 for the end of the walk.
    void Show(const Walk& walk, int start, int stop);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void PaintCell(QPainter& painter, const QRectF& cell, int number) const;
    bool IsFilled(int number) const;

    Walk walk_;
    int start_ = 1;
    int stop_ = -1;
};

} // namespace zorvane::viewer
