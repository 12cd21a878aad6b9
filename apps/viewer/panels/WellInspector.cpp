#include "apps/viewer/panels/WellInspector.h"

#include "apps/viewer/PlateSession.h"
#include "apps/viewer/widgets/ColorButton.h"
#include "apps/viewer/widgets/UndoKeys.h"
#include "hosts/qt/QtPalette.h"
#include "runtime/NumberText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <limits>

namespace zorvane::viewer {

namespace {

constexpr double kMostVolume = 1e6;

QLabel* ValueLabel(const QString& accessibleName) {
    auto* label = new QLabel;
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setAccessibleName(accessibleName);
    return label;
}

QString Millimetres(Single length) {
    const QString number = QString::fromStdString(FormatPicture(double{length}, "0.00"));
    return WellInspector::tr("%1 mm").arg(number);
}

QColor ColorOf(Long color, const QPalette& palette) {
    return ToColor(Resolve(color, SystemColors(palette)));
}

void SetText(QLineEdit& field, const String& text) {
    const QString shown = QString::fromStdString(text);
    if (field.text() == shown) return;
    field.setText(shown);
    field.setCursorPosition(0); // a long text shows how it begins
}

} // namespace

WellInspector::WellInspector(PlateSession& session, QWidget* parent)
    : QWidget(parent), session_(session), legend_(new QLabel), location_(new QLabel),
      fields_(new QWidget) {
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    legend_->setFont(large);
    legend_->setTextFormat(Qt::PlainText);
    location_->setTextFormat(Qt::PlainText);
    location_->setWordWrap(true);
    location_->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* form = new QFormLayout(fields_);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    AddDataFields(*form);
    AddColorFields(*form);
    AddPlaceFields(*form);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(legend_);
    layout->addWidget(location_);
    layout->addSpacing(8);
    layout->addWidget(fields_);
    layout->addStretch(1);

    ConnectFields();
    connect(&session, &PlateSession::subWellsChanged, this, &WellInspector::ListSubWells);
    connect(&session, &PlateSession::changed, this, &WellInspector::Refresh);
    Refresh();
}

void WellInspector::AddDataFields(QFormLayout& form) {
    form.addRow(tr("S&ub-well"), subWell_ = new QComboBox);
    form.addRow(QString(), defined_ = new QCheckBox(tr("&Defined")));
    defined_->setToolTip(tr("A solution has been defined for this well"));
    form.addRow(tr("Vo&lume"), volume_ = new QDoubleSpinBox);
    volume_->setRange(-kMostVolume, kMostVolume);
    volume_->setDecimals(3);
    volume_->setSuffix(tr(" µl"));
    volume_->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    volume_->setKeyboardTracking(false);
    form.addRow(tr("&Text"), text_ = new QLineEdit);
    text_->setToolTip(tr("Shown as the tooltip of the well"));
    form.addRow(tr("Error &code"), errorCode_ = new QSpinBox);
    using Limits = std::numeric_limits<Integer>;
    errorCode_->setRange(Limits::min(), Limits::max());
    errorCode_->setKeyboardTracking(false);
    form.addRow(tr("A&nnotation"), annotation_ = new QLineEdit);
    annotation_->setToolTip(tr("Written on the well"));
}

void WellInspector::AddColorFields(QFormLayout& form) {
    form.addRow(QString(), selected_ = new QCheckBox(tr("&Selected")));
    form.addRow(tr("&Bottom"), bottom_ = new ColorButton(tr("Bottom colour")));
    form.addRow(tr("&Rim"), rim_ = new ColorButton(tr("Rim colour")));
}

void WellInspector::AddPlaceFields(QFormLayout& form) {
    form.addRow(tr("X"), x_ = ValueLabel(tr("X")));
    form.addRow(tr("Y"), y_ = ValueLabel(tr("Y")));
    form.addRow(tr("Z"), z_ = ValueLabel(tr("Z")));
}

void WellInspector::ConnectFields() {
    Plate& plate = session_.Control();
    connect(subWell_, &QComboBox::activated, this, [this, &plate](int index) {
        session_.Edit([&] { plate.WellIndex(static_cast<Integer>(index + 1)); });
    });
    connect(selected_, &QCheckBox::clicked, this, [this, &plate](bool on) {
        if (const auto well = session_.CurrentWell())
            session_.Edit([&] { plate.SelectWell(*well, on); });
    });
    connect(defined_, &QCheckBox::clicked, this, [this, &plate](bool on) {
        Change(tr("Defined"), *defined_, [&](Integer well) { plate.IsDefined(well, on); });
    });
    connect(volume_, &QDoubleSpinBox::valueChanged, this, [this, &plate](double volume) {
        Change(tr("Volume"), *volume_,
               [&](Integer well) { plate.SetVolume(well, static_cast<Single>(volume)); });
    });
    connect(text_, &QLineEdit::textEdited, this, [this, &plate](const QString& text) {
        Change(tr("Text"), *text_, [&](Integer well) { plate.Text(well, text.toStdString()); });
    });
    connect(errorCode_, &QSpinBox::valueChanged, this, &WellInspector::WriteErrorCode);
    connect(annotation_, &QLineEdit::textEdited, this, [this, &plate](const QString& text) {
        Change(tr("Annotation"), *annotation_,
               [&](Integer well) { plate.WellAnnotation(well, text.toStdString()); });
    });
    connect(bottom_, &ColorButton::chosen, this, [this, &plate](const QColor& color) {
        Change(tr("Bottom Colour"), *bottom_,
               [&](Integer well) { plate.WellFill(well, ToLong(color, 0)); });
    });
    connect(rim_, &ColorButton::chosen, this, [this, &plate](const QColor& color) {
        Change(tr("Rim Colour"), *rim_,
               [&](Integer well) { plate.RimFill(well, ToLong(color, 0)); });
    });
    ConnectHistory();
}

/// Leaving a field ends its step. Its keys for undo and redo are the window's, unless what has been
/// typed is not in the well yet, or a plate type is edited.
void WellInspector::ConnectHistory() {
    const auto inspects = [this] { return !session_.Control().EditEnable(); };
    const auto endStep = [this] { session_.History().EndStep(); };
    for (QLineEdit* field : {text_, annotation_}) {
        connect(field, &QLineEdit::editingFinished, this, endStep);
        new UndoKeys(*field, inspects);
    }
    for (QAbstractSpinBox* field :
         {static_cast<QAbstractSpinBox*>(volume_), static_cast<QAbstractSpinBox*>(errorCode_)})
        connect(field, &QAbstractSpinBox::editingFinished, this, endStep);
    new UndoKeys(*volume_, [this, inspects] {
        return inspects() && volume_->cleanText() == volume_->textFromValue(volume_->value());
    });
    new UndoKeys(*errorCode_, [this, inspects] {
        return inspects() && errorCode_->cleanText().toInt() == errorCode_->value();
    });
}

void WellInspector::Change(const QString& name, const QWidget& field,
                           const std::function<void(Integer well)>& change) {
    const auto well = session_.CurrentWell();
    if (!well) return;
    session_.EditWells(
        name, [&] { change(*well); }, &field);
}

// An error code does not colour a well by itself; marking the well as defined does.
void WellInspector::WriteErrorCode(int code) {
    Change(tr("Error Code"), *errorCode_, [&](Integer well) {
        session_.Control().ErrorCode(well, static_cast<Integer>(code));
        if (session_.Control().IsDefined(well)) session_.Control().IsDefined(well, true);
    });
}

void WellInspector::ListSubWells() {
    subWell_->clear();
    for (const String& name : session_.Names().SubWells())
        subWell_->addItem(QString::fromStdString(name));
    Refresh();
}

void WellInspector::Refresh() {
    const auto well = session_.CurrentWell();
    fields_->setEnabled(well.has_value());
    legend_->setText(well ? QString::fromStdString(session_.Names().Position(*well)) : tr("–"));
    location_->setText(well ? PlaceOf(session_.Control()) : tr("No well is chosen."));
    if (well) ShowWell(*well);
}

/// What the control calls the location, in numbers that people count with.
QString WellInspector::PlaceOf(const Plate& plate) {
    return tr("%1 · row %2, column %3")
        .arg(QString::fromStdString(plate.SubWell()))
        .arg(plate.Row() + 1)
        .arg(plate.Col() + 1);
}

void WellInspector::ShowWell(Integer well) {
    const Plate& plate = session_.Control();
    const QSignalBlocker quietVolume(volume_);
    const QSignalBlocker quietError(errorCode_);
    subWell_->setCurrentIndex(plate.WellIndex() - 1);
    defined_->setChecked(plate.IsDefined(well));
    volume_->setValue(double{plate.GetVolume(well)});
    SetText(*text_, plate.Text(well));
    errorCode_->setValue(plate.ErrorCode(well));
    SetText(*annotation_, plate.WellAnnotation(well));
    selected_->setChecked(plate.IsSelected(well));

    bottom_->SetColor(ColorOf(session_.Coloring().OwnColor(well), palette()));
    rim_->SetColor(ColorOf(plate.RimFill(well), palette()));
    x_->setText(Millimetres(plate.CurrentWellX()));
    y_->setText(Millimetres(plate.CurrentWellY()));
    z_->setText(Millimetres(plate.CurrentWellZ()));
}

} // namespace zorvane::viewer
