#pragma once

#include "hosts/qt/PlateOverlay.h"
#include "platform/HostSite.h"

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QSize>
#include <QWidget>

namespace zorvane {

/// Serves one control with the widget that shows it. What concerns parts of that widget is emitted
/// as signals, so that a control in the middle of a step can go on without the widget.
class QtSite final : public QObject, public HostSite {
    Q_OBJECT

  public:
    explicit QtSite(QWidget& widget) : widget_(&widget) {}

    /// The button that a menu opens next to, unless the pointer is over it.
    void MenuButton(QWidget& button) { menuButton_ = &button; }
    PlateOverlay& Overlay() { return overlay_; }

    void Repaint(const Rect& area) override { emit repaintAsked(area); }
    Single Width() const override;
    Single Height() const override;
    void Resize(Single width, Single height) override;
    DrawingContext& Drawing() override { return overlay_.Context(); }
    DrawingContext::Handle PlateWindow() const override { return 1; }
    void TakeFocus() override;
    void FocusDataButton() override { emit dataButtonFocusAsked(); }
    void DataButtonChanged() override { emit dataButtonChanged(); }
    void PanelChanged() override { emit panelChanged(); }
    String Ask(const Question& question) override;
    Integer Choose(const std::vector<MenuEntry>& entries) override;

  signals:
    /// In drawing units.
    void repaintAsked(const Rect& area);
    /// In device-independent pixels.
    void sizeAsked(QSize size);
    void dataButtonFocusAsked();
    void dataButtonChanged();
    void panelChanged();

  private:
    QPoint MenuPlace() const;

    QPointer<QWidget> widget_;
    QPointer<QWidget> menuButton_;
    PlateOverlay overlay_;
};

} // namespace zorvane
