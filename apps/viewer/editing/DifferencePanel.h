#pragma once

#include "library/LineDifference.h"

#include <QWidget>

#include <vector>

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace zorvane::viewer {

class Notice;

/// Shows what saving an edited definition changes in its library, and offers to save it.
class DifferencePanel final : public QWidget {
    Q_OBJECT

  public:
    explicit DifferencePanel(QWidget* parent = nullptr);

    /// `edited`: whether there is something to save.
    void Show(const std::vector<ChangedLine>& lines, bool edited);
    /// Shows what went wrong until the next text; empty text hides it.
    void ShowProblem(const QString& text);
    /// The lines as they are shown, each with its sign in front.
    QString Text() const;

  signals:
    void saveAsked();
    void saveAsAsked();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void Paint();

    std::vector<ChangedLine> lines_;
    QLabel* summary_;
    QPlainTextEdit* text_;
    Notice* problem_;
    QPushButton* save_;
};

} // namespace zorvane::viewer
