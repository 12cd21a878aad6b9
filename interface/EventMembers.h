#pragma once

#include "interface/Member.h"

namespace zorvane {

template <class Visitor>
void DescribeEvents(Visitor& visitor) {
    visitor(MemberGroup{"Events",
                        "Button is 1 left, 2 right, 4 middle; Shift adds 1 for Shift, 2 for Ctrl, "
                        "4 for Alt. X and Y are drawing units in the plate area. Selecting wells "
                        "by a call raises no event."});
    visitor(Event<&PlateObserver::DoubleClick>{
        1, "DoubleClick",
        "A double click on the plate area or the details panel, while MouseEnabled."});
    visitor(Event<&PlateObserver::Click>{
        2, "Click", "A click on the plate area or the details panel, while MouseEnabled."});
    visitor(Event<&PlateObserver::SelectWell>{
        3, "SelectWell", "An area selection ended on one well, the current one.", {"WellNo"}});
    visitor(Event<&PlateObserver::SelectMultipleWells>{
        4, "SelectMultipleWells", "An area selection ended covering more than one well."});
    visitor(Event<&PlateObserver::MouseDown>{
        5,
        "MouseDown",
        "A button went down on the plate area and did not begin to select or move wells.",
        {"Button", "Shift", "X", "Y"}});
    visitor(Event<&PlateObserver::MouseUp>{6,
                                           "MouseUp",
                                           "A button came up on the plate area while MouseEnabled "
                                           "and no wells were being selected or moved.",
                                           {"Button", "Shift", "X", "Y"}});
    visitor(Event<&PlateObserver::DragMove>{
        7,
        "DragMove",
        "The selected wells were dragged by a number of columns and rows; moving their data is "
        "the host's task.",
        {"Button", "Shift", "dC", "dR"}});
    visitor(Event<&PlateObserver::ApplyChanges>{8, "ApplyChanges",
                                                "The edited definition was applied."});
}

} // namespace zorvane
