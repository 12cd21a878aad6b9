#pragma once

#include <QWidget>

#include <functional>

class QDoubleSpinBox;
class QVBoxLayout;

namespace zorvane::viewer {

class PlateSession;

/// Switches of the control, each with the name of its property as its tooltip. They are kept from
/// one run of the program to the next.
class ViewSettings final : public QWidget {
    Q_OBJECT

  public:
    explicit ViewSettings(PlateSession& session, QWidget* parent = nullptr);

  signals:
    /// Whether the plate is fitted to the window, or the window to the plate.
    void fixedSizeChanged(bool on);

  private:
    QVBoxLayout* AddGroup(const QString& title);
    void Add(QVBoxLayout& group, const QString& text, const QString& property, bool on,
             std::function<void(bool)> apply);
    void AddSelection();
    void AddLayout();
    void AddAids();
    void AddScale(QVBoxLayout& group);
    void RestoreScale();
    void Refresh();

    PlateSession& session_;
    QDoubleSpinBox* scale_ = nullptr;
};

} // namespace zorvane::viewer
