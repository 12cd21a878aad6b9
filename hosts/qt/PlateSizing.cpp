#include "hosts/qt/PlateSizing.h"

#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/Units.h"
#include "hosts/qt/panel/PanelMirror.h"

#include <QLayout>

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

bool IsLaidOut(const QWidget& widget) {
    const QWidget* parent = widget.parentWidget();
    return parent && parent->layout() && Holds(*parent->layout(), widget);
}

} // namespace

PlateSizing::PlateSizing(PlateWidget& widget, Plate& plate, PanelMirror& panel, StepRunner& steps)
    : widget_(widget), plate_(plate), panel_(panel), steps_(steps) {}

void PlateSizing::Take(QSize size) {
    asked_ = size;
    widget_.updateGeometry();
    if (!IsLaidOut(widget_)) widget_.resize(size);
}

void PlateSizing::RefitOnResize(bool on) {
    refitOnResize_ = on;
    Refit();
}

void PlateSizing::Resized() {
    panel_.Sync();
    Refit();
}

void PlateSizing::LayOut() {
    steps_.Run([this] { plate_.DrawingScale(plate_.DrawingScale()); });
}

// A layout fits the scale after it has sized the plate area, so it takes two to make both agree. A
// layout also closes the details panel and drops what has been typed there.
void PlateSizing::Refit() {
    if (!refitOnResize_ || !plate_.FixedSize || refitting_) return;
    const bool open = plate_.DataVisible();
    const Integer page = plate_.Elements().panel.comboSelect.position;
    if (open && plate_.EditsPending()) return;
    refitting_ = true;
    panel_.Run([&] {
        LayOut();
        LayOut();
        if (!open) return;
        plate_.DataVisible(true);
        plate_.PageChosen(page);
    });
    refitting_ = false;
}

} // namespace zorvane
