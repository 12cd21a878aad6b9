#pragma once

#include <QColor>
#include <QPushButton>

namespace zorvane::viewer {

/// A button that shows a colour and lets another be chosen.
class ColorButton final : public QPushButton {
    Q_OBJECT

  public:
    explicit ColorButton(const QString& accessibleName, QWidget* parent = nullptr);

    QColor Color() const { return color_; }
    void SetColor(const QColor& color);

  signals:
    /// The operator has chosen a colour.
    void chosen(const QColor& color);

  private:
    void Choose();

    QColor color_;
};

} // namespace zorvane::viewer
