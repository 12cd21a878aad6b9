#pragma once

#include <QFrame>

class QLabel;

namespace zorvane::viewer {

/// A warning next to what it is about; hidden while it has no text.
class Notice final : public QFrame {
    Q_OBJECT

  public:
    explicit Notice(QWidget* parent = nullptr);

    void Show(const QString& text);
    QString Text() const;

  private:
    QLabel* text_;
};

} // namespace zorvane::viewer
