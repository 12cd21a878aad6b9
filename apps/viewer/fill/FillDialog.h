#pragma once

#include "apps/viewer/logic/FillBlock.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

namespace zorvane::viewer {

class ColorButton;
class Notice;
class PlateSession;
class WalkPreview;

/// Selects a block of wells and colours and numbers them along one of eight walks.
class FillDialog final : public QDialog {
    Q_OBJECT

  public:
    FillDialog(PlateSession& session, QWidget* parent);

    void SetBlock(const FillBlock& block);
    /// Fills the block; stays open, and says what is wrong, when it cannot.
    void accept() override;
    QString Problem() const;

  private:
    QWidget* MakeBlockFields();
    void AddFillFields(QFormLayout& form);
    void AddRangeFields(QFormLayout& form);
    void ShowWalk();
    void Fill();
    int Stop() const;

    PlateSession& session_;
    QSpinBox* x_;
    QSpinBox* y_;
    QSpinBox* width_;
    QSpinBox* height_;
    QComboBox* subWell_;
    QComboBox* order_;
    QCheckBox* colored_;
    ColorButton* color_;
    QCheckBox* annotated_;
    QLineEdit* annotation_;
    QSpinBox* start_;
    QSpinBox* stop_;
    WalkPreview* preview_;
    Notice* notice_;
};

} // namespace zorvane::viewer
