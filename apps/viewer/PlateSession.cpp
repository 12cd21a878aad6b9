#include "apps/viewer/PlateSession.h"

#include "apps/viewer/logic/PlateDataMover.h"

#include <utility>

namespace zorvane::viewer {

PlateSession::PlateSession(PlateWidget& widget, QObject* parent)
    : QObject(parent), widget_(widget), coloring_(widget.plate()), names_(widget.plate()) {
    connect(&widget_, &PlateWidget::currentWellChanged, this, &PlateSession::Report);
    connect(&widget_, &PlateWidget::selectionChanged, this, &PlateSession::Report);
    connect(&widget_, &PlateWidget::wellDataChanged, this, &PlateSession::Report);
    // An error code repaints nothing by itself, but may be marked.
    connect(&widget_, &PlateWidget::wellDataChanged, &widget_, qOverload<>(&QWidget::update));
    connect(&widget_, &PlateWidget::plateChanged, this, [this] {
        namesOutdated_ = true;
        Report();
    });
    connect(&widget_, &PlateWidget::dragMoved, this,
            [this](int, int, int columns, int rows) { MoveSelection(columns, rows); });
    connect(&widget_, &PlateWidget::failed, this,
            [this](int number, const QString&, const QString& description) {
                emit failed(description);
                emit refused(number, description);
            });
}

void PlateSession::Report() {
    if (holds_ > 0) return;
    if (namesOutdated_) ReadNames();
    emit changed();
}

void PlateSession::ReadNames() {
    namesOutdated_ = false;
    const std::vector<String> before = names_.SubWells();
    names_ = WellNames(Control());
    history_.SwitchTo(widget_.plateName(), Control().TotalWells());
    if (names_.SubWells() != before) emit subWellsChanged();
}

bool PlateSession::Open(const QString& library, const QString& plateName) {
    bool loaded = false;
    Edit([&] {
        KeepWells();
        loaded = widget_.load(plateName, library);
        if (loaded && std::exchange(library_, library) != library) {
            archive_.Clear();
            history_.Clear();
        }
        BringWellsBack();
    });
    if (loaded) emit opened();
    return loaded;
}

bool PlateSession::ShowDefinition(const String& text) {
    const Hold hold(*this);
    // Where a command has failed, the wells may not fit the plate any more.
    Edit([this] { KeepWells(); });
    return Edit([&] {
        Control().PlateClassText(text);
        BringWellsBack();
    });
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

QStringList PlateSession::PlatesNotInFile() {
    Edit([this] { Archive(); });
    QStringList names;
    for (const String& name : archive_.NotInFile())
        names << QString::fromStdString(name);
    return names;
}

void PlateSession::DataIsInFile() {
    Edit([this] { Archive(); });
    archive_.SetInFile(Control().PlateName());
}

void PlateSession::Archive() {
    if (HasWells()) archive_.Keep(Control().PlateName(), CaptureAll(Control()).wells);
}

void PlateSession::KeepWells() {
    if (!HasWells()) return;
    Control().ClearSelection();
    Archive();
}

// A control keeps data by well number from one plate to the next, where they mean nothing.
void PlateSession::BringWellsBack() {
    if (!HasWells()) return;
    const auto count = static_cast<std::size_t>(Control().TotalWells());
    const WellArchive::Wells* const kept = archive_.Find(Control().PlateName(), count);
    const WellSnapshot empty = EmptyWell(Control());
    for (std::size_t well = 0; well < count; ++well)
        Restore(Control(), static_cast<Integer>(well), kept ? (*kept)[well] : empty);
    Control().CurrentWell(0);
    Control().ClearSelection();
}

bool PlateSession::EditWells(const QString& name, const std::function<void()>& change,
                             const QObject* field) {
    return Edit([&] {
        const PlateWells before = CaptureAll(Control());
        try {
            change();
        } catch (const RuntimeError&) {
            Show(WellChange(before, CaptureAll(Control())).before);
            throw;
        }
        history_.Add(name, WellChange(before, CaptureAll(Control())), field);
    });
}

void PlateSession::Show(const WellState& state) {
    if (SelectedWells() != state.selection)
        widget_.setSelectedWells({state.selection.begin(), state.selection.end()});
    for (const auto& [well, snapshot] : state.wells)
        Restore(Control(), well, snapshot);
    Control().CurrentWell(state.current);
}

void PlateSession::Deselect() {
    if (HasWells()) Control().ClearSelection();
}

void PlateSession::ColorByVolume(bool on) {
    const Hold hold(*this);
    coloring_.SetOn(on);
}

void PlateSession::SetSelectBoxEnabled(bool on) {
    selectBox_ = on;
    Control().SelectBoxEnabled(on);
}

void PlateSession::MoveSelection(int columns, int rows) {
    bool moved = false;
    EditWells(tr("Move"), [&] {
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
    EditWells(tr("Clear"), [this] {
        for (const Integer well : SelectedWells()) {
            WellSnapshot cleared = EmptyWell(Control());
            cleared.selected = true;
            cleared.rimColor = Control().RimFill(well);
            Restore(Control(), well, cleared);
        }
    });
}

} // namespace zorvane::viewer
