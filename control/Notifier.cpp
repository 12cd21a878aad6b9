#include "control/Notifier.h"

#include <algorithm>

namespace zorvane {

void Notifier::WellDataChanged(Integer first, Integer last) {
    auto& wells = pending_.wells;
    wells = wells ? std::pair(std::min(wells->first, first), std::max(wells->second, last))
                  : std::pair(first, last);
}

void Notifier::RepaintInPlate(const Rect& area) {
    const Frame& plate = surface_.fraPlate;
    if (plate.visible) Repaint(area.Moved(plate.box.left, plate.box.top));
}

// The area that the panel takes up now; HandOut adds the one that it takes up then.
void Notifier::PanelChanged() {
    pending_.panel = true;
    if (surface_.fraData.visible) Repaint(surface_.fraData.box);
}

void Notifier::DataButtonChanged() {
    pending_.dataButton = true;
    Repaint(surface_.cmdData.box);
}

void Notifier::EndOperation() {
    if (--depth_ == 0) HandOut();
}

// What is told is no longer pending: the host may answer with operations of its own.
void Notifier::HandOut() {
    if (pending_.panel) PanelChanged();
    const Pending changes = std::exchange(pending_, {});
    const Pause pause(depth_);
    TellSite(changes);
    TellObservers(changes);
}

void Notifier::TellSite(const Pending& changes) {
    if (changes.size) {
        const auto [width, height] = *changes.size;
        if (width != site_.Width() || height != site_.Height()) site_.Resize(width, height);
    }
    if (changes.everything) {
        site_.Repaint({0, 0, site_.Width(), site_.Height()});
    } else if (!changes.area.Empty()) {
        site_.Repaint(changes.area);
    }
    if (changes.dataButton) site_.DataButtonChanged();
    if (changes.panel) site_.PanelChanged();
}

void Notifier::TellObservers(const Pending& changes) {
    if (changes.plate) observers_.Raise([](PlateObserver& host) { host.PlateChanged(); });
    if (const Integer well = currentWell_; well != std::exchange(toldWell_, well))
        observers_.Raise([well](PlateObserver& host) { host.CurrentWellChanged(well); });
    if (changes.selection) observers_.Raise([](PlateObserver& host) { host.SelectionChanged(); });
    if (changes.wells) {
        observers_.Raise([&](PlateObserver& host) {
            host.WellDataChanged(changes.wells->first, changes.wells->second);
        });
    }
}

} // namespace zorvane
