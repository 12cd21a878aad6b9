#include "control/WellGrid.h"
#include "hosts/qt/Units.h"
#include "hosts/qt/aids/SelectionAids.h"
#include "hosts/qt/widget/PlateWidgetParts.h"

#include <QRect>

#include <vector>

/// The members of PlateWidget that belong to wells.
namespace zorvane {

// Wells by number and by name.

QString PlateWidget::wellName(int wellNo) const {
    return Parts::Answer([&] { return ShownText(d_->names.Get().Name(Checked(wellNo))); });
}

QString PlateWidget::wellCaption(int wellNo) const {
    return Parts::Answer([&] { return ShownText(d_->names.Get().Full(Checked(wellNo))); });
}

int PlateWidget::wellNumber(const QString& name) const {
    return d_->names.Get().Find(name.toStdString()).value_or(Integer{-1});
}

int PlateWidget::wellAt(QPointF position) const { return d_->input.WellAt(position); }

QRectF PlateWidget::wellRect(int wellNo) const {
    if (wellNo < 0 || wellNo >= totalWells()) return {};
    const Surface& surface = plate().Elements();
    const Rect& area = surface.fraPlate.box;
    const Rect& rim = surface.WellRim[static_cast<std::size_t>(wellNo)].box;
    return ToPixels(rim.Moved(area.left, area.top));
}

QVector3D PlateWidget::wellPosition(int wellNo) const {
    if (wellNo < 0 || wellNo >= totalWells()) return {};
    return Parts::Answer([&] {
        const auto place = WellGrid{plate().Rows, plate().Cols}.PlaceOf(Checked(wellNo));
        const auto subWell = plate().LoadedDefinition().CompoundWell()->Item(place.subWell);
        const String name = subWell->WellName();
        return QVector3D(plate().WellX(place.col, place.row, name),
                         plate().WellY(place.col, place.row, name),
                         plate().WellZ(place.col, place.row, name));
    });
}

// The current well.

int PlateWidget::currentWell() const { return plate().CurrentWell(); }

void PlateWidget::setCurrentWell(int wellNo) { d_->Set(&Plate::CurrentWell, wellNo); }

QString PlateWidget::currentWellName() const { return wellName(currentWell()); }

int PlateWidget::row() const { return plate().Row(); }

void PlateWidget::setRow(int row) { d_->Set(&Plate::Row, row); }

int PlateWidget::col() const { return plate().Col(); }

void PlateWidget::setCol(int col) { d_->Set(&Plate::Col, col); }

int PlateWidget::wellIndex() const { return plate().WellIndex(); }

void PlateWidget::setWellIndex(int position) { d_->SetSubWell(&Plate::WellIndex, position); }

QString PlateWidget::subWell() const { return d_->GetText(&Plate::SubWell); }

void PlateWidget::setSubWell(const QString& name) { d_->SetSubWell(&Plate::SubWell, name); }

QString PlateWidget::location() const { return d_->GetText(&Plate::Location); }

bool PlateWidget::currentWellSelected() const { return isSelected(currentWell()); }

void PlateWidget::setCurrentWellSelected(bool on) { d_->Set(&Plate::WellSelected, on); }

bool PlateWidget::solutionDefined() const { return d_->Get(&Plate::SolutionDefined); }

void PlateWidget::setSolutionDefined(bool on) { d_->Set(&Plate::SolutionDefined, on); }

double PlateWidget::currentVolume() const { return double{d_->Get(&Plate::CurrentVolume)}; }

void PlateWidget::setCurrentVolume(double value) { d_->Set(&Plate::CurrentVolume, value); }

QColor PlateWidget::currentWellColor() const { return wellFill(currentWell()); }

void PlateWidget::setCurrentWellColor(const QColor& color) { setWellFill(currentWell(), color); }

QColor PlateWidget::currentRimColor() const { return rimFill(currentWell()); }

void PlateWidget::setCurrentRimColor(const QColor& color) { setRimFill(currentWell(), color); }

double PlateWidget::currentWellX() const { return double{d_->Get(&Plate::CurrentWellX)}; }

double PlateWidget::currentWellY() const { return double{d_->Get(&Plate::CurrentWellY)}; }

double PlateWidget::currentWellZ() const { return double{d_->Get(&Plate::CurrentWellZ)}; }

void PlateWidget::clearWell() {
    d_->steps.Run([this] { plate().ClearWell(); });
}

void PlateWidget::clearSubWells(const QString& subWell) {
    d_->steps.Run([&] { plate().ClearSubWells(subWell.toStdString()); });
}

// The sub-well of the current well.

PlateWidget::SubWellStyle PlateWidget::subWellStyle() const {
    return static_cast<SubWellStyle>(d_->Get(&Plate::Style));
}

void PlateWidget::setSubWellStyle(SubWellStyle style) {
    d_->SetSubWell(&Plate::Style, static_cast<int>(style));
}

double PlateWidget::maxVolume() const { return double{d_->Get(&Plate::MaxVolume)}; }

void PlateWidget::setMaxVolume(double value) { d_->SetSubWell(&Plate::MaxVolume, value); }

double PlateWidget::subWellDepth() const { return double{d_->Get(&Plate::Depth)}; }

void PlateWidget::setSubWellDepth(double value) { d_->SetSubWell(&Plate::Depth, value); }

double PlateWidget::wellDiameter() const { return double{d_->Get(&Plate::WellDiameter)}; }

void PlateWidget::setWellDiameter(double value) { d_->SetSubWell(&Plate::WellDiameter, value); }

double PlateWidget::wellSizeX() const { return double{d_->Get(&Plate::WellSizeX)}; }

void PlateWidget::setWellSizeX(double value) { d_->SetSubWell(&Plate::WellSizeX, value); }

double PlateWidget::wellSizeY() const { return double{d_->Get(&Plate::WellSizeY)}; }

void PlateWidget::setWellSizeY(double value) { d_->SetSubWell(&Plate::WellSizeY, value); }

double PlateWidget::rimWidth() const { return double{d_->Get(&Plate::RimWidth)}; }

void PlateWidget::setRimWidth(double value) { d_->SetSubWell(&Plate::RimWidth, value); }

double PlateWidget::rimHeight() const { return double{d_->Get(&Plate::RimHeight)}; }

void PlateWidget::setRimHeight(double value) { d_->SetSubWell(&Plate::RimHeight, value); }

double PlateWidget::xOffset() const { return double{d_->Get(&Plate::xOffset)}; }

void PlateWidget::setXOffset(double value) { d_->SetSubWell(&Plate::xOffset, value); }

double PlateWidget::yOffset() const { return double{d_->Get(&Plate::yOffset)}; }

void PlateWidget::setYOffset(double value) { d_->SetSubWell(&Plate::yOffset, value); }

double PlateWidget::initialVolume() const { return double{d_->Get(&Plate::InitialVolume)}; }

void PlateWidget::setInitialVolume(double value) { d_->Set(&Plate::InitialVolume, value); }

// Selection.

QList<int> PlateWidget::selectedWells() const {
    QList<int> wells;
    for (int well = 0; well < totalWells(); ++well)
        if (isSelected(well)) wells += well;
    return wells;
}

void PlateWidget::setSelectedWells(const QList<int>& wells) {
    std::vector<Integer> present;
    for (const int well : wells)
        if (well >= 0 && well < totalWells()) present.push_back(static_cast<Integer>(well));
    d_->steps.Run(
        [&] { d_->observer.Gather([&] { SelectionAids(plate()).SelectWells(present); }); });
}

int PlateWidget::nSelected() const { return plate().NSelected(); }

bool PlateWidget::isSelected(int wellNo) const { return d_->Get(&Plate::IsSelected, wellNo); }

void PlateWidget::setWell(int row, int col, const QString& subWell, SelectAction action) {
    d_->steps.Run([&] {
        plate().SetWell(Checked(row), Checked(col), subWell.toStdString(),
                        static_cast<WellSelectAction>(action));
    });
}

void PlateWidget::selectWell(int wellNo, bool on) { d_->Set(&Plate::SelectWell, wellNo, on); }

void PlateWidget::selectAll(bool on) { d_->Set(&Plate::SelectAll, on); }

void PlateWidget::clearSelection() {
    d_->steps.Run([this] { plate().ClearSelection(); });
}

void PlateWidget::setSelectBoxEnabled(bool on) { d_->Set(&Plate::SelectBoxEnabled, on); }

QRect PlateWidget::array() const {
    return {plate().ArrayX(), plate().ArrayY(), plate().ArrayWidth(), plate().ArrayHeight()};
}

QString PlateWidget::arraySubwell() const { return d_->GetText(&Plate::ArraySubwell); }

void PlateWidget::setArray(int x, int y, int width, int height, const QString& subWell,
                           FillOrder direction, const QColor& color) {
    d_->steps.Run([&] {
        plate().SetArray(Checked(x), Checked(y), Checked(width), Checked(height),
                         subWell.toStdString(), static_cast<Long>(direction),
                         ToLong(color, kNoColor));
    });
}

void PlateWidget::fillArray(const QColor& color, const QString& annotation, int startWell,
                            int stopWell) {
    d_->steps.Run([&] {
        plate().FillArray(ToLong(color, kNoColor),
                          annotation.isNull() ? kNoValue : annotation.toStdString(),
                          Checked(startWell), Checked(stopWell));
    });
}

// Data of any well.

QString PlateWidget::text(int wellNo) const { return ShownText(d_->Get(&Plate::Text, wellNo)); }

void PlateWidget::setText(int wellNo, const QString& text) { d_->Set(&Plate::Text, wellNo, text); }

int PlateWidget::errorCode(int wellNo) const { return d_->Get(&Plate::ErrorCode, wellNo); }

void PlateWidget::setErrorCode(int wellNo, int code) { d_->Set(&Plate::ErrorCode, wellNo, code); }

double PlateWidget::volume(int wellNo) const { return double{d_->Get(&Plate::GetVolume, wellNo)}; }

void PlateWidget::setVolume(int wellNo, double volume) {
    d_->Set(&Plate::SetVolume, wellNo, volume);
}

QString PlateWidget::wellAnnotation(int wellNo) const {
    return ShownText(d_->Get(&Plate::WellAnnotation, wellNo));
}

void PlateWidget::setWellAnnotation(int wellNo, const QString& caption) {
    d_->Set(&Plate::WellAnnotation, wellNo, caption);
}

bool PlateWidget::isDefined(int wellNo) const { return d_->Get(&Plate::IsDefined, wellNo); }

void PlateWidget::setIsDefined(int wellNo, bool on) { d_->Set(&Plate::IsDefined, wellNo, on); }

QColor PlateWidget::wellFill(int wellNo) const {
    if (wellNo < 0 || wellNo >= totalWells()) return {};
    return ShownColor(d_->Get(&Plate::WellFill, wellNo));
}

void PlateWidget::setWellFill(int wellNo, const QColor& color) {
    d_->Set(&Plate::WellFill, wellNo, ToLong(color, plate().DefaultWellColor()));
}

QColor PlateWidget::rimFill(int wellNo) const {
    if (wellNo < 0 || wellNo >= totalWells()) return {};
    return ShownColor(d_->Get(&Plate::RimFill, wellNo));
}

void PlateWidget::setRimFill(int wellNo, const QColor& color) {
    d_->Set(&Plate::RimFill, wellNo, ToLong(color, plate().DefaultRimColor()));
}

} // namespace zorvane
