#pragma once

#include "hosts/qt/panel/DetachedPanel.h"

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QSize>

namespace zorvane {

/// Where the frame of a details panel is: over the plate, in a tool window, or in a place that the
/// host has given it. Lengths are device-independent pixels.
class PanelPlace final : public QObject {
    Q_OBJECT

  public:
    /// At first the frame is over the plate, in `host`, the widget of the control.
    PanelPlace(QWidget& host, QWidget& frame) : host_(host), frame_(frame) {}
    ~PanelPlace() override;

    /// Moves the frame into a widget of its own, or back.
    void Detach(bool on);
    /// That widget, or null.
    QWidget* Detached() const { return detached_; }
    /// Whether the host has put that widget into a place, where it is not opened and closed.
    bool IsGiven() const { return detached_ && !detached_->isWindow(); }

    /// Opens or closes the tool window, if there is one.
    void SetOpen(bool open);
    /// How much larger than a frame of this size the place is.
    QSize Extra(QSize designed) const;
    /// Where a frame goes that is designed for this box and has this title. Over the plate, it ends
    /// with the plate's widget.
    QRect Frame(QRect designed, const QString& title);
    /// Where the contents go in a frame of this height.
    QRect View(QRect designed, int frameHeight) const;

  signals:
    void moved();
    /// The operator closes the tool window.
    void closed();

  private:
    void BringBack();

    QWidget& host_;
    QWidget& frame_;
    QPointer<DetachedPanel> detached_;
};

} // namespace zorvane
