#include "apps/viewer/plate/WellKeys.h"

#include "apps/viewer/PlateSession.h"
#include "control/WellGrid.h"

#include <QKeyEvent>

namespace zorvane::viewer {

WellKeys::WellKeys(PlateSession& session) : QObject(&session), session_(session) {
    session.Widget().installEventFilter(this);
}

bool WellKeys::eventFilter(QObject* watched, QEvent* event) {
    const auto well = session_.CurrentWell();
    if (event->type() != QEvent::KeyPress || !well) return QObject::eventFilter(watched, event);
    const auto& pressed = *static_cast<QKeyEvent*>(event);
    const auto modifiers = pressed.modifiers() & ~Qt::KeypadModifier;
    if (pressed.key() == Qt::Key_Space && modifiers == Qt::NoModifier) {
        Toggle(*well);
        return true;
    }
    if (modifiers != Qt::NoModifier && modifiers != Qt::ControlModifier) return false;
    const auto target = Target(pressed.key(), modifiers == Qt::ControlModifier, *well);
    if (target) session_.Widget().setCurrentWell(*target);
    return target.has_value();
}

std::optional<Integer> WellKeys::Target(int key, bool ctrl, Integer from) const {
    const Plate& plate = session_.Control();
    const WellGrid grid{plate.Rows, plate.Cols};
    const auto lastRow = static_cast<Integer>(plate.Rows - 1);
    const auto lastCol = static_cast<Integer>(plate.Cols - 1);
    WellPlace to = grid.PlaceOf(from);
    switch (key) {
    case Qt::Key_Home:
        to.col = 0;
        if (ctrl) to.row = 0;
        break;
    case Qt::Key_End:
        to.col = lastCol;
        if (ctrl) to.row = lastRow;
        break;
    case Qt::Key_PageUp:
        to.row = 0;
        break;
    case Qt::Key_PageDown:
        to.row = lastRow;
        break;
    default:
        return std::nullopt;
    }
    return grid.NumberOf(to);
}

void WellKeys::Toggle(Integer well) {
    PlateWidget& widget = session_.Widget();
    const bool selected = widget.isSelected(well);
    QList<int> wells = widget.multipleSelect() ? widget.selectedWells() : QList<int>();
    wells.removeAll(well);
    if (!selected) wells.append(well);
    widget.setSelectedWells(wells);
}

} // namespace zorvane::viewer
