#pragma once

#include "control/Elements.h"
#include "drawing/Palette.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>

#include <functional>

/// The toolkit's controls as the details panel needs them: rows of 13 pixels leave no room for
/// their usual frames.
namespace zorvane {

/// The frame around the panel. Keys that nothing in it wants end here, so that none of them moves
/// wells.
class PanelBox final : public QGroupBox {
  public:
    /// The title is in line with what the panel holds, above the data button.
    static constexpr int kTitleLeft = 8;
    static constexpr int kTitleHeight = 15;

    using QGroupBox::QGroupBox;
    std::function<void()> onEnter;
    std::function<void()> onEscape;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
};

/// The text box of a row, with a frame one pixel thin.
class RowEdit final : public QLineEdit {
  public:
    explicit RowEdit(QWidget* parent);
    /// The row has taken the keyboard focus, or lost it.
    std::function<void(bool)> onFocus;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

/// A drop-down list that the wheel turns only while it has the focus: a turn that was meant to
/// scroll the panel would change a value, or drop what has been typed on the page.
class CalmList : public QComboBox {
  public:
    explicit CalmList(QWidget* parent);

  protected:
    void wheelEvent(QWheelEvent* event) override;
};

/// A drop-down list no wider than its text and a small arrow.
class SlimList final : public CalmList {
  public:
    using CalmList::CalmList;
    void showPopup() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The two sample shapes of a style, one inside the other, stretched to their boxes.
class StylePreview final : public QWidget {
  public:
    using QWidget::QWidget;
    /// Shows these shapes. This widget stands where the rim does.
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
