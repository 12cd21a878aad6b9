#include "hosts/qt/panel/PanelRows.h"

#include "hosts/qt/QtPalette.h"
#include "hosts/qt/panel/PanelControls.h"
#include "hosts/qt/panel/PanelText.h"
#include "hosts/qt/texts/ControlText.h"

#include <QScrollArea>

#include <utility>

namespace zorvane {

PanelRows::PanelRows(const QWidget& frame, QScrollArea& view, std::vector<QWidget*> above)
    : frame_(frame), view_(view), above_(std::move(above)) {}

bool PanelRows::Show(const PanelElements& panel, const SystemPalette& colors, int wider) {
    const bool grows = rows_.size() < panel.txtData.size();
    // The comments page leaves the rows of the page before it in place, under its text box.
    const bool covered = panel.txtComment.visible;
    while (rows_.size() < panel.txtData.size())
        Add();
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const RowCaption& caption = panel.lblAnnotation[i];
        const TextBox& box = panel.txtData[i];
        QLabel& label = *rows_[i].caption;
        label.setGeometry(
            InView({caption.box.left, caption.box.top, box.box.left - 30, caption.box.height}));
        label.setText(WithoutMnemonic(ControlText(caption.caption)));
        label.setVisible(caption.visible && !covered);

        RowEdit& text = *rows_[i].text;
        // The frame goes around the box, which has no room for one.
        text.setGeometry(InView(box.box, wider).adjusted(0, -1, 0, 1));
        text.setAlignment((box.rightAligned ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        SetColor(text, QPalette::Base, ToColor(Resolve(box.back, colors)));
        ShowText(rows_[i], caption, box);
        text.setVisible(box.visible && !covered);
    }
    if (grows) Stack();
    return grows;
}

std::vector<QWidget*> PanelRows::TextBoxes() const {
    std::vector<QWidget*> boxes;
    for (const Row& row : rows_)
        boxes.push_back(row.text);
    return boxes;
}

void PanelRows::Add() {
    const std::size_t number = rows_.size();
    const Row row{new QLabel(view_.widget()), new RowEdit(view_.widget())};
    row.caption->setBuddy(row.text);
    rows_.push_back(row);
    connect(row.text, &QLineEdit::textEdited, this,
            [this, number](const QString& text) { emit edited(static_cast<int>(number), text); });
    connect(row.text, &RowEdit::focusGained, this, [this, number] { BringForward(rows_[number]); });
    connect(row.text, &RowEdit::focusLost, this, &PanelRows::Stack);
}

// Setting a text empties its undo history, so that what was typed for one property can't come back
// in the row of another.
void PanelRows::ShowText(Row& row, const RowCaption& caption, const TextBox& box) {
    const QString name = ControlText(caption.caption);
    const QString text = ShownText(box.text);
    const bool same = row.text->isVisibleTo(frame_.parentWidget()) && row.property == caption.Tag &&
                      row.text->accessibleName() == name;
    row.property = caption.Tag;
    if (row.text->accessibleName() != name) row.text->setAccessibleName(name);
    if (!same || row.text->text() != text) row.text->setText(text);
}

/// Brings the row that has the focus to the front and scrolls it into sight.
void PanelRows::BringForward(const Row& row) {
    Stack();
    row.caption->setAutoFillBackground(true);
    row.caption->raise();
    row.text->raise();
    view_.ensureWidgetVisible(row.text, 0, 4);
}

void PanelRows::Stack() {
    for (const Row& row : rows_) {
        // A caption that lies over another one hides it.
        const bool over = &row != rows_.data() && row.text->y() == rows_.front().text->y();
        row.caption->setAutoFillBackground(over);
        row.caption->raise();
        row.text->raise();
    }
    for (QWidget* const widget : above_)
        widget->raise();
}

} // namespace zorvane
