#pragma once

#include "control/Elements.h"

#include <QPushButton>

namespace zorvane {

/// The button that opens the details panel.
class DetailsButton final : public QPushButton {
    Q_OBJECT

  public:
    explicit DetailsButton(QWidget& host);
    void Show(const Button& button);
};

} // namespace zorvane
