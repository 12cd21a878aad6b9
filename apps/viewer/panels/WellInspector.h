#pragma once

#include "runtime/Types.h"

#include <QWidget>

#include <functional>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace zorvane {
class Plate;
}

namespace zorvane::viewer {

class ColorButton;
class PlateSession;

/// Shows the current well and edits what a host may edit of it.
class WellInspector final : public QWidget {
    Q_OBJECT

  public:
    explicit WellInspector(PlateSession& session, QWidget* parent = nullptr);

  private:
    void AddDataFields(QFormLayout& form);
    void AddColorFields(QFormLayout& form);
    void AddPlaceFields(QFormLayout& form);
    void ConnectFields();
    void ListSubWells();
    void Refresh();
    static QString PlaceOf(const Plate& plate);
    void ShowWell(Integer well);
    void ConnectHistory();
    /// Changes the current well, when there is one, as a step that can be undone.
    void Change(const QString& name, const QWidget& field,
                const std::function<void(Integer well)>& change);
    void WriteErrorCode(int code);

    PlateSession& session_;
    QLabel* legend_;
    QLabel* location_;
    QWidget* fields_;
    QComboBox* subWell_;
    QDoubleSpinBox* volume_;
    QLineEdit* text_;
    QSpinBox* errorCode_;
    QLineEdit* annotation_;
    QCheckBox* defined_;
    QCheckBox* selected_;
    ColorButton* bottom_;
    ColorButton* rim_;
    QLabel* x_;
    QLabel* y_;
    QLabel* z_;
};

} // namespace zorvane::viewer
