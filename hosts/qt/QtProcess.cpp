#include "hosts/qt/QtProcess.h"

#include "hosts/qt/Units.h"
#include "hosts/qt/texts/ControlText.h"

#include <QApplication>
#include <QMessageBox>
#include <QScreen>

namespace zorvane {

PlateWidget::MessageHandler QtMessages::handler;

void QtMessages::Show(const Message& message) {
    const QString title = ControlText(message.title);
    const QString text = ControlText(message.prompt);
    if (const auto takes = handler) return takes(title, text);
    QMessageBox box(QMessageBox::Critical, title, text, QMessageBox::Ok,
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
