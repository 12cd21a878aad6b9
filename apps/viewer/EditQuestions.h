#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace zorvane {

/// What editing asks of the operator. Each returns once it is answered.
struct EditQuestions {
    enum class Unsaved { Save, Discard, Cancel };
    enum class Conflict { Reload, SaveAs, Cancel };

    /// Edits of this plate would be lost.
    std::function<Unsaved(const QString& plate)> unsaved;
    /// A save found that the library has changed, with the failure in words.
    std::function<Conflict(const QString& failure)> conflict;
    /// The name of a new plate; empty when there is to be none.
    std::function<QString(const QString& proposal)> name;

    /// The questions as dialogs over a window.
    static EditQuestions Over(QWidget& window);
};

} // namespace zorvane
