#pragma once

#include <QGroupBox>

namespace zorvane {

/// The frame around the details panel. Keys that nothing inside wants end here, so that none of
/// them moves the current well.
class PanelFrame final : public QGroupBox {
    Q_OBJECT

  public:
    /// The title stands level with the data button, to the left of it.
    static constexpr int kTitleLeft = 8;
    static constexpr int kTitleHeight = 15;

    using QGroupBox::QGroupBox;

  signals:
    void enterPressed();
    void escapePressed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
};

} // namespace zorvane
