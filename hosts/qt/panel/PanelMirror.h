#pragma once

#include "control/Plate.h"
#include "drawing/Palette.h"
#include "hosts/qt/panel/CompactComboBox.h"
#include "hosts/qt/panel/PanelFrame.h"
#include "hosts/qt/panel/PanelPlace.h"
#include "hosts/qt/panel/PanelRows.h"
#include "hosts/qt/panel/StylePreview.h"
#include "hosts/qt/widget/StepRunner.h"

#include <QObject>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>

#include <utility>

namespace zorvane {

/// The details panel of a control, made of the toolkit's own controls. Sync takes over what the
/// control has on its surface; what the operator does reaches the control at once.
class PanelMirror final : public QObject {
    Q_OBJECT

  public:
    /// Shows the panel inside `host`, the widget of the control.
    PanelMirror(QWidget& host, Plate& plate, StepRunner& steps);

    PanelPlace& Place() { return place_; }
    const PanelPlace& Place() const { return place_; }
    /// Where the host has given it a place, the panel is shown whether open or not.
    bool IsShown() const { return place_.IsGiven() || plate_.Elements().fraData.visible; }

    /// Gives the controls their names, in the language of the program.
    void NameControls();
    /// Takes over what has changed, and only that: a text box keeps its cursor, its selection and
    /// its undo history while it stays visible for the same property with the same text.
    void Sync();

    /// Runs a step that may close and open the panel on its way. Only the outcome is shown, so that
    /// the focus stays in the panel.
    template <class Step>
    void Run(Step&& step) {
        const QPointer<QWidget> shown(&frame_);
        ++running_;
        steps_.Run(std::forward<Step>(step));
        if (!shown) return; // the host has destroyed the widget meanwhile
        --running_;
        Settle();
    }

    /// The control has changed something in the panel.
    void Changed();

    /// The button that opens the menu of sub-well commands.
    QWidget& MenuButton() { return menu_; }

  signals:
    /// The control has changed something in the panel; comes once for each step, after it.
    void changed();

  private:
    void Settle();
    const PanelElements& Elements() const { return plate_.Elements().panel; }
    void Connect();
    void PressApply();
    void Close();
    bool HoldsFocus() const;

    void ShowAll();
    /// How much larger than designed the panel is.
    QSize Extra() const;
    void ShowComment(const SystemPalette& colors);
    void ShowStyle(const SystemPalette& colors);
    void OrderTabs();
    void FitContents();
    void PlaceFrame(const SystemPalette& colors);

    QWidget& host_;
    Plate& plate_;
    StepRunner& steps_;
    int running_ = 0;
    bool changed_ = false;

    PanelFrame frame_;
    PanelPlace place_;
    QScrollArea view_; ///< stands for ControlPic
    QWidget contents_;
    PanelComboBox pages_;
    QPushButton menu_;
    QPlainTextEdit comment_;
    StylePreview preview_;
    CompactComboBox style_;
    QPushButton apply_;
    PanelRows rows_; ///< goes first: the widgets above move the focus from row to row as they go
};

} // namespace zorvane
