// Shows a plate in a window, whose title says which well is current.
//
//   plate_in_a_window LIBRARY PLATE [PICTURE]

#include <hosts/qt/PlateWidget.h>

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();

    zorvane::PlateWidget plate;
    plate.setRefitOnResize(true);
    plate.setMultipleSelect(true);
    plate.setAid(zorvane::PlateWidget::Aid::ShiftExtendsSelection);
    plate.setFileName(arguments.value(1));
    plate.setPlateName(arguments.value(2));
    QObject::connect(&plate, &zorvane::PlateWidget::currentWellChanged, [&plate](int well) {
        plate.setWindowTitle(QStringLiteral("Well %1").arg(well));
    });

    plate.resize(640, 440);
    plate.show();
    if (arguments.size() > 3) return plate.grab().save(arguments[3]) ? 0 : 1;
    return QApplication::exec();
}
