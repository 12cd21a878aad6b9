#include "control/DataPanel.h"

#include "control/WellElements.h"
#include "runtime/Rounding.h"

namespace zorvane {

void ShowDataPanel(ControlParts parts, Boolean visible) {
    PlateState& state = parts.state;
    const Rect& plate = parts.surface.fraPlate.box;
    const Rect& data = parts.surface.fraData.box;
    const Single button = parts.surface.cmdData.box.height;
    Single width = parts.site.Width();
    Single height = parts.site.Height();

    if (!parts.surface.fraData.visible) state.SavedHeight = ToInteger(height);
    parts.surface.fraData.visible = visible;
    if (state.FixedSize) {
        height = visible ? data.Bottom() + button : state.SavedHeight;
    } else if (visible) {
        if (data.width > plate.width) width = data.width;
        if (data.height > plate.height) height = data.height + button / 2;
    } else {
        width = plate.width;
        height = plate.height + button / 2;
    }
    if (width != parts.site.Width() || height != parts.site.Height())
        parts.site.Resize(width, height);
    RepaintAll(parts);
}

} // namespace zorvane
