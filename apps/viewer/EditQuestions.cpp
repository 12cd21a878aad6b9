#include "apps/viewer/EditQuestions.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

namespace zorvane {

namespace {

QString Tr(const char* text) { return QObject::tr(text); }

EditQuestions::Unsaved AskUnsaved(QWidget& window, const QString& plate) {
    QMessageBox box(QMessageBox::Question, Tr("Plate Viewer"),
                    Tr("The edits of %1 are not saved in its library.").arg(plate),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &window);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return EditQuestions::Unsaved::Save;
    case QMessageBox::Discard:
        return EditQuestions::Unsaved::Discard;
    default:
        return EditQuestions::Unsaved::Cancel;
    }
}

EditQuestions::Conflict AskConflict(QWidget& window, const QString& failure) {
    QMessageBox box(QMessageBox::Warning, Tr("Plate Viewer"), failure, QMessageBox::Cancel,
                    &window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(Tr("Reloading keeps your edits and compares them with what the library "
                              "holds now, so that you can save them into that."));
    const QPushButton* reload = box.addButton(Tr("&Reload Library"), QMessageBox::AcceptRole);
    const QPushButton* saveAs = box.addButton(Tr("Save as &New Plate…"), QMessageBox::ActionRole);
    box.exec();
    if (box.clickedButton() == reload) return EditQuestions::Conflict::Reload;
    if (box.clickedButton() == saveAs) return EditQuestions::Conflict::SaveAs;
    return EditQuestions::Conflict::Cancel;
}

} // namespace

EditQuestions EditQuestions::Over(QWidget& window) {
    return {[&window](const QString& plate) { return AskUnsaved(window, plate); },
            [&window](const QString& failure) { return AskConflict(window, failure); },
            [&window](const QString& proposal) {
                return QInputDialog::getText(&window, Tr("Save as New Plate"),
                                             Tr("Name of the new plate, one word:"),
                                             QLineEdit::Normal, proposal)
                    .trimmed();
            }};
}

} // namespace zorvane
