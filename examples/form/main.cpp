// Shows a form made with Qt Designer; a line below the plate says which well is current.
//
//   plate_on_a_form LIBRARY PLATE [PICTURE]

#include "ui_PlateForm.h"

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();

    QWidget window;
    Ui::PlateForm form;
    form.setupUi(&window);
    form.plate->setFileName(arguments.value(1));
    form.plate->setPlateName(arguments.value(2));
    QObject::connect(
        form.plate, &zorvane::PlateWidget::currentWellChanged, form.well,
        [&form](int well) { form.well->setText(QStringLiteral("Well %1").arg(well)); });

    window.show();
    if (arguments.size() > 3) return window.grab().save(arguments[3]) ? 0 : 1;
    return QApplication::exec();
}
