#include "hosts/qt/widget/PlateSizing.h"

#include "control/PlateTypes.h"
#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/Units.h"
#include "hosts/qt/panel/PanelMirror.h"

#include <QGraphicsProxyWidget>
#include <QLayout>
#include <QPointer>
#include <QScrollArea>
#include <QSplitter>

namespace zorvane {

namespace {

bool Holds(QLayout& layout, const QWidget& widget) {
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem* item = layout.itemAt(i);
        if (item->widget() == &widget) return true;
        if (item->layout() && Holds(*item->layout(), widget)) return true;
    }
    return false;
}

/// Who decides how large a widget is.
enum class Place {
    Free,    ///< the widget itself
    InView,  ///< the widget itself, while something else shows as much of it as there is room for
    Managed, ///< what holds it
};

Place PlaceOf(const QWidget& widget) {
    const QWidget* const parent = widget.parentWidget();
    if (const auto* const proxy = widget.graphicsProxyWidget())
        return proxy->parentLayoutItem() ? Place::Managed : Place::InView;
    if (!parent) return Place::Free;
    if (parent->layout() && Holds(*parent->layout(), widget)) return Place::Managed;
    if (qobject_cast<const QSplitter*>(parent)) return Place::Managed;
    const auto* const area = qobject_cast<const QScrollArea*>(parent->parentWidget());
    if (!area || area->widget() != &widget) return Place::Free;
    return area->widgetResizable() ? Place::Managed : Place::InView;
}

} // namespace

PlateSizing::PlateSizing(PlateWidget& widget, Plate& plate, PanelMirror& panel, StepRunner& steps)
    : widget_(widget), plate_(plate), panel_(panel), steps_(steps) {}

void PlateSizing::Take(QSize size) {
    if (loading_) return; // the size of no plate that will be shown
    const bool open = plate_.DataVisible();
    // Apart, the panel takes no room here; each layout asks for the plate's size once it is closed.
    if (panel_.Place().Detached() && (open || plate_.FixedSize)) return;
    const Place place = PlaceOf(widget_);
    if (open && place == Place::InView) size = size.expandedTo(widget_.size());
    if (place == Place::Managed && plate_.FixedSize) {
        // What it asks for is the size that it was given, but for the height of an open panel.
        size = open ? closed_.expandedTo({0, size.height()}) : closed_;
    } else if (!open) {
        closed_ = size;
    }
    asked_ = size;
    widget_.updateGeometry();
    if (place != Place::Managed) widget_.resize(size);
}

// The control asks for nothing where it has its old size already.
void PlateSizing::PanelChanged() {
    if (plate_.DataVisible() || asked_ == closed_) return;
    if (!plate_.FixedSize || PlaceOf(widget_) != Place::Managed) return;
    asked_ = closed_;
    widget_.updateGeometry();
}

void PlateSizing::RefitOnResize(bool on) {
    refitOnResize_ = on;
    Refit();
}

void PlateSizing::Resized() {
    panel_.Sync();
    Refit();
}

bool PlateSizing::AboutToLoad() {
    if (!refitOnResize_ || !plate_.FixedSize || plate_.DrawingScale() <= kDefaultScale) return true;
    loading_ = true;
    plate_.FixedSize = false;
    if (!steps_.Run([this] { plate_.DrawingScale(kDefaultScale); })) return false;
    plate_.FixedSize = true;
    loading_ = false;
    return true;
}

bool PlateSizing::LayOut() {
    return steps_.Run([this] { plate_.DrawingScale(plate_.DrawingScale()); });
}

// A layout fits the scale after it has sized the plate area, so it takes two to make both agree. A
// layout also closes the details panel and drops what has been typed there.
void PlateSizing::Refit() {
    if (!refitOnResize_ || !plate_.FixedSize || refitting_) return;
    const bool open = plate_.DataVisible();
    const bool shown = panel_.IsShown();
    const Integer page = plate_.Elements().panel.comboSelect.position;
    if (shown && plate_.EditsPending()) return;
    const QPointer<QWidget> widget(&widget_); // a slot may destroy it
    refitting_ = true;
    panel_.Run([&] {
        if (!LayOut() || !LayOut()) return;
        if (open) plate_.DataVisible(true);
        if (widget && shown) plate_.PageChosen(page);
    });
    if (widget) refitting_ = false;
}

} // namespace zorvane
