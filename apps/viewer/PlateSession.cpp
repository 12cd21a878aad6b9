#include "apps/viewer/PlateSession.h"

#include "apps/viewer/logic/PlateDataMover.h"

#include <QEvent>

namespace zorvane {

PlateSession::PlateSession(PlateWidget& widget, QObject* parent)
    : QObject(parent), widget_(widget), coloring_(widget.plate()), names_(widget.plate()) {
    widget_.installEventFilter(this);
    connect(this, &PlateSession::inputSeen, this, &PlateSession::ReportInput, Qt::QueuedConnection);
    connect(&widget_, &PlateWidget::dragMoved, this,
            [this](int, int, int columns, int rows) { MoveSelection(columns, rows); });
    connect(&widget_, &PlateWidget::failed, this,
            [this](int number, const QString&, const QString& description) {
                emit failed(description);
                emit refused(number, description);
            });
}

bool PlateSession::Open(const QString& library, const QString& plateName) {
    if (library != library_) kept_.clear();
    bool loaded = false;
    Edit([&] {
        KeepWells();
        loaded = Control().SetPlate(plateName.toStdString(), library.toStdString());
        if (loaded) library_ = library;
        BringWellsBack();
        names_ = WellNames(Control());
    });
    if (loaded) emit opened();
    return loaded;
}

bool PlateSession::ShowDefinition(const String& text) {
    // Where a command has failed, the wells may not fit the plate any more.
    Edit([this] { KeepWells(); });
    const bool shown = Edit([&] {
        Control().PlateClassText(text);
        BringWellsBack();
    });
    TakeLayout();
    return shown;
}

void PlateSession::TakeLayout() {
    names_ = WellNames(Control());
    emit opened();
    emit changed();
}

std::optional<Integer> PlateSession::CurrentWell() const {
    const Integer well = Control().CurrentWell();
    if (well < 0 || well >= Control().TotalWells()) return std::nullopt;
    return well;
}

std::vector<Integer> PlateSession::SelectedWells() const {
    std::vector<Integer> wells;
    for (Integer well = 0; well < Control().TotalWells(); ++well)
        if (Control().IsSelected(well)) wells.push_back(well);
    return wells;
}

void PlateSession::KeepWells() {
    if (!HasWells()) return;
    ClearSelection();
    std::vector<WellSnapshot> wells;
    for (Integer well = 0; well < Control().TotalWells(); ++well)
        wells.push_back(Capture(Control(), well));
    kept_[Control().PlateName()] = std::move(wells);
}

// A control keeps data by well number from one plate to the next, where they mean nothing.
void PlateSession::BringWellsBack() {
    if (!HasWells()) return;
    const auto kept = kept_.find(Control().PlateName());
    const auto count = static_cast<std::size_t>(Control().TotalWells());
    const bool known = kept != kept_.end() && kept->second.size() == count;
    const WellSnapshot empty = EmptyWell(Control());
    for (std::size_t well = 0; well < count; ++well)
        Restore(Control(), static_cast<Integer>(well), known ? kept->second[well] : empty);
    Control().CurrentWell(0);
    ClearSelection();
}

void PlateSession::Deselect() {
    if (HasWells()) ClearSelection();
    emit changed();
}

void PlateSession::ClearSelection() {
    Plate& plate = Control();
    // Where only one well can be selected, a silent choice of the current well clears the selection
    // and its count.
    const Boolean multiple = std::exchange(plate.MultipleSelect, false);
    plate.SetWell(plate.Row(), plate.Col(), plate.SubWell(), wsSilent);
    plate.MultipleSelect = multiple;
}

void PlateSession::ColorByVolume(bool on) {
    coloring_.SetOn(on);
    emit changed();
}

void PlateSession::SetSelectBoxEnabled(bool on) {
    selectBox_ = on;
    Control().SelectBoxEnabled(on);
}

void PlateSession::MoveSelection(int columns, int rows) {
    bool moved = false;
    Edit([&] {
        moved =
            MoveSelectedWells(Control(), static_cast<Integer>(columns), static_cast<Integer>(rows));
    });
    if (moved) return;
    // The control has moved the frame of the selection already.
    Control().SelectBoxEnabled(false);
    Control().SelectBoxEnabled(selectBox_);
    emit failed(tr("Nothing was moved: some of the wells would leave the plate."));
}

void PlateSession::ClearSelectedWells() {
    Edit([this] {
        const Integer current = Control().CurrentWell();
        for (const Integer well : SelectedWells()) {
            WellSnapshot cleared = EmptyWell(Control());
            cleared.selected = true;
            cleared.rimColor = Capture(Control(), well).rimColor;
            Restore(Control(), well, cleared);
        }
        Control().CurrentWell(current);
    });
}

// Not every input raises an event of the control: arrow keys do not, and what an event handler does
// comes after the event.
bool PlateSession::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::Resize:
    case QEvent::LayoutRequest:
        ReportLater();
        break;
    default:
        break;
    }
    return false;
}

void PlateSession::ReportLater() {
    if (!std::exchange(reporting_, true)) emit inputSeen();
}

void PlateSession::ReportInput() {
    reporting_ = false;
    emit changed();
}

} // namespace zorvane
