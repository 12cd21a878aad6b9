#include "control/SavedSettings.h"
#include "hosts/qt/SettingsStore.h"
#include "hosts/qt/widget/PlateWidgetParts.h"
#include "runtime/Text.h"

#include <QFileInfo>
#include <QRect>

/// The members of PlateWidget that belong to the plate, its settings and the details panel;
/// WellProperties.cpp has those that belong to wells.
namespace zorvane {

// The plate.

QString PlateWidget::fileName() const { return ShownText(plate().FileName); }

void PlateWidget::setFileName(const QString& name) {
    plate().FileName = name.toStdString();
    d_->observer.TellProperties();
}

void PlateWidget::resetFileName() { setFileName(ShownText(d_->firstFileName)); }

QString PlateWidget::plateName() const { return d_->GetText(&Plate::PlateName); }

void PlateWidget::setPlateName(const QString& name) { load(name); }

QString PlateWidget::requestedPlateName() const { return d_->requestedPlateName; }

void PlateWidget::resetPlateName() {
    if (QFileInfo::exists(fileName())) setPlateName(ShownText(saved::kPlateName.fallback));
}

QString PlateWidget::plateClassText() const { return d_->GetText(&Plate::PlateClassText); }

void PlateWidget::setPlateClassText(const QString& text) { d_->Set(&Plate::PlateClassText, text); }

QString PlateWidget::tagList() const { return d_->GetText(&Plate::TagList); }

int PlateWidget::status() const { return plate().Status; }

bool PlateWidget::dirty() const { return plate().Dirty; }

void PlateWidget::setDirty(bool on) { plate().Dirty = on; }

int PlateWidget::rows() const { return plate().Rows; }

int PlateWidget::cols() const { return plate().Cols; }

int PlateWidget::subWellCount() const { return plate().SubWellCount; }

int PlateWidget::totalWells() const { return plate().TotalWells(); }

double PlateWidget::xPitch() const { return double{plate().XPitch}; }

double PlateWidget::yPitch() const { return double{plate().YPitch}; }

double PlateWidget::xOverall() const { return double{plate().xOverall}; }

double PlateWidget::yOverall() const { return double{plate().yOverall}; }

double PlateWidget::pHeight() const { return double{plate().PHeight}; }

double PlateWidget::xLeft() const { return double{plate().XLeft}; }

double PlateWidget::yTop() const { return double{plate().YTop}; }

double PlateWidget::zClear() const { return double{plate().ZClear}; }

QString PlateWidget::definitionProperty(const QString& name) const {
    return ShownText(Parts::Answer([&] { return plate().GetProperty(name.toStdString()); }));
}

void PlateWidget::setDefinitionProperty(const QString& name, const QString& value) {
    d_->steps.Run([&] { plate().SetProperty(name.toStdString(), value.toStdString()); });
}

QRectF PlateWidget::wellEnvelope(int row, int col) const {
    return Parts::Answer([&] {
        Single left = 0, top = 0, right = 0, bottom = 0, low = 0, high = 0;
        plate().WellEnvelope(left, top, low, right, bottom, high, Checked(row), Checked(col));
        return QRectF(QPointF(double{left}, double{top}), QPointF(double{right}, double{bottom}));
    });
}

QVector3D PlateWidget::wellCentroid(int row, int col) const {
    return Parts::Answer([&] {
        Single x = 0, y = 0, z = 0;
        plate().WellCentroid(x, y, z, Checked(row), Checked(col));
        return QVector3D(x, y, z);
    });
}

// Settings.

void PlateWidget::saveSettings(QSettings& settings) const {
    SettingsStore store(settings);
    plate().SaveProperties(store);
}

void PlateWidget::restoreSettings(QSettings& settings) {
    const SettingsStore store(settings);
    const auto hosted = d_->hosted; // a slot may destroy the widget
    d_->Load([&] {
        hosted->plate.RestoreProperties(store);
        return EqualNoCase(hosted->plate.LoadedDefinition().PlateName(),
                           saved::Read(store, saved::kPlateName));
    });
}

bool PlateWidget::fixedSize() const { return plate().FixedSize; }

void PlateWidget::setFixedSize(bool on) {
    plate().FixedSize = on;
    d_->sizing.LayOut();
}

void PlateWidget::resetFixedSize() { setFixedSize(saved::kFixedSize.fallback); }

double PlateWidget::drawingScale() const { return double{plate().DrawingScale()}; }

void PlateWidget::setDrawingScale(double scale) {
    d_->Set(&Plate::DrawingScale, scale);
    if (plateName().isEmpty()) emit plateChanged(); // the control has no layout to tell of yet
}

void PlateWidget::resetDrawingScale() { setDrawingScale(double{saved::kDrawingScale.fallback}); }

bool PlateWidget::horizontalCentred() const { return plate().HorizontalCentred; }

void PlateWidget::setHorizontalCentred(bool on) {
    plate().HorizontalCentred = on;
    d_->sizing.LayOut();
}

void PlateWidget::resetHorizontalCentred() {
    setHorizontalCentred(saved::kHorizontalCentred.fallback);
}

bool PlateWidget::verticalCentred() const { return plate().VerticalCentred; }

void PlateWidget::setVerticalCentred(bool on) {
    plate().VerticalCentred = on;
    d_->sizing.LayOut();
}

void PlateWidget::resetVerticalCentred() { setVerticalCentred(saved::kVerticalCentred.fallback); }

bool PlateWidget::refitOnResize() const { return d_->sizing.RefitOnResize(); }

void PlateWidget::setRefitOnResize(bool on) { d_->sizing.RefitOnResize(on); }

QColor PlateWidget::defaultRimColor() const { return ShownColor(plate().DefaultRimColor()); }

void PlateWidget::setDefaultRimColor(const QColor& color) {
    d_->Set(&Plate::DefaultRimColor, ToLong(color, kDefaultWellColor));
}

QColor PlateWidget::defaultWellColor() const { return ShownColor(plate().DefaultWellColor()); }

void PlateWidget::setDefaultWellColor(const QColor& color) {
    d_->Set(&Plate::DefaultWellColor, ToLong(color, kDefaultWellColor));
}

QColor PlateWidget::defaultSelectColor() const { return ShownColor(plate().DefaultSelectColor); }

void PlateWidget::setDefaultSelectColor(const QColor& color) {
    plate().DefaultSelectColor = ToLong(color, PlateFields().DefaultSelectColor);
}

QColor PlateWidget::definedWellColor() const { return ShownColor(plate().DefinedWellColor); }

void PlateWidget::setDefinedWellColor(const QColor& color) {
    plate().DefinedWellColor = ToLong(color, PlateFields().DefinedWellColor);
}

QColor PlateWidget::errorWellColor() const { return ShownColor(plate().ErrorWellColor); }

void PlateWidget::setErrorWellColor(const QColor& color) {
    plate().ErrorWellColor = ToLong(color, PlateFields().ErrorWellColor);
}

QColor PlateWidget::selectedColor() const { return ShownColor(plate().SelectedColor); }

void PlateWidget::setSelectedColor(const QColor& color) {
    plate().SelectedColor = ToLong(color, PlateFields().SelectedColor);
}

QColor PlateWidget::deselectedColor() const { return ShownColor(plate().DeselectedColor); }

void PlateWidget::setDeselectedColor(const QColor& color) {
    plate().DeselectedColor = ToLong(color, PlateFields().DeselectedColor);
}

QColor PlateWidget::ShownColor(Long color) const {
    return ToColor(Resolve(color, SystemColors(palette())));
}

bool PlateWidget::multipleSelect() const { return plate().MultipleSelect; }

void PlateWidget::setMultipleSelect(bool on) { plate().MultipleSelect = on; }

bool PlateWidget::dragDrop() const { return plate().DragDrop; }

void PlateWidget::setDragDrop(bool on) { plate().DragDrop = on; }

bool PlateWidget::mouseEnabled() const { return plate().MouseEnabled(); }

void PlateWidget::setMouseEnabled(bool on) { d_->Set(&Plate::MouseEnabled, on); }

bool PlateWidget::selected() const { return plate().Selected(); }

void PlateWidget::setSelected(bool on) { d_->Set(&Plate::Selected, on); }

PlateWidget::Aids PlateWidget::aids() const { return d_->aids; }

void PlateWidget::setAids(Aids aids) {
    d_->aids = aids;
    update();
}

// The details panel.

bool PlateWidget::editEnable() const { return plate().EditEnable(); }

void PlateWidget::setEditEnable(bool on) { d_->Set(&Plate::EditEnable, on); }

bool PlateWidget::dataVisible() const { return plate().DataVisible(); }

void PlateWidget::setDataVisible(bool on) { d_->Set(&Plate::DataVisible, on); }

bool PlateWidget::editsPending() const { return plate().EditsPending(); }

void PlateWidget::setDataDisplay(int page) { d_->Set(&Plate::SetDataDisplay, page); }

void PlateWidget::getDataDisplay(int page) { d_->Set(&Plate::GetDataDisplay, page); }

bool PlateWidget::detailsDetached() const { return d_->panel.Place().Detached() != nullptr; }

void PlateWidget::setDetailsDetached(bool on) { d_->panel.Place().Detach(on); }

QWidget* PlateWidget::detailsPanel() const { return d_->panel.Place().Detached(); }

} // namespace zorvane
