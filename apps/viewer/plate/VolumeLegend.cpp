#include "apps/viewer/plate/VolumeLegend.h"

#include "apps/viewer/PlateSession.h"
#include "hosts/qt/QtPalette.h"
#include "runtime/NumberText.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include <initializer_list>

namespace zorvane::viewer {

namespace {

constexpr int kBarWidth = 140;
constexpr int kBarHeight = 14;

QColor ToQt(Long color) { return ToColor(Resolve(color, SystemPalette())); }

/// The colours of the scale from least to greatest.
class ScaleBar final : public QWidget {
  public:
    ScaleBar() { setFixedSize(kBarWidth, kBarHeight); }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        for (int x = 0; x < width(); ++x) {
            const double place = static_cast<double>(x) / (width() - 1);
            painter.fillRect(x, 0, 1, height(), ToQt(VolumeScale::ColorAt(place)));
        }
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
    return VolumeLegend::tr("%1 µl").arg(QString::fromStdString(SingleText(volume)));
}

} // namespace

VolumeLegend::VolumeLegend(PlateSession& session, QWidget* parent)
    : QWidget(parent), session_(session), grid_(new QGridLayout), missing_(Swatch()) {
    QLabel* zero = Swatch();
    SetColor(*zero, VolumeScale::kZeroColor);
    auto* layout = new QHBoxLayout(this);
    layout->addStretch(1);
    layout->addLayout(grid_);
    layout->addSpacing(12);
    layout->addWidget(zero);
    layout->addWidget(new QLabel(tr("0 µl")));
    layout->addSpacing(12);
    layout->addWidget(missing_);
    layout->addWidget(new QLabel(tr("no volume")));
    layout->addStretch(1);

    setAccessibleName(tr("Colours of volumes"));
    connect(&session, &PlateSession::subWellsChanged, this, &VolumeLegend::ListSubWells);
    connect(&session, &PlateSession::changed, this, &VolumeLegend::Refresh);
    ListSubWells();
}

void VolumeLegend::ListSubWells() {
    for (const Line& line : lines_)
        qDeleteAll(std::initializer_list<QWidget*>{line.name, line.least, line.bar, line.greatest});
    lines_.clear();
    for (const String& name : session_.Names().SubWells()) {
        const auto row = static_cast<int>(lines_.size());
        const Line& line = lines_.emplace_back(
            Line{new QLabel(QString::fromStdString(name)), new QLabel, new ScaleBar, new QLabel});
        line.name->setTextFormat(Qt::PlainText);
        grid_->addWidget(line.name, row, 0);
        grid_->addWidget(line.least, row, 1, Qt::AlignRight);
        grid_->addWidget(line.bar, row, 2);
        grid_->addWidget(line.greatest, row, 3);
    }
    Refresh();
}

void VolumeLegend::Show(const Line& line, const VolumeScale& scale) {
    line.least->setText(VolumeText(scale.Least()));
    line.greatest->setText(VolumeText(scale.Greatest()));
    for (QWidget* widget :
         std::initializer_list<QWidget*>{line.name, line.least, line.bar, line.greatest})
        widget->setVisible(!scale.Empty());
}

void VolumeLegend::Refresh() {
    const std::vector<VolumeScale>& scales = session_.Coloring().Scales();
    setVisible(session_.Coloring().IsOn());
    SetColor(*missing_, session_.Control().DefaultWellColor());
    for (std::size_t i = 0; i < lines_.size() && i < scales.size(); ++i)
        Show(lines_[i], scales[i]);
}

} // namespace zorvane::viewer
