#pragma once

#include "apps/viewer/EventLog.h"
#include "apps/viewer/MainWindow.h"
#include "apps/viewer/PlateSession.h"
#include "apps/viewer/logic/WellSnapshot.h"

#include <QApplication>
#include <QMessageBox>
#include <QStatusBar>

#include <gtest/gtest.h>

#include <vector>

namespace zorvane {

/// The viewer's window on the sample library.
struct OpenedWindow {
    OpenedWindow() {
        window.show();
        EXPECT_TRUE(window.OpenLibrary(ZORVANE_SAMPLE_LIBRARY));
        QApplication::processEvents();
    }

    Plate& Control() { return window.Session().Control(); }

    std::vector<WellSnapshot> AllWells() {
        std::vector<WellSnapshot> wells;
        for (Integer well = 0; well < Control().TotalWells(); ++well)
            wells.push_back(Capture(Control(), well));
        return wells;
    }

    template <class Child>
    Child& Find() {
        return *window.findChild<Child*>();
    }

    /// The text of the message box that is open, which is closed; empty when there is none.
    QString TakeMessage() {
        const auto* box = window.findChild<QMessageBox*>();
        if (!box) return {};
        const QString text = box->text();
        delete box;
        return text;
    }

    MainWindow window;
};

} // namespace zorvane
