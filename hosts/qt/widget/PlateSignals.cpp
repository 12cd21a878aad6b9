#include "hosts/qt/widget/PlateSignals.h"

#include "hosts/qt/panel/PanelText.h"

#include <algorithm>
#include <utility>

namespace zorvane {

PlateSignals::PlateSignals(PlateWidget& widget, Plate& plate)
    : widget_(widget), plate_(plate), told_(Present()) {
    plate_.AddObserver(*this);
}

// A slot may destroy the widget, and this object with it: nothing is used after a signal unless the
// widget is still there.

void PlateSignals::DoubleClick() {
    const Integer well = std::exchange(pointed_, Integer{-1});
    const QPointer<PlateWidget> shown(&widget_);
    emit shown->doubleClicked();
    if (shown && well >= 0) emit shown->wellDoubleClicked(well);
}

void PlateSignals::Click() {
    const Integer well = std::exchange(pointed_, Integer{-1});
    const QPointer<PlateWidget> shown(&widget_);
    emit shown->clicked();
    if (shown && well >= 0) emit shown->wellClicked(well);
}

void PlateSignals::Add(const Changes& changes) {
    if (gathering_ == 0) return Tell(changes);
    gathered_.plate |= changes.plate;
    gathered_.selection |= changes.selection;
    gathered_.firstWell = std::min(gathered_.firstWell, changes.firstWell);
    gathered_.lastWell = std::max(gathered_.lastWell, changes.lastWell);
}

void PlateSignals::EndGathering() {
    if (--gathering_ > 0) return;
    Changes changes = std::exchange(gathered_, {});
    changes.currentWell = plate_.CurrentWell() != wellBefore_;
    Tell(changes);
}

void PlateSignals::Tell(const Changes& changes) {
    const QPointer<PlateWidget> shown(&widget_);
    const Integer well = plate_.CurrentWell();
    const bool ofCurrent = changes.firstWell <= well && well <= changes.lastWell;
    if (changes.plate) emit shown->plateChanged();
    if (shown && changes.plate) TellProperties();
    if (shown && changes.currentWell) emit shown->currentWellChanged(well);
    if (shown && changes.selection) emit shown->selectionChanged();
    if (shown && changes.firstWell <= changes.lastWell)
        emit shown->wellDataChanged(changes.firstWell, changes.lastWell);
    if (shown && (changes.plate || changes.currentWell || changes.selection || ofCurrent))
        emit shown->currentWellDataChanged();
}

PlateSignals::Properties PlateSignals::Present() const {
    return {ShownText(plate_.FileName), ShownText(plate_.PlateName()), plate_.DataVisible(),
            plate_.EditsPending()};
}

void PlateSignals::TellProperties() {
    const QPointer<PlateWidget> shown(&widget_);
    const Properties now = Present();
    const Properties before = std::exchange(told_, now);
    if (now.fileName != before.fileName) emit shown->fileNameChanged(now.fileName);
    if (shown && now.plateName != before.plateName) emit shown->plateNameChanged(now.plateName);
    if (shown && now.dataVisible != before.dataVisible)
        emit shown->dataVisibleChanged(now.dataVisible);
    if (shown && now.editsPending != before.editsPending)
        emit shown->editsPendingChanged(now.editsPending);
}

} // namespace zorvane
