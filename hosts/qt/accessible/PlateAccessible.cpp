#include "hosts/qt/accessible/PlateAccessible.h"

#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/accessible/WellAccessible.h"

namespace zorvane {

namespace {

bool HasCurrentWell(const Plate& plate) {
    return plate.CurrentWell() >= 0 && plate.CurrentWell() < plate.TotalWells();
}

} // namespace

PlateAccessible::PlateAccessible(PlateWidget& widget)
    : QAccessibleWidget(&widget, QAccessible::List) {}

PlateAccessible::~PlateAccessible() {
    for (const auto& [well, id] : wells_)
        QAccessible::deleteAccessibleInterface(id);
}

void PlateAccessible::Install() {
    QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
        auto* widget = qobject_cast<PlateWidget*>(object);
        return widget ? new PlateAccessible(*widget) : nullptr;
    });
}

void PlateAccessible::AnnounceCurrentWell(PlateWidget& widget) {
    if (!widget.hasFocus() || !HasCurrentWell(widget.plate())) return;
    QAccessibleEvent event(&widget, QAccessible::Focus);
    event.setChild(widget.plate().CurrentWell());
    QAccessible::updateAccessibility(&event);
}

void PlateAccessible::AnnounceSelection(PlateWidget& widget) {
    QAccessibleEvent event(&widget, QAccessible::SelectionWithin);
    QAccessible::updateAccessibility(&event);
}

PlateWidget& PlateAccessible::Shown() const { return *static_cast<PlateWidget*>(widget()); }

int PlateAccessible::childCount() const {
    return Shown().plate().TotalWells() + QAccessibleWidget::childCount();
}

QAccessibleInterface* PlateAccessible::child(int index) const {
    const int wells = Shown().plate().TotalWells();
    if (index < 0 || index >= wells) return QAccessibleWidget::child(index - wells);
    const auto well = static_cast<Integer>(index);
    if (const auto known = wells_.find(well); known != wells_.end())
        return QAccessible::accessibleInterface(known->second);
    auto* made = new WellAccessible(Shown(), well);
    wells_[well] = QAccessible::registerAccessibleInterface(made);
    return made;
}

int PlateAccessible::indexOfChild(const QAccessibleInterface* child) const {
    if (const auto* well = dynamic_cast<const WellAccessible*>(child)) return well->Well();
    const int index = QAccessibleWidget::indexOfChild(child);
    return index < 0 ? index : index + Shown().plate().TotalWells();
}

QAccessibleInterface* PlateAccessible::childAt(int x, int y) const {
    const int well = Shown().wellAt(Shown().mapFromGlobal(QPoint(x, y)));
    return well < 0 ? QAccessibleWidget::childAt(x, y) : child(well);
}

QAccessibleInterface* PlateAccessible::focusChild() const {
    const Plate& plate = Shown().plate();
    if (!Shown().hasFocus() || !HasCurrentWell(plate)) return QAccessibleWidget::focusChild();
    return child(plate.CurrentWell());
}

QString PlateAccessible::text(QAccessible::Text kind) const {
    const QString own = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && own.isEmpty() ? Shown().plateName() : own;
}

} // namespace zorvane
