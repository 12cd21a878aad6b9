#include "hosts/qt/PlateWidget.h"

#include "hosts/qt/PanelMirror.h"
#include "hosts/qt/PlateAccessible.h"
#include "hosts/qt/PlateSignals.h"
#include "hosts/qt/QtPalette.h"
#include "hosts/qt/QtProcess.h"
#include "hosts/qt/SelectionAids.h"
#include "hosts/qt/Units.h"
#include "platform/Process.h"
#include "runtime/RuntimeError.h"

#include <QFileInfo>
#include <QLayout>
#include <QMetaMethod>
#include <QPointer>

namespace zorvane {

namespace {

constexpr QSize kNewSize(400, 270);
constexpr const char* kFirstPlate = "No_Plate";

bool Holds(QLayout& layout, const QWidget& widget) {
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem* item = layout.itemAt(i);
        if (item->widget() == &widget) return true;
        if (item->layout() && Holds(*item->layout(), widget)) return true;
    }
    return false;
}

bool IsLaidOut(const QWidget& widget) {
    const QWidget* parent = widget.parentWidget();
    return parent && parent->layout() && Holds(*parent->layout(), widget);
}

} // namespace

PlateWidget::PlateWidget(QWidget* parent)
    : QWidget(parent), site_(std::make_shared<QtSite>(*this, dataButton_)), askedSize_(kNewSize) {
    QtProcess::UseByDefault();
    PlateAccessible::Install();
    plate_ = std::make_shared<Plate>(*site_);
    signals_ = std::make_unique<PlateSignals>(*this);
    plate_->AddObserver(*signals_);
    selection_ = std::make_unique<SelectionAids>(*plate_);
    site_->onRepaint = [this](const Rect& area) { ContentChanged(area); };
    site_->onResize = [this](QSize size) { TakeSize(size); };
    site_->Overlay().Context().onChange = [this](const Rect& pixels) { OutlineChanged(pixels); };

    dataButton_.setParent(this);
    dataButton_.setAccessibleName(tr("Details"));
    connect(&dataButton_, &QPushButton::clicked, this,
            [this] { Try([this] { plate_->DataButtonPressed(); }); });
    MirrorDataButton();

    panel_ = std::make_unique<PanelMirror>(
        *this, *plate_, [this](const std::function<void()>& action) { Try(action); });
    dataButton_.raise(); // the panel leaves room for it
    site_->onPanelChange = [this] {
        panel_->Sync();
        emit panelChanged();
    };
    site_->menuPlace = [this] { return panel_->MenuPlace(); };

    setMouseTracking(true);
    // A press takes the focus where the control says so.
    setFocusPolicy(Qt::TabFocus);
    setMaximumSize(kLongestSide, kLongestSide);
    resize(kNewSize);
}

PlateWidget::~PlateWidget() {
    plate_->RemoveObserver(*signals_);
    site_->Leave();
}

QString PlateWidget::fileName() const { return QString::fromStdString(plate_->FileName); }

void PlateWidget::setFileName(const QString& name) { plate_->FileName = name.toStdString(); }

QString PlateWidget::plateName() const { return QString::fromStdString(plate_->PlateName()); }

void PlateWidget::setPlateName(const QString& name) {
    Try([&] { plate_->PlateName(name.toStdString()); });
}

void PlateWidget::setFixedSize(bool on) {
    plate_->FixedSize = on;
    Relayout();
}

void PlateWidget::setDrawingScale(double scale) {
    Try([&] { plate_->DrawingScale(static_cast<Single>(scale)); });
}

void PlateWidget::setHorizontalCentred(bool on) {
    plate_->HorizontalCentred = on;
    Relayout();
}

void PlateWidget::setVerticalCentred(bool on) {
    plate_->VerticalCentred = on;
    Relayout();
}

void PlateWidget::setRefitOnResize(bool on) {
    refitOnResize_ = on;
    Refit();
}

void PlateWidget::setDataVisible(bool on) {
    Try([&] { plate_->DataVisible(on); });
}

QColor PlateWidget::ColorOf(Long color) const {
    return ToColor(Resolve(color, SystemColors(palette())));
}

void PlateWidget::setDefaultRimColor(const QColor& color) {
    plate_->DefaultRimColor(ToLong(color, PlateState().DefaultRimColor));
}

void PlateWidget::setDefaultWellColor(const QColor& color) {
    plate_->DefaultWellColor(ToLong(color, PlateState().DefaultWellColor));
}

void PlateWidget::setDefaultSelectColor(const QColor& color) {
    plate_->DefaultSelectColor = ToLong(color, PlateFields().DefaultSelectColor);
}

void PlateWidget::setDefinedWellColor(const QColor& color) {
    plate_->DefinedWellColor = ToLong(color, PlateFields().DefinedWellColor);
}

void PlateWidget::setErrorWellColor(const QColor& color) {
    plate_->ErrorWellColor = ToLong(color, PlateFields().ErrorWellColor);
}

void PlateWidget::setSelectedColor(const QColor& color) {
    plate_->SelectedColor = ToLong(color, PlateFields().SelectedColor);
}

void PlateWidget::setDeselectedColor(const QColor& color) {
    plate_->DeselectedColor = ToLong(color, PlateFields().DeselectedColor);
}

void PlateWidget::Try(const std::function<void()>& action) {
    const auto site = site_;
    const auto plate = plate_; // goes before its site
    const QPointer<PlateWidget> shown(this);
    try {
        action();
    } catch (const RuntimeError& error) {
        if (!shown) return;
        Report(error.Number(), QString::fromStdString(error.Source()),
               QString::fromStdString(error.Description()));
    } catch (const std::exception& error) {
        // Thrown by a slot of the host: an event loop can't hand it on either.
        if (!shown) return;
        Report(0, QString(), QString::fromLocal8Bit(error.what()));
    }
    if (shown) AnnounceCurrentWell();
}

void PlateWidget::Report(int number, const QString& source, const QString& description) {
    if (isSignalConnected(QMetaMethod::fromSignal(&PlateWidget::failed))) {
        emit failed(number, source, description);
    } else {
        CurrentProcess().Messages().Show({description.toStdString()});
    }
}

void PlateWidget::Relayout() {
    Try([this] { plate_->DrawingScale(plate_->DrawingScale()); });
}

// A layout fits the scale after it has sized the plate area, so the second one makes both agree. It
// also closes the details panel, with what has been typed there.
void PlateWidget::Refit() {
    if (!refitOnResize_ || !plate_->FixedSize || refitting_) return;
    const PanelElements& panel = plate_->Elements().panel;
    const bool open = plate_->DataVisible();
    const Integer page = panel.comboSelect.position;
    if (open && panel.cmdApply.enabled) return;
    refitting_ = true;
    panel_->Run([&] {
        Relayout();
        Relayout();
        if (!open) return;
        plate_->DataVisible(true);
        plate_->PageChosen(page);
    });
    refitting_ = false;
}

void PlateWidget::TakeSize(QSize size) {
    askedSize_ = size;
    updateGeometry();
    if (!IsLaidOut(*this)) resize(size);
}

void PlateWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    panel_->Sync();
    Refit();
}

void PlateWidget::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (plateName().isEmpty() && QFileInfo::exists(fileName())) setPlateName(kFirstPlate);
}

} // namespace zorvane
