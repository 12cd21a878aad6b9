#include "apps/viewer/VolumeLegend.h"

#include "apps/viewer/PlateSession.h"
#include "hosts/qt/QtPalette.h"
#include "runtime/NumberText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace zorvane {

namespace {

constexpr int kBarWidth = 160;
constexpr int kBarHeight = 14;

QColor ToQt(Long color) { return ToColor(Resolve(color, SystemPalette())); }

/// The colours of the scale from least to greatest.
class ScaleBar final : public QWidget {
  public:
    ScaleBar() { setFixedSize(kBarWidth, kBarHeight); }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        for (int x = 0; x < width(); ++x)
            painter.fillRect(x, 0, 1, height(),
                             ToQt(VolumeScale::ColorAt(double(x) / (width() - 1))));
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
};

QLabel* Swatch() {
    auto* swatch = new QLabel;
    swatch->setFixedSize(kBarHeight, kBarHeight);
    swatch->setFrameShape(QFrame::Box);
    swatch->setAutoFillBackground(true);
    return swatch;
}

void SetColor(QLabel& swatch, Long color) {
    QPalette palette = swatch.palette();
    palette.setColor(QPalette::Window, ToQt(color));
    swatch.setPalette(palette);
}

QString VolumeText(Single volume) {
    return QString::fromStdString(SingleText(volume)) + QObject::tr(" µl");
}

} // namespace

VolumeLegend::VolumeLegend(PlateSession& session, QWidget* parent)
    : QWidget(parent), session_(session), scale_(new QWidget), least_(new QLabel),
      greatest_(new QLabel), missing_(Swatch()) {
    auto* scale = new QHBoxLayout(scale_);
    scale->setContentsMargins(0, 0, 12, 0);
    scale->addWidget(least_);
    scale->addWidget(new ScaleBar);
    scale->addWidget(greatest_);

    QLabel* zero = Swatch();
    SetColor(*zero, VolumeScale::kZeroColor);
    auto* layout = new QHBoxLayout(this);
    layout->addStretch(1);
    layout->addWidget(scale_);
    layout->addWidget(zero);
    layout->addWidget(new QLabel(tr("0 µl")));
    layout->addSpacing(12);
    layout->addWidget(missing_);
    layout->addWidget(new QLabel(tr("no volume")));
    layout->addStretch(1);

    setAccessibleName(tr("Colours of volumes"));
    connect(&session, &PlateSession::changed, this, &VolumeLegend::Refresh);
    Refresh();
}

void VolumeLegend::Refresh() {
    setVisible(session_.Coloring().IsOn());
    const VolumeScale& scale = session_.Coloring().Scale();
    scale_->setVisible(!scale.Empty());
    least_->setText(VolumeText(scale.Least()));
    greatest_->setText(VolumeText(scale.Greatest()));
    SetColor(*missing_, session_.Control().DefaultWellColor());
    setAccessibleDescription(scale.Empty()
                                 ? tr("No well has a volume")
                                 : least_->text() + QStringLiteral(" – ") + greatest_->text());
}

} // namespace zorvane
