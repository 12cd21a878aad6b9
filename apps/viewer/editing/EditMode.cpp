#include "apps/viewer/editing/EditMode.h"

#include "apps/viewer/PlateSession.h"
#include "apps/viewer/editing/DifferencePanel.h"
#include "apps/viewer/texts/ErrorText.h"
#include "library/ReplaceFile.h"

namespace zorvane::viewer {

namespace {

/// What is said of a command of the control's panel that failed.
QString CommandFailure(int number, const QString& description) {
    QString reason = description;
    switch (static_cast<ErrorNumber>(number)) {
    case ErrorNumber::InvalidProcedureCall:
    case ErrorNumber::SubscriptOutOfRange:
        reason = EditMode::tr("the plate has no such sub-well");
        break;
    case ErrorNumber::ObjectNotSet:
        reason = EditMode::tr("the sub-well has no lines of its own in the definition");
        break;
    case ErrorNumber::DuplicateKey:
        reason = EditMode::tr("the plate has a sub-well of that name already");
        break;
    case ErrorNumber::Overflow:
        reason = EditMode::tr("a value is too large");
        break;
    default:
        break;
    }
    return EditMode::tr("This could not be done: %1. Undo brings the plate back as it was.")
        .arg(reason);
}

} // namespace

EditMode::EditMode(PlateSession& session, DifferencePanel& panel, QWidget& window)
    : QObject(&window), session_(session), panel_(panel), questions_(window) {
    connect(&session.Widget(), &PlateWidget::panelChanged, this, &EditMode::Follow);
    connect(&session, &PlateSession::refused, this, [this](int number, const QString& text) {
        if (!IsOn()) return;
        panel_.ShowProblem(CommandFailure(number, text));
        Follow();
    });
    connect(&panel, &DifferencePanel::saveAsked, this, &EditMode::Save);
    connect(&panel, &DifferencePanel::saveAsAsked, this, &EditMode::SaveAs);
}

Plate& EditMode::Control() const { return session_.Control(); }

bool EditMode::HasUnsaved() const {
    if (!IsOn()) return false;
    // What has been typed is in the definition once it is applied.
    return !editor_.IsSaved() || Control().EditsPending();
}

bool EditMode::Start(const QString& library, const QString& plate) {
    const bool goesOn = IsOn();
    try {
        editor_.Begin(library.toStdString(), plate.toStdString());
    } catch (const RuntimeError& error) {
        emit failed(ErrorText(error));
        return false;
    }
    panel_.ShowProblem({});
    ShowPresent();
    OpenPanel();
    if (!goesOn) emit switched(true);
    return true;
}

void EditMode::Stop() {
    if (!IsOn()) return;
    editor_.End();
    session_.Widget().setEditEnable(false);
    session_.Widget().setDataVisible(false);
    emit changed();
    emit switched(false);
}

void EditMode::OpenPanel() {
    session_.Widget().setEditEnable(true);
    session_.Widget().setDataVisible(true);
}

bool EditMode::MayLeave() {
    if (!HasUnsaved()) return true;
    switch (questions_.AskUnsaved(QString::fromStdString(editor_.PlateName()))) {
    case EditQuestions::Unsaved::Save:
        return Save();
    case EditQuestions::Unsaved::Discard:
        return true;
    default:
        return false;
    }
}

/// Takes what has become of the plate in the control.
void EditMode::Follow() {
    if (!IsOn()) return;
    editor_.Take(Control().PlateClassText());
    panel_.Show(editor_.Difference(), HasUnsaved());
    emit changed();
}

/// Commits what has been typed, and what commands have changed.
void EditMode::Apply() {
    if (!Control().EditsPending()) return;
    session_.Edit([this] { Control().ApplyPressed(); });
}

void EditMode::ShowPresent() {
    const Integer page = Control().Elements().panel.comboSelect.position;
    session_.ShowDefinition(editor_.Text());
    OpenPanel();
    const auto pages = static_cast<Integer>(Control().Elements().panel.comboSelect.entries.size());
    if (page > 0 && page < pages) session_.Edit([&] { Control().PageChosen(page); });
    Follow();
}

void EditMode::Undo() {
    Follow();
    panel_.ShowProblem({});
    editor_.Undo();
    ShowPresent();
}

void EditMode::Redo() {
    Follow();
    panel_.ShowProblem({});
    editor_.Redo();
    ShowPresent();
}

bool EditMode::Save() {
    return Saving([this] { editor_.Save(); });
}

bool EditMode::SaveAs() {
    const QString proposal = QString::fromStdString(editor_.PlateName()) + QStringLiteral("_2");
    const QString name = questions_.AskName(proposal);
    if (name.isEmpty()) return false;
    return Saving([&] {
        editor_.SaveAs(name.toStdString());
        ShowPresent();
    });
}

bool EditMode::Saving(const std::function<void()>& save) {
    Apply();
    Follow();
    try {
        save();
    } catch (const RuntimeError& error) {
        return Resolve(error);
    }
    panel_.ShowProblem({});
    emit libraryChanged(QString::fromStdString(editor_.PlateName()));
    Follow();
    return true;
}

/// Nothing was saved. When the library was changed by somebody else, the operator has a choice.
bool EditMode::Resolve(const RuntimeError& error) {
    Report(error);
    if (!error.Is(ErrorNumber::ChangedOnDisk)) return false;
    switch (questions_.AskConflict(ErrorText(error))) {
    case EditQuestions::Conflict::Reload:
        Reload();
        return false;
    case EditQuestions::Conflict::SaveAs:
        return Reload() && SaveAs();
    default:
        return false;
    }
}

bool EditMode::Reload() {
    try {
        editor_.Reload();
    } catch (const RuntimeError& error) {
        Report(error);
        return false;
    }
    panel_.ShowProblem({});
    emit libraryChanged(QString::fromStdString(editor_.PlateName()));
    Follow();
    return true;
}

void EditMode::Report(const RuntimeError& error) { panel_.ShowProblem(ErrorText(error)); }

} // namespace zorvane::viewer
