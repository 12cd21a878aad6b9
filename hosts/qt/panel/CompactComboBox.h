#pragma once

#include "hosts/qt/panel/PanelComboBox.h"

namespace zorvane {

/// A drop-down list no wider than its text and a small arrow.
class CompactComboBox final : public PanelComboBox {
    Q_OBJECT

  public:
    using PanelComboBox::PanelComboBox;
    void showPopup() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace zorvane
