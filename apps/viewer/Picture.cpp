#include "apps/viewer/Picture.h"

#include "drawing/PlatePainter.h"
#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtPalette.h"
#include "hosts/qt/Units.h"
#include "platform/Process.h"

#include <QImageWriter>
#include <QPainter>

#include <algorithm>

namespace zorvane::viewer {

namespace {

constexpr int kWidth = 1000;
constexpr int kRoomForLegends = 40;
constexpr int kLeastHeight = 100;
constexpr int kMargin = 8;

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
    widget.resize(kWidth,
                  qRound(std::clamp<double>(height, kLeastHeight, kLongestSide)) + kRoomForLegends);
    widget.setRefitOnResize(true); // fits the plate to the size at once
    const QSize area = ToPixels(plate.Elements().fraPlate.box).toAlignedRect().size();
    QImage image(area.grownBy({kMargin, kMargin, kMargin, kMargin}), QImage::Format_RGB32);
    image.fill(widget.palette().color(QPalette::Window));
    // Nobody can press the button in a picture.
    Surface shown = plate.Elements();
    shown.cmdData.visible = false;
    QPainter painter(&image);
    painter.translate(kMargin, kMargin);
    ShapeImages images;
    QtCanvas canvas(painter, images, widget.font(), QRect({}, area));
    PaintControl(shown, SystemColors(widget.palette()), canvas);
    return image;
}

} // namespace

QString WritePicture(const QString& library, const QString& plateName, const QString& file) {
    KeptMessages messages;
    const InstalledProcess installed(messages);
    PlateWidget widget;
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

} // namespace zorvane::viewer
