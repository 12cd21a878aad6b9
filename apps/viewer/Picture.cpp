#include "apps/viewer/Picture.h"

#include "hosts/qt/PlateWidget.h"
#include "platform/Process.h"

#include <QImageWriter>
#include <QPainter>

namespace zorvane {

namespace {

constexpr int kWidth = 1000;
constexpr int kRoomForLegends = 40;

/// Keeps what the control says instead of opening a box that nobody may be there to close.
class KeptMessages final : public Process, public MessageDisplay {
  public:
    void Show(const Message& message) override { text = QString::fromStdString(message.prompt); }
    MessageDisplay& Messages() override { return *this; }
    Screen& TheScreen() override { return screen_; }
    Registry& TheRegistry() override { return registry_; }

    QString text;

  private:
    Screen screen_;
    Registry registry_;
};

QImage PictureOf(PlateWidget& widget) {
    const Plate& plate = widget.plate();
    const double height = kWidth * double{plate.yOverall} / double{plate.xOverall};
    widget.resize(kWidth, qRound(height) + kRoomForLegends);
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(widget.palette().color(QPalette::Window));
    // The button of the details panel is no part of the plate.
    widget.render(&image, {}, {}, QWidget::DrawWindowBackground);
    return image;
}

} // namespace

QString WritePicture(const QString& library, const QString& plateName, const QString& file) {
    KeptMessages messages;
    const InstalledProcess installed(messages);
    PlateWidget widget;
    widget.setHorizontalCentred(true);
    widget.setVerticalCentred(true);
    widget.setRefitOnResize(true);
    QObject::connect(&widget, &PlateWidget::failed, &widget,
                     [&](int, const QString&, const QString& text) { messages.text = text; });
    widget.setFileName(library);
    widget.setPlateName(plateName);
    if (!messages.text.isEmpty()) return messages.text;

    const QImage picture = PictureOf(widget);
    if (!messages.text.isEmpty()) return messages.text;
    QImageWriter writer(file);
    return writer.write(picture) ? QString() : file + QStringLiteral(": ") + writer.errorString();
}

} // namespace zorvane
