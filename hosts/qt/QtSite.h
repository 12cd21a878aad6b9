#pragma once

#include "hosts/qt/PlateOverlay.h"
#include "platform/HostSite.h"

#include <QPointer>
#include <QSize>
#include <QString>
#include <QWidget>

#include <functional>

namespace zorvane {

/// Serves one control with the widget that shows it. What is shown natively (tooltip, pointer,
/// outlines) is kept here for the widget to show.
class QtSite final : public HostSite {
  public:
    /// `dataButton` stands for the button that opens the details panel.
    QtSite(QWidget& widget, QWidget& dataButton) : widget_(&widget), dataButton_(&dataButton) {}

    /// Called when something that is shown has changed, with the area in drawing units.
    std::function<void(const Rect&)> onRepaint;
    /// Called when the control takes another size, in device-independent pixels.
    std::function<void(QSize)> onResize;
    /// Called when something in the details panel has changed.
    std::function<void()> onPanelChange;
    /// Where a menu is to open, in global coordinates.
    std::function<QPoint()> menuPlace;

    /// The widget is about to go. A control that is still in the middle of a step goes on without
    /// it.
    void Leave();

    PlateOverlay& Overlay() { return overlay_; }
    const QString& ToolTip() const { return toolTip_; }
    PointerShape Pointer() const { return pointer_; }

    void Repaint(const Rect& area) override;
    Single Width() const override;
    Single Height() const override;
    void Resize(Single width, Single height) override;
    DrawingContext& Drawing() override { return overlay_.Context(); }
    DrawingContext::Handle PlateWindow() const override { return 1; }
    void TakeFocus() override;
    void FocusDataButton() override;
    void SetToolTip(const String& text) override { toolTip_ = QString::fromStdString(text); }
    void SetPointer(PointerShape shape) override { pointer_ = shape; }
    void PanelChanged() override;
    String Ask(const Question& question) override;
    Integer Choose(const std::vector<MenuEntry>& entries) override;

  private:
    QPointer<QWidget> widget_;
    QPointer<QWidget> dataButton_;
    PlateOverlay overlay_;
    QString toolTip_;
    PointerShape pointer_ = PointerShape::Standard;
};

} // namespace zorvane
