#include "hosts/qt/PlateWidget.h"

#include "hosts/qt/QtProcess.h"
#include "hosts/qt/Units.h"
#include "hosts/qt/accessible/PlateAccessible.h"
#include "hosts/qt/widget/PlateWidgetParts.h"

#include <QHelpEvent>
#include <QMetaMethod>

namespace zorvane {

PlateWidget::PlateWidget(QWidget* parent) : QWidget(parent) {
    QtProcess::UseByDefault();
    PlateAccessible::Install();
    d_ = new Parts(*this);
    connect(this, &PlateWidget::currentWellChanged, this,
            [this] { PlateAccessible::AnnounceCurrentWell(*this); });
    connect(this, &PlateWidget::selectionChanged, this,
            [this] { PlateAccessible::AnnounceSelection(*this); });

    setMouseTracking(true);
    // A press takes the focus where the control says so.
    setFocusPolicy(Qt::TabFocus);
    setMaximumSize(kLongestSide, kLongestSide);
    resize(d_->sizing.Asked());
}

// The focus may move from one part to another while they go, so d_ stays valid until the end.
PlateWidget::~PlateWidget() { delete d_; }

Plate& PlateWidget::plate() { return d_->plate; }

const Plate& PlateWidget::plate() const { return d_->plate; }

void PlateWidget::setMessageHandler(MessageHandler handler) {
    QtMessages::handler = std::move(handler);
}

bool PlateWidget::ReportsFailures() const {
    return isSignalConnected(QMetaMethod::fromSignal(&PlateWidget::failed));
}

bool PlateWidget::load(const QString& plateName, const QString& library, QString* why) {
    const auto hosted = d_->hosted; // a slot may destroy the widget
    d_->requestedPlateName = plateName;
    return d_->Load(
        [&] { return hosted->plate.SetPlate(plateName.toStdString(), library.toStdString()); },
        why);
}

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
    if (plateName().isEmpty()) resetPlateName();
}

void PlateWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) d_->ShowDataButton();
    if (event->type() == QEvent::LanguageChange) d_->NameControls();
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
