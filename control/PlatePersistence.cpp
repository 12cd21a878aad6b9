#include "control/Plate.h"
#include "control/SavedSettings.h"

namespace zorvane {

void Plate::InitialProperties() {
    site_.Operate([&] {
        FixedSize = saved::kFixedSize.fallback;
        MultipleSelect = saved::kMultipleSelect.fallback;
        DrawingScale(saved::kDrawingScale.fallback);
        FileName = DefaultLibrary();
        DefaultRimColor(saved::kDefaultRimColor.fallback);
        DefaultSelectColor = saved::kDefaultSelectColor.fallback;
        DefaultWellColor(saved::kDefaultWellColor.fallback);
        DeselectedColor = saved::kDeselectedColor.fallback;
        SelectedColor = saved::kSelectedColor.fallback;
        HorizontalCentred = saved::kHorizontalCentred.fallback;
        VerticalCentred = saved::kVerticalCentred.fallback;
        PlateName(saved::kPlateName.fallback);
    });
}

// The plate is loaded with every setting but MultipleSelect in place.
void Plate::RestoreProperties(const PropertyStore& store) {
    site_.Operate([&] {
        FixedSize = saved::Read(store, saved::kFixedSize);
        PlateState::DrawingScale = saved::Read(store, saved::kDrawingScale);
        FileName = saved::Read(store, saved::FileName(DefaultFileName));
        DefaultRimColor(saved::Read(store, saved::kDefaultRimColor));
        DefaultSelectColor = saved::Read(store, saved::kDefaultSelectColor);
        DefaultWellColor(saved::Read(store, saved::kDefaultWellColor));
        DeselectedColor = saved::Read(store, saved::kDeselectedColor);
        SelectedColor = saved::Read(store, saved::kSelectedColor);
        HorizontalCentred = saved::Read(store, saved::kHorizontalCentred);
        VerticalCentred = saved::Read(store, saved::kVerticalCentred);
        PlateName(saved::Read(store, saved::kPlateName));
        MultipleSelect = saved::Read(store, saved::kMultipleSelect);
    });
}

void Plate::SaveProperties(PropertyStore& store) const {
    saved::Write(store, saved::FileName(DefaultFileName), FileName);
    saved::Write(store, saved::kPlateName, PlateName());
    saved::Write(store, saved::kFixedSize, FixedSize);
    saved::Write(store, saved::kDrawingScale, DrawingScale());
    saved::Write(store, saved::kDefaultRimColor, DefaultRimColor());
    saved::Write(store, saved::kDefaultSelectColor, DefaultSelectColor);
    saved::Write(store, saved::kDefaultWellColor, DefaultWellColor());
    saved::Write(store, saved::kDeselectedColor, DeselectedColor);
    saved::Write(store, saved::kSelectedColor, SelectedColor);
    saved::Write(store, saved::kHorizontalCentred, HorizontalCentred);
    saved::Write(store, saved::kVerticalCentred, VerticalCentred);
    saved::Write(store, saved::kMultipleSelect, MultipleSelect);
}

} // namespace zorvane
