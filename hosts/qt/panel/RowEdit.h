#pragma once

#include <QLineEdit>

namespace zorvane {

/// The text box of a row in the details panel.
class RowEdit final : public QLineEdit {
    Q_OBJECT

  public:
    explicit RowEdit(QWidget* parent);

  signals:
    void focusGained();
    /// Not emitted while the row's own context menu is open.
    void focusLost();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace zorvane
