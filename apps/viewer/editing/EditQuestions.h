#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;

namespace zorvane::viewer {

/// What editing asks of the operator, in dialogs over a window. Each call returns once it is
/// answered.
class EditQuestions {
    Q_DECLARE_TR_FUNCTIONS(EditQuestions)

  public:
    enum class Unsaved { Save, Discard, Cancel };
    enum class Conflict { Reload, SaveAs, Cancel };

    explicit EditQuestions(QWidget& window) : window_(window) {}

    /// Edits of this plate would be lost.
    Unsaved AskUnsaved(const QString& plate) const;
    /// A save found that the library has changed; `failure` describes it.
    Conflict AskConflict(const QString& failure) const;
    /// The name of a new plate; empty when there is to be none.
    QString AskName(const QString& proposal) const;

  private:
    QWidget& window_;
};

} // namespace zorvane::viewer
