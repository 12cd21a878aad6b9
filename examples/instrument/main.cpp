// What a program that drives an instrument does with a plate. It runs by itself and writes what it
// does to standard output.
//
//   plate_for_an_instrument LIBRARY

#include <hosts/qt/PlateWidget.h>
#include <runtime/RuntimeError.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

using zorvane::PlateWidget;

namespace {

QTextStream& Log() {
    static QTextStream stream(stdout);
    return stream;
}

/// An instrument without an operator in front of it must not wait for a message box.
void LogMessages() {
    PlateWidget::setMessageHandler([](const QString& title, const QString& text) {
        Log() << "message: " << title << ": " << text << '\n';
    });
}

bool Load(PlateWidget& plate, const QString& name, const QString& library) {
    QString why;
    if (plate.load(name, library, &why)) return true;
    Log() << "not loaded: " << why << '\n';
    return false;
}

void Listen(PlateWidget& plate) {
    QObject::connect(&plate, &PlateWidget::currentWellChanged,
                     [&plate](int well) { Log() << "current: " << plate.wellName(well) << '\n'; });
    QObject::connect(&plate, &PlateWidget::selectionChanged,
                     [&plate] { Log() << "selected: " << plate.selectedWells().size() << '\n'; });
    QObject::connect(&plate, &PlateWidget::failed,
                     [](int number, const QString&, const QString& description) {
                         Log() << "failed: " << number << ' ' << description << '\n';
                     });
}

void FillIn(PlateWidget& plate) {
    const int well = plate.wellNumber(QStringLiteral("B2.Drop1"));
    plate.setText(well, QStringLiteral("protein A"));
    plate.setVolume(well, 2.5);
    plate.setIsDefined(well, true);
    plate.setWellFill(well, Qt::darkGreen);
}

/// Sends the stage to every selected well.
void Visit(const PlateWidget& plate) {
    for (const int well : plate.selectedWells()) {
        const QVector3D at = plate.wellPosition(well);
        Log() << plate.wellName(well) << " at " << at.x() << ", " << at.y() << ", " << at.z()
              << " mm\n";
    }
}

void CallTheControl(PlateWidget& plate) {
    try {
        Log() << QString::fromStdString(plate.plate().GetProperty("SEAL"));
    } catch (const zorvane::RuntimeError& error) {
        Log() << "error " << error.Number() << ": " << QString::fromStdString(error.Description())
              << '\n';
    }
}

void KeepSettings(const PlateWidget& plate, const QString& fileName) {
    QSettings settings(fileName, QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("plate"));
    plate.saveSettings(settings);
}

void TakeUpSettings(PlateWidget& plate, const QString& fileName) {
    QSettings settings(fileName, QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("plate"));
    plate.restoreSettings(settings);
}

} // namespace

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    const QString library = QApplication::arguments().value(1);
    LogMessages();

    PlateWidget plate;
    plate.setMultipleSelect(true);
    Listen(plate);
    if (Load(plate, QStringLiteral("Nope"), library)) return 1;
    if (!Load(plate, QStringLiteral("Sitting_96x3"), library)) return 1;
    FillIn(plate);
    plate.setSelectedWells({plate.wellNumber(QStringLiteral("A1.Drop1")),
                            plate.wellNumber(QStringLiteral("H12.Drop3"))});
    Visit(plate);
    CallTheControl(plate);

    const QTemporaryDir folder;
    const QString settings = folder.filePath(QStringLiteral("settings.ini"));
    KeepSettings(plate, settings);
    PlateWidget later;
    TakeUpSettings(later, settings);
    Log() << "again: " << later.plateName() << ", several wells: " << later.multipleSelect()
          << '\n';
}
