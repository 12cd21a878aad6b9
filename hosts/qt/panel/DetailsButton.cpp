#include "hosts/qt/panel/DetailsButton.h"

#include "drawing/Canvas.h"
#include "hosts/qt/Units.h"

namespace zorvane {

DetailsButton::DetailsButton(QWidget& host) : QPushButton(&host) {}

void DetailsButton::Show(const Button& button) {
    QFont font = parentWidget()->font();
    font.setPixelSize(qRound(ToPixels(kFontHeight)));
    font.setBold(button.bold);
    setFont(font);
    setText(QString::fromStdString(button.caption));
    setGeometry(ToPixels(button.box).toRect());
    setEnabled(button.enabled);
    setVisible(button.visible);
}

} // namespace zorvane
