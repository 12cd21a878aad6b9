#pragma once

#include <QWidget>

namespace zorvane {

/// Holds the details panel where it is a widget of its own: a tool window of the plate's widget
/// until a host puts it elsewhere.
class DetachedPanel final : public QWidget {
    Q_OBJECT

  public:
    explicit DetachedPanel(QWidget& plate);
    ~DetachedPanel() override;

    /// The size that its contents are designed for, in device-independent pixels.
    void Design(QSize size);
    QSize sizeHint() const override { return design_; }

  signals:
    /// It has another size, or another place in the host.
    void placed();
    /// The operator closes its window.
    void closed();
    /// It is about to go.
    void going();

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    QSize design_;
};

} // namespace zorvane
