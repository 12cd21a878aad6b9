#pragma once

#include "control/PlateTypes.h"
#include "runtime/Types.h"

#include <QDialog>

#include <optional>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

namespace zorvane {

class ColorButton;
class Notice;
class PlateSession;
class WalkPreview;

/// A block of wells, columns and rows counted from 0.
struct Block {
    int x = 0;
    int y = 0;
    int width = 1;
    int height = 1;
};

/// The block to suggest for a fill: the one around the selected wells of the current sub-well, else
/// the current well.
Block SuggestedBlock(const PlateSession& session);

/// Selects a block of wells and colours and numbers them along one of eight walks.
class FillDialog final : public QDialog {
    Q_OBJECT

  public:
    FillDialog(PlateSession& session, QWidget* parent);

    void SetBlock(const Block& block);
    /// Fills the block; tells what is wrong and stays open when it cannot.
    void accept() override;
    QString Complaint() const;

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

} // namespace zorvane
