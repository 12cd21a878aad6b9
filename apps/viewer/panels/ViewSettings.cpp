#include "apps/viewer/panels/ViewSettings.h"

#include "apps/viewer/PlateSession.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QSettings>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <utility>

namespace zorvane::viewer {

namespace {

constexpr double kLeastScale = 1;
constexpr double kMostScale = 1000;

QString KeyOf(const QString& property) { return QStringLiteral("view/") + property; }

QString ScaleKey() { return KeyOf(QStringLiteral("DrawingScale")); }

} // namespace

ViewSettings::ViewSettings(PlateSession& session, QWidget* parent)
    : QWidget(parent), session_(session) {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(10);
    AddSelection();
    AddLayout();
    AddAids();
    layout->addStretch(1);
    RestoreScale();
    connect(&session, &PlateSession::changed, this, &ViewSettings::Refresh);
    Refresh();
}

QVBoxLayout* ViewSettings::AddGroup(const QString& title) {
    auto* group = new QGroupBox(title);
    layout()->addWidget(group);
    return new QVBoxLayout(group);
}

void ViewSettings::Add(QVBoxLayout& group, const QString& text, const QString& property, bool on,
                       std::function<void(bool)> apply) {
    auto* box = new QCheckBox(text);
    box->setToolTip(property);
    box->setChecked(QSettings().value(KeyOf(property), on).toBool());
    apply(box->isChecked());
    connect(box, &QCheckBox::toggled, this, std::move(apply));
    connect(box, &QCheckBox::toggled, this,
            [property](bool now) { QSettings().setValue(KeyOf(property), now); });
    group.addWidget(box);
}

void ViewSettings::AddSelection() {
    PlateWidget& widget = session_.Widget();
    QVBoxLayout& group = *AddGroup(tr("Selection"));
    Add(group, tr("Select several wells"), QStringLiteral("MultipleSelect"), true,
        [&](bool on) { widget.setMultipleSelect(on); });
    Add(group, tr("Drag selected wells"), QStringLiteral("DragDrop"), true,
        [&](bool on) { widget.setDragDrop(on); });
    Add(group, tr("React to the mouse"), QStringLiteral("MouseEnabled"), true,
        [&](bool on) { widget.setMouseEnabled(on); });
    Add(group, tr("Frame selected block"), QStringLiteral("SelectBoxEnabled"), false,
        [&](bool on) { session_.SetSelectBoxEnabled(on); });
}

void ViewSettings::AddLayout() {
    PlateWidget& widget = session_.Widget();
    QVBoxLayout& group = *AddGroup(tr("Layout"));
    Add(group, tr("Fit plate to window"), QStringLiteral("FixedSize"), true, [&](bool on) {
        emit fixedSizeChanged(on);
        widget.setFixedSize(on);
    });
    Add(group, tr("Centre horizontally"), QStringLiteral("HorizontalCentred"), true,
        [&](bool on) { widget.setHorizontalCentred(on); });
    Add(group, tr("Centre vertically"), QStringLiteral("VerticalCentred"), false,
        [&](bool on) { widget.setVerticalCentred(on); });
    AddScale(group);
}

void ViewSettings::AddScale(QVBoxLayout& group) {
    scale_ = new QDoubleSpinBox;
    scale_->setRange(kLeastScale, kMostScale);
    scale_->setDecimals(1);
    scale_->setKeyboardTracking(false);
    scale_->setToolTip(tr("DrawingScale: drawing units (1440 an inch) per millimetre"));
    connect(scale_, &QDoubleSpinBox::valueChanged, this, [this](double scale) {
        session_.Widget().setDrawingScale(scale);
        QSettings().setValue(ScaleKey(), scale);
    });
    auto* label = new QLabel(tr("Sc&ale"));
    label->setBuddy(scale_);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(scale_, 1);
    group.addLayout(row);
}

void ViewSettings::RestoreScale() {
    const double scale = QSettings().value(ScaleKey(), 0).toDouble();
    if (session_.Widget().fixedSize() || scale < kLeastScale || scale > kMostScale) return;
    session_.Widget().setDrawingScale(scale);
}

void ViewSettings::AddAids() {
    using Aid = PlateWidget::Aid;
    const std::pair<Aid, QString> aids[] = {
        {Aid::ShiftExtendsSelection, tr("Shift extends selection")},
        {Aid::CtrlASelectsAll, tr("Ctrl+A selects all")},
        {Aid::EscapeClearsSelection, tr("Escape clears selection")},
        {Aid::LegendClickSelects, tr("Legends select their lines")},
        {Aid::HighlightLegends, tr("Legends light up")},
        {Aid::RichToolTips, tr("Detailed tooltips")},
        {Aid::ErrorMarks, tr("Mark errors")},
    };
    QVBoxLayout& group = *AddGroup(tr("Aids"));
    const QMetaEnum names = QMetaEnum::fromType<Aid>();
    for (const auto& [aid, text] : aids) {
        Add(group, text, QString::fromLatin1(names.valueToKey(static_cast<int>(aid))), true,
            [this, aid = aid](bool on) { session_.Widget().setAid(aid, on); });
    }
}

void ViewSettings::Refresh() {
    const QSignalBlocker quiet(scale_);
    scale_->setEnabled(!session_.Widget().fixedSize());
    scale_->setValue(session_.Widget().drawingScale());
}

} // namespace zorvane::viewer
