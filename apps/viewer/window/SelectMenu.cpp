#include "apps/viewer/window/SelectMenu.h"

#include "apps/viewer/PlateSession.h"
#include "control/WellGrid.h"

#include <utility>

namespace zorvane::viewer {

SelectMenu::SelectMenu(PlateSession& session, QWidget* parent)
    : QMenu(tr("&Select"), parent), session_(session) {
    const Plate& plate = session.Control();
    const auto place = [&plate](Integer well) {
        return WellGrid{plate.Rows, plate.Cols}.PlaceOf(well);
    };
    Add(tr("&All"), [](Integer, Integer) { return true; });
    addAction(tr("&None"), QKeyCombination({Qt::CTRL, Qt::SHIFT}, Qt::Key_A), &session,
              &PlateSession::Deselect);
    Add(tr("&Inverse"), [&plate](Integer, Integer well) { return !plate.IsSelected(well); });
    addSeparator();
    Add(tr("&Row of the Current Well"), [place](Integer current, Integer well) {
        return place(current).subWell == place(well).subWell &&
               place(current).row == place(well).row;
    });
    Add(tr("&Column of the Current Well"), [place](Integer current, Integer well) {
        return place(current).subWell == place(well).subWell &&
               place(current).col == place(well).col;
    });
    addSeparator();
    Add(tr("Same &Volume"), [&plate](Integer current, Integer well) {
        return plate.GetVolume(current) == plate.GetVolume(well);
    });
    Add(tr("Same &Text"), [&plate](Integer current, Integer well) {
        return plate.Text(current) == plate.Text(well);
    });
    Add(tr("Same &Error Code"), [&plate](Integer current, Integer well) {
        return plate.ErrorCode(current) == plate.ErrorCode(well);
    });
}

void SelectMenu::Add(const QString& text, Rule rule) {
    QAction* action = addAction(text, this, [this, rule = std::move(rule)] { Select(rule); });
    // One well at most can be selected where several must not be.
    connect(this, &QMenu::aboutToShow, action,
            [this, action] { action->setEnabled(session_.Widget().multipleSelect()); });
}

void SelectMenu::Select(const Rule& rule) {
    const auto current = session_.CurrentWell();
    if (!current) return;
    QList<int> wells;
    for (Integer well = 0; well < session_.Control().TotalWells(); ++well)
        if (rule(*current, well)) wells.append(well);
    session_.Widget().setSelectedWells(wells);
}

} // namespace zorvane::viewer
