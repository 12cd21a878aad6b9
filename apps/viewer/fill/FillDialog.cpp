#include "apps/viewer/fill/FillDialog.h"

#include "apps/viewer/PlateSession.h"
#include "apps/viewer/fill/WalkPreview.h"
#include "apps/viewer/texts/ErrorText.h"
#include "apps/viewer/widgets/ColorButton.h"
#include "apps/viewer/widgets/Notice.h"
#include "hosts/qt/QtPalette.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>
#include <limits>

namespace zorvane::viewer {

namespace {

constexpr int kMost = std::numeric_limits<Integer>::max();
constexpr int kToTheEnd = 0; // how the field for the last number says so

Integer Short(int value) { return static_cast<Integer>(value); }

QSpinBox* NumberField(int least, const QString& toolTip) {
    auto* field = new QSpinBox;
    field->setRange(least, kMost);
    field->setToolTip(toolTip);
    return field;
}

} // namespace

FillDialog::FillDialog(PlateSession& session, QWidget* parent)
    : QDialog(parent), session_(session), preview_(new WalkPreview), notice_(new Notice) {
    setWindowTitle(tr("Fill a Block of Wells"));
    auto* form = new QFormLayout;
    form->addRow(tr("Block"), MakeBlockFields());
    AddFillFields(*form);
    AddRangeFields(*form);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Fill"));
    connect(buttons, &QDialogButtonBox::accepted, this, &FillDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &FillDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addLayout(form);
    layout->addWidget(preview_, 1);
    layout->addWidget(notice_);
    layout->addWidget(buttons);
    SetBlock(SuggestedBlock(session.Control()));
}

QWidget* FillDialog::MakeBlockFields() {
    auto* fields = new QWidget;
    auto* grid = new QGridLayout(fields);
    grid->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](int row, int column, const QString& text, QSpinBox* field) {
        auto* label = new QLabel(text);
        label->setBuddy(field);
        grid->addWidget(label, row, 2 * column);
        grid->addWidget(field, row, 2 * column + 1);
        grid->setColumnStretch(2 * column + 1, 1);
        connect(field, &QSpinBox::valueChanged, this, &FillDialog::ShowWalk);
        return field;
    };
    x_ = add(0, 0, tr("&Column"), NumberField(1, tr("First column, counted from 1")));
    y_ = add(0, 1, tr("&Row"), NumberField(1, tr("First row, counted from 1")));
    width_ = add(1, 0, tr("&Width"), NumberField(1, tr("Number of columns")));
    height_ = add(1, 1, tr("&Height"), NumberField(1, tr("Number of rows")));
    return fields;
}

void FillDialog::AddFillFields(QFormLayout& form) {
    form.addRow(tr("S&ub-well"), subWell_ = new QComboBox);
    for (const String& name : session_.Names().SubWells())
        subWell_->addItem(QString::fromStdString(name));
    subWell_->setCurrentIndex(std::max(0, session_.Control().WellIndex() - 1));

    form.addRow(tr("&Order"), order_ = new QComboBox);
    order_->addItems({tr("From top left, row by row"), tr("From top left, column by column"),
                      tr("From top right, row by row"), tr("From top right, column by column"),
                      tr("From bottom left, row by row"), tr("From bottom left, column by column"),
                      tr("From bottom right, row by row"),
                      tr("From bottom right, column by column")});
    connect(order_, &QComboBox::currentIndexChanged, this, &FillDialog::ShowWalk);

    form.addRow(colored_ = new QCheckBox(tr("Co&lour")),
                color_ = new ColorButton(tr("Colour of the wells")));
    color_->SetColor(QColor(0x9f, 0xc5, 0xe8));
    color_->setEnabled(false);
    connect(colored_, &QCheckBox::toggled, color_, &QWidget::setEnabled);

    form.addRow(annotated_ = new QCheckBox(tr("&Annotation")),
                annotation_ = new QLineEdit(QStringLiteral("#")));
    annotated_->setChecked(true);
    annotation_->setAccessibleName(tr("Annotation"));
    annotation_->setToolTip(tr("The first # becomes the number of the well in the order"));
    connect(annotated_, &QCheckBox::toggled, annotation_, &QWidget::setEnabled);
}

void FillDialog::AddRangeFields(QFormLayout& form) {
    form.addRow(tr("F&irst number"),
                start_ = NumberField(1, tr("Wells before it stay as they are")));
    form.addRow(tr("Las&t number"),
                stop_ = NumberField(kToTheEnd, tr("Wells after it stay as they are")));
    stop_->setSpecialValueText(tr("to the end"));
    connect(start_, &QSpinBox::valueChanged, this, &FillDialog::ShowWalk);
    connect(stop_, &QSpinBox::valueChanged, this, &FillDialog::ShowWalk);
}

void FillDialog::SetBlock(const FillBlock& block) {
    x_->setValue(block.x + 1);
    y_->setValue(block.y + 1);
    width_->setValue(block.width);
    height_->setValue(block.height);
    ShowWalk();
}

int FillDialog::Stop() const { return stop_->value() == kToTheEnd ? -1 : stop_->value(); }

void FillDialog::ShowWalk() {
    notice_->Show({});
    preview_->Show(
        {static_cast<ArrayFillOrder>(order_->currentIndex()), width_->value(), height_->value()},
        start_->value(), Stop());
}

void FillDialog::Fill() {
    Plate& plate = session_.Control();
    plate.SetArray(Short(x_->value() - 1), Short(y_->value() - 1), Short(width_->value()),
                   Short(height_->value()), subWell_->currentText().toStdString(),
                   order_->currentIndex());
    plate.FillArray(colored_->isChecked() ? ToLong(color_->Color(), kNoColor) : kNoColor,
                    annotated_->isChecked() ? annotation_->text().toStdString() : String(kNoValue),
                    Short(start_->value()), Short(Stop()));
}

void FillDialog::accept() {
    const auto before = session_.Control().CurrentWell();
    QString problem;
    session_.EditWells(tr("Fill"), [&] {
        Plate& plate = session_.Control();
        try {
            Fill();
        } catch (const RuntimeError& error) {
            problem = tr("Error %1: %2.\nThe plate has columns 1 to %3 and rows 1 to %4. "
                         "Nothing was filled.")
                          .arg(error.Number())
                          .arg(ErrorText(error))
                          .arg(plate.Cols)
                          .arg(plate.Rows);
            plate.CurrentWell(before);
        }
    });
    if (problem.isEmpty()) return QDialog::accept();
    notice_->Show(problem);
}

QString FillDialog::Problem() const { return notice_->Text(); }

} // namespace zorvane::viewer
