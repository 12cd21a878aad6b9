#pragma once

#include <QComboBox>

namespace zorvane {

/// A drop-down list that the wheel changes only while it has the focus. A wheel turn meant to
/// scroll the panel would otherwise change a value, or drop what has been typed on the page.
class PanelComboBox : public QComboBox {
    Q_OBJECT

  public:
    explicit PanelComboBox(QWidget* parent);

  protected:
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace zorvane
