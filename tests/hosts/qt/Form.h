#pragma once

#include "Test.h"
#include "hosts/qt/PlateWidget.h"

#include <QImage>
#include <QPushButton>
#include <QtTest/QTest>

namespace zorvane {

/// Four rows and six columns of two round wells, 9 mm apart: 60 pixels on screen.
inline constexpr const char* kPlateText =
    "PLATE Demo\r\nROWS 4\r\nCOLS 6\r\nROWLABEL A\r\nCOLLABEL 1\r\nXPITCH 9\r\nYPITCH 9\r\n"
    "XOVERALL 70\r\nYOVERALL 50\r\n"
    "WELL Drop\r\nSTYLE ROUND\r\nXOFFSET 14\r\nYOFFSET 10\r\nWELLSIZEX 2\r\nWELLSIZEY 2\r\n"
    "RIMWIDTH 0.5\r\nRIMHEIGHT 0.5\r\n"
    "WELL Reservoir\r\nSTYLE SQUARE\r\nXOFFSET 10\r\nYOFFSET 10\r\nWELLSIZEX 3\r\nWELLSIZEY 3\r\n"
    "RIMWIDTH 0.5\r\nRIMHEIGHT 0.5\r\n";

/// A window that shows a plate.
struct Form {
    Form() {
        process.screen.twipsPerPixelX = static_cast<Single>(15 / widget.devicePixelRatio());
        process.screen.twipsPerPixelY = process.screen.twipsPerPixelX;
        Plate& plate = widget.plate();
        plate.FixedSize = false;
        plate.DrawingScale(100);
        plate.PlateClassText(kPlateText);
        plate.MultipleSelect = true;
        widget.show();
    }

    /// Where the middle of a well's rim is, in the widget.
    QPoint At(int well) const { return widget.wellRect(well).center().toPoint(); }

    void Press(int well) { QTest::mousePress(&widget, Qt::LeftButton, {}, At(well)); }
    void MoveTo(int well) {
        QMouseEvent event(QEvent::MouseMove, At(well), widget.mapToGlobal(At(well)), Qt::NoButton,
                          Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &event);
    }
    void Release(int well) { QTest::mouseRelease(&widget, Qt::LeftButton, {}, At(well)); }

    QImage Picture() { return widget.grab().toImage(); }

    TestProcess process;
    PlateWidget widget;
};

} // namespace zorvane
