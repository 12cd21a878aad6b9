#pragma once

#include "control/Definition.h"
#include "control/Notifier.h"
#include "control/Plate.h"
#include "control/cmFocus.h"
#include "control/gestures/Gestures.h"
#include "control/layout/PlateLayout.h"
#include "control/panel/DataPanel.h"
#include "control/panel/SubWellCommands.h"
#include "control/wells/WellData.h"

namespace zorvane {

/// What a control is made of. Each part has its own state and knows what it was given here.
struct Plate::Parts {
    Parts(PlateFields& fields, HostSite& site)
        : cursor(fields, definition), notifier(site, surface, cursor.Number()), focus(site),
          elements(surface, notifier), selection(fields, cursor, wells, elements, notifier),
          data(fields, wells, elements, notifier),
          block(fields, plateName, cursor, selection, elements),
          layout(fields, definition, wells, elements, surface, notifier),
          panel(fields, definition, surface, notifier),
          commands(definition, surface.panel, panel, notifier),
          hitTest(fields, definition, layout.Grid(), elements), box(surface.SelectBox, notifier),
          gestures({fields, wells, elements, layout.Grid(), hitTest},
                   {cursor, selection, block, box, focus, surface, notifier}) {}

    String plateName;
    String defaultFileName;
    Boolean loaded = false;
    Boolean selected = false; ///< the control as a whole

    Surface surface;
    Definition definition;
    WellRecords wells;
    WellCursor cursor;
    Notifier notifier;
    cmFocus focus;
    WellElements elements;
    Selection selection;
    WellData data;
    WellBlock block;
    PlateLayout layout;
    DataPanel panel;
    SubWellCommands commands;
    HitTest hitTest;
    SelectionBox box;
    Gestures gestures;
};

template <class Step>
void Plate::Operate(Step step) {
    Parts& parts = *parts_;
    parts.notifier.Operate([&] { step(parts); });
}

} // namespace zorvane
