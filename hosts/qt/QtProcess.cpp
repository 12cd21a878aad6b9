#include "hosts/qt/QtProcess.h"

#include "hosts/qt/Units.h"

#include <QApplication>
#include <QMessageBox>
#include <QScreen>

namespace zorvane {

void QtMessages::Show(const Message& message) {
    QMessageBox box(QMessageBox::Critical, QString::fromStdString(message.title),
                    QString::fromStdString(message.prompt), QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.show();
    box.raise();
    box.activateWindow();
    box.exec();
}

Single QtScreen::TwipsPerPixelX() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return kUnitsPerPixel / static_cast<Single>(screen ? screen->devicePixelRatio() : 1);
}

void QtProcess::UseByDefault() {
    static QtProcess process;
    DefaultProcess(process);
}

} // namespace zorvane
