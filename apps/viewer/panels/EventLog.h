#pragma once

#include <QWidget>

class QPlainTextEdit;

namespace zorvane::viewer {

/// The events that the control has raised, the newest at the bottom.
class EventLog final : public QWidget {
    Q_OBJECT

  public:
    explicit EventLog(QWidget* parent = nullptr);

    void Add(const QString& line);
    void Clear();
    QString Text() const;

  private:
    QPlainTextEdit* lines_;
    int count_ = 0;
};

} // namespace zorvane::viewer
