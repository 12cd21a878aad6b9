#include "hosts/qt/accessible/WellAccessible.h"

#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/Units.h"
#include "hosts/qt/aids/PlateHints.h"
#include "hosts/qt/aids/PlateLegends.h"

namespace zorvane {

WellAccessible::WellAccessible(PlateWidget& widget, Integer well) : widget_(&widget), well_(well) {}

bool WellAccessible::isValid() const { return widget_ && well_ < widget_->plate().TotalWells(); }

QWindow* WellAccessible::window() const {
    return widget_ ? widget_->window()->windowHandle() : nullptr;
}

QAccessibleInterface* WellAccessible::parent() const {
    return QAccessible::queryAccessibleInterface(widget_);
}

QRect WellAccessible::rect() const {
    if (!isValid()) return {};
    const Surface& surface = widget_->plate().Elements();
    const Rect& rim = surface.WellRim[static_cast<std::size_t>(well_)].box;
    const Rect& area = surface.fraPlate.box;
    const QRect box = ToPixels(rim.Moved(area.left, area.top)).toAlignedRect();
    return box.translated(widget_->mapToGlobal(QPoint()));
}

QString WellAccessible::text(QAccessible::Text kind) const {
    if (!isValid()) return {};
    const Plate& plate = widget_->plate();
    switch (kind) {
    case QAccessible::Name:
        return QString::fromStdString(NameOfWell(plate, well_));
    case QAccessible::Value:
        return QString::fromStdString(plate.WellAnnotation(well_));
    case QAccessible::Description:
        return DescriptionOf(plate, well_).section(QLatin1Char('\n'), 1);
    default:
        return {};
    }
}

QAccessible::State WellAccessible::state() const {
    QAccessible::State state;
    state.invalid = !isValid();
    if (!isValid()) return state;
    const Plate& plate = widget_->plate();
    state.focusable = true;
    state.selectable = true;
    state.multiSelectable = plate.MultipleSelect;
    state.focused = widget_->hasFocus() && plate.CurrentWell() == well_;
    state.selected = plate.IsSelected(well_);
    return state;
}

} // namespace zorvane
