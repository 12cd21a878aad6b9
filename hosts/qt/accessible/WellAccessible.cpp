#include "hosts/qt/accessible/WellAccessible.h"

#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/aids/PlateHints.h"

namespace zorvane {

namespace {

/// Selects a well; where others stay selected, deselects one that is.
void Select(const QPointer<PlateWidget>& widget, int well, bool keepOthers) {
    QList<int> wells{well};
    if (keepOthers) {
        wells = widget->selectedWells();
        if (wells.removeAll(well) == 0) wells += well;
    }
    widget->setSelectedWells(wells);
    if (widget) emit widget->selectionAided();
}

} // namespace

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
    const QRect box = widget_->wellRect(well_).toAlignedRect();
    return box.translated(widget_->mapToGlobal(QPoint()));
}

QString WellAccessible::text(QAccessible::Text kind) const {
    if (!isValid()) return {};
    const Plate& plate = widget_->plate();
    switch (kind) {
    case QAccessible::Name:
        return widget_->wellCaption(well_);
    case QAccessible::Value:
        return QString::fromStdString(plate.WellAnnotation(well_));
    case QAccessible::Description:
        return DataOf(plate, well_);
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

void* WellAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

QStringList WellAccessible::actionNames() const {
    if (!isValid() || !widget_->mouseEnabled()) return {};
    return {pressAction(), toggleAction(), setFocusAction()};
}

void WellAccessible::doAction(const QString& name) {
    if (!actionNames().contains(name)) return;
    const QPointer<PlateWidget> widget = widget_; // a slot may destroy it, and this object with it
    const int well = well_;
    widget->setCurrentWell(well);
    if (widget) widget->setFocus(Qt::OtherFocusReason);
    if (widget && name != setFocusAction()) Select(widget, well, name == toggleAction());
}

} // namespace zorvane
