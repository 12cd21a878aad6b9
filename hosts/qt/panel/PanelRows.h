#pragma once

#include "control/panel/PanelElements.h"
#include "drawing/Palette.h"
#include "hosts/qt/panel/RowEdit.h"

#include <QLabel>
#include <QObject>

#include <vector>

class QScrollArea;

namespace zorvane {

/// The rows of a page in the details panel, each a caption and a text box. Rows may overlap; the
/// one that has the focus comes to the front.
class PanelRows final : public QObject {
    Q_OBJECT

  public:
    /// Rows are children of the widget in `view`, which lies in `frame`; `above` are the widgets
    /// that stay over them.
    PanelRows(const QWidget& frame, QScrollArea& view, std::vector<QWidget*> above);

    /// Takes over what has changed, with text boxes that many pixels wider than designed. Returns
    /// whether rows were added.
    bool Show(const PanelElements& panel, const SystemPalette& colors, int wider);
    std::vector<QWidget*> TextBoxes() const;

  signals:
    /// The operator has changed a row's text.
    void edited(int row, const QString& text);

  private:
    struct Row {
        QLabel* caption;
        RowEdit* text;
        String property = {}; ///< the recorded property that the row stands for
    };

    void Add();
    void ShowText(Row& row, const RowCaption& caption, const TextBox& box);
    void BringForward(const Row& row);
    void Stack();

    const QWidget& frame_;
    QScrollArea& view_;
    std::vector<QWidget*> above_;
    std::vector<Row> rows_;
};

} // namespace zorvane
