#pragma once

#include "control/Elements.h"
#include "drawing/Palette.h"

#include <QColor>
#include <QRectF>
#include <QWidget>

namespace zorvane {

/// The two sample shapes of a style, one inside the other, stretched to their boxes.
class StylePreview final : public QWidget {
    Q_OBJECT

  public:
    using QWidget::QWidget;
    /// Shows these shapes. The widget itself must be placed over the rim's box.
    void Show(const Shape& rim, const Shape& well, const SystemPalette& colors);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Sample {
        QRectF box;
        QColor fill;
        bool round = false;

        friend bool operator==(const Sample&, const Sample&) = default;
    };

    Sample rim_;
    Sample well_;
};

} // namespace zorvane
