#include "apps/viewer/editing/EditQuestions.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

namespace zorvane::viewer {

EditQuestions::Unsaved EditQuestions::AskUnsaved(const QString& plate) const {
    QMessageBox box(QMessageBox::Question, tr("Plate Viewer"),
                    tr("The edits of %1 are not saved in its library.").arg(plate),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &window_);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return Unsaved::Save;
    case QMessageBox::Discard:
        return Unsaved::Discard;
    default:
        return Unsaved::Cancel;
    }
}

EditQuestions::Conflict EditQuestions::AskConflict(const QString& failure) const {
    QMessageBox box(QMessageBox::Warning, tr("Plate Viewer"), failure, QMessageBox::Cancel,
                    &window_);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("Reloading keeps your edits and compares them with what the library "
                              "holds now, so that you can save them into that."));
    const QPushButton* reload = box.addButton(tr("&Reload Library"), QMessageBox::AcceptRole);
    const QPushButton* saveAs = box.addButton(tr("Save as &New Plate…"), QMessageBox::ActionRole);
    box.exec();
    if (box.clickedButton() == reload) return Conflict::Reload;
    if (box.clickedButton() == saveAs) return Conflict::SaveAs;
    return Conflict::Cancel;
}

QString EditQuestions::AskName(const QString& proposal) const {
    return QInputDialog::getText(&window_, tr("Save as New Plate"),
                                 tr("Name of the new plate, one word:"), QLineEdit::Normal,
                                 proposal)
        .trimmed();
}

} // namespace zorvane::viewer
