#include "hosts/qt/PlateAccessible.h"

#include "hosts/qt/PlateHints.h"
#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/Units.h"

#include <QPointer>

namespace zorvane {

namespace {

/// One well. Says of itself where it is, what it holds and whether it is selected.
class WellAccessible final : public QAccessibleInterface {
  public:
    WellAccessible(PlateWidget& widget, Integer well) : widget_(&widget), well_(well) {}

    Integer Well() const { return well_; }

    bool isValid() const override { return widget_ && well_ < widget_->plate().TotalWells(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override {
        return widget_ ? widget_->window()->windowHandle() : nullptr;
    }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(widget_);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        if (!isValid()) return {};
        const Surface& surface = widget_->plate().Elements();
        const Rect& rim = surface.WellRim[static_cast<std::size_t>(well_)].box;
        const Rect& area = surface.fraPlate.box;
        const QRect box = ToPixels(rim.Moved(area.left, area.top)).toAlignedRect();
        return box.translated(widget_->mapToGlobal(QPoint()));
    }

    QString text(QAccessible::Text kind) const override {
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

    QAccessible::State state() const override {
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

  private:
    QPointer<PlateWidget> widget_;
    Integer well_;
};

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
    const bool onWell = plate.CurrentWell() >= 0 && plate.CurrentWell() < plate.TotalWells();
    if (!Shown().hasFocus() || !onWell) return QAccessibleWidget::focusChild();
    return child(plate.CurrentWell());
}

QString PlateAccessible::text(QAccessible::Text kind) const {
    const QString own = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && own.isEmpty() ? Shown().plateName() : own;
}

} // namespace zorvane
