#include "hosts/qt/PlateWidget.h"

#include "hosts/qt/PlateSignals.h"
#include "hosts/qt/PlateSizing.h"
#include "hosts/qt/QtPalette.h"
#include "hosts/qt/QtProcess.h"
#include "hosts/qt/Units.h"
#include "hosts/qt/WidgetPainter.h"
#include "hosts/qt/accessible/PlateAccessible.h"
#include "hosts/qt/input/PlateInput.h"
#include "hosts/qt/panel/DetailsButton.h"
#include "hosts/qt/panel/PanelMirror.h"

#include <QFileInfo>
#include <QHelpEvent>

namespace zorvane {

namespace {

constexpr const char* kFirstPlate = "No_Plate";

} // namespace

struct PlateWidget::Parts {
    explicit Parts(PlateWidget& widget)
        : hosted(std::make_shared<HostedPlate>(widget)), plate(hosted->plate),
          steps(widget, hosted), painter(widget, *hosted, steps),
          input(widget, plate, painter, steps), dataButton(widget), panel(widget, plate, steps),
          sizing(widget, plate, panel, steps), observer(widget, plate) {
        QtSite& site = hosted->site;
        site.MenuButton(panel.MenuButton());
        connect(&site, &QtSite::repaintAsked, &dataButton,
                [this](const Rect& area) { painter.Repaint(area, input.InGesture()); });
        connect(&site, &QtSite::sizeAsked, &dataButton, [this](QSize size) { sizing.Take(size); });
        connect(&site, &QtSite::dataButtonFocusAsked, &dataButton,
                [this] { dataButton.setFocus(Qt::OtherFocusReason); });
        connect(&site, &QtSite::dataButtonChanged, &dataButton, [this] { ShowDataButton(); });
        connect(&site, &QtSite::panelChanged, &panel, &PanelMirror::Changed);
        connect(&panel, &PanelMirror::changed, &widget, &PlateWidget::panelChanged);
        connect(&dataButton, &QPushButton::clicked, &dataButton,
                [this] { steps.Run([this] { plate.DataButtonPressed(); }); });
        ShowDataButton();
        dataButton.raise(); // the panel leaves room for it
    }

    void ShowDataButton() { dataButton.Show(plate.Elements().cmdData); }

    std::shared_ptr<HostedPlate> hosted;
    Plate& plate;
    StepRunner steps;
    Aids aids;
    WidgetPainter painter;
    PlateInput input;
    // Widgets go before what answers the events that their going causes.
    DetailsButton dataButton;
    PanelMirror panel;
    PlateSizing sizing;
    PlateSignals observer;
};

PlateWidget::PlateWidget(QWidget* parent) : QWidget(parent) {
    QtProcess::UseByDefault();
    PlateAccessible::Install();
    d_ = new Parts(*this);
    connect(this, &PlateWidget::currentWellChanged, this,
            [this] { PlateAccessible::AnnounceCurrentWell(*this); });

    setMouseTracking(true);
    // A press takes the focus where the control says so.
    setFocusPolicy(Qt::TabFocus);
    setMaximumSize(kLongestSide, kLongestSide);
    resize(sizeHint());
}

// The focus may move from one part to another while they go, so d_ stays valid until the end.
PlateWidget::~PlateWidget() { delete d_; }

Plate& PlateWidget::plate() { return d_->plate; }

const Plate& PlateWidget::plate() const { return d_->plate; }

QString PlateWidget::fileName() const { return QString::fromStdString(plate().FileName); }

void PlateWidget::setFileName(const QString& name) { plate().FileName = name.toStdString(); }

QString PlateWidget::plateName() const { return QString::fromStdString(plate().PlateName()); }

void PlateWidget::setPlateName(const QString& name) {
    d_->steps.Run([&] { plate().PlateName(name.toStdString()); });
}

bool PlateWidget::fixedSize() const { return plate().FixedSize; }

void PlateWidget::setFixedSize(bool on) {
    plate().FixedSize = on;
    d_->sizing.LayOut();
}

double PlateWidget::drawingScale() const { return double{plate().DrawingScale()}; }

void PlateWidget::setDrawingScale(double scale) {
    d_->steps.Run([&] { plate().DrawingScale(static_cast<Single>(scale)); });
}

bool PlateWidget::horizontalCentred() const { return plate().HorizontalCentred; }

void PlateWidget::setHorizontalCentred(bool on) {
    plate().HorizontalCentred = on;
    d_->sizing.LayOut();
}

bool PlateWidget::verticalCentred() const { return plate().VerticalCentred; }

void PlateWidget::setVerticalCentred(bool on) {
    plate().VerticalCentred = on;
    d_->sizing.LayOut();
}

bool PlateWidget::refitOnResize() const { return d_->sizing.RefitOnResize(); }

void PlateWidget::setRefitOnResize(bool on) { d_->sizing.RefitOnResize(on); }

QColor PlateWidget::defaultRimColor() const { return ShownColor(plate().DefaultRimColor()); }

void PlateWidget::setDefaultRimColor(const QColor& color) {
    plate().DefaultRimColor(ToLong(color, kDefaultWellColor));
}

QColor PlateWidget::defaultWellColor() const { return ShownColor(plate().DefaultWellColor()); }

void PlateWidget::setDefaultWellColor(const QColor& color) {
    plate().DefaultWellColor(ToLong(color, kDefaultWellColor));
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

void PlateWidget::setMouseEnabled(bool on) { plate().MouseEnabled(on); }

bool PlateWidget::editEnable() const { return plate().EditEnable(); }

void PlateWidget::setEditEnable(bool on) { plate().EditEnable(on); }

bool PlateWidget::dataVisible() const { return plate().DataVisible(); }

void PlateWidget::setDataVisible(bool on) {
    d_->steps.Run([&] { plate().DataVisible(on); });
}

PlateWidget::Aids PlateWidget::aids() const { return d_->aids; }

void PlateWidget::setAids(Aids aids) {
    d_->aids = aids;
    update();
}

int PlateWidget::wellAt(QPointF position) const { return d_->input.WellAt(position); }

QSize PlateWidget::sizeHint() const { return d_->sizing.Asked(); }

bool PlateWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    d_->input.ShowToolTip(static_cast<const QHelpEvent&>(*event));
    return true;
}

void PlateWidget::paintEvent(QPaintEvent* event) { d_->painter.Paint(*event); }

void PlateWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    d_->sizing.Resized();
}

void PlateWidget::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (plateName().isEmpty() && QFileInfo::exists(fileName())) setPlateName(kFirstPlate);
}

void PlateWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) d_->ShowDataButton();
    d_->panel.Sync();
    update(); // colours, font and style all show
}

void PlateWidget::mousePressEvent(QMouseEvent* event) { d_->input.Press(*event); }

void PlateWidget::mouseMoveEvent(QMouseEvent* event) { d_->input.Move(*event); }

void PlateWidget::mouseReleaseEvent(QMouseEvent* event) { d_->input.Release(*event); }

void PlateWidget::mouseDoubleClickEvent(QMouseEvent* event) { d_->input.DoubleClick(*event); }

void PlateWidget::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    d_->input.Leave();
}

void PlateWidget::keyPressEvent(QKeyEvent* event) { d_->input.KeyPress(*event); }

void PlateWidget::keyReleaseEvent(QKeyEvent* event) { d_->input.KeyRelease(*event); }

void PlateWidget::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    d_->painter.ShowFocusRing(event->reason() != Qt::MouseFocusReason);
}

void PlateWidget::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    d_->painter.ShowFocusRing(false);
}

} // namespace zorvane
