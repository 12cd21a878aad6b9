#pragma once

#include "control/Plate.h"
#include "hosts/qt/PanelWidgets.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>

#include <functional>
#include <vector>

namespace zorvane {

/// The details panel of a control, made of the toolkit's own controls. What the control has on its
/// surface is taken over by Sync; what the operator does is in the control at once.
class PanelMirror final {
  public:
    /// Runs what the operator has asked for, and reports a failure.
    using Runner = std::function<void(const std::function<void()>&)>;

    PanelMirror(QWidget& parent, Plate& plate, Runner run);
    ~PanelMirror();
    PanelMirror(const PanelMirror&) = delete;
    PanelMirror& operator=(const PanelMirror&) = delete;

    /// Takes over what has changed, and only that: a text box keeps its cursor, its selection and
    /// what it can undo while it stays in sight for the same property with the same text.
    void Sync();

    /// Runs a step that may close and open the panel on its way. Only what it comes to is shown, so
    /// that the focus stays in the panel.
    void Run(const std::function<void()>& action);

    /// Where the menu opens: at the pointer or, when it was asked for with a key, at its button.
    QPoint MenuPlace() const;

  private:
    struct Row {
        QLabel* caption;
        RowEdit* text;
        String property = {}; ///< that it stands for
    };

    const PanelElements& Elements() const { return plate_.Elements().panel; }
    void Connect();
    void Enter();
    void Close();

    void ShowAll();
    void PlaceFrame(const SystemPalette& colors);
    void FitContents();
    void ShowPages();
    void ShowComment(const SystemPalette& colors);
    void ShowRows(const SystemPalette& colors);
    void ShowText(Row& row, const RowCaption& caption, const TextBox& box);
    void ShowStyle(const SystemPalette& colors);
    void ShowButtons();
    void AddRow();
    void OrderTabs();
    void Raise(const Row& row);
    void Stack();
    bool HoldsFocus() const;

    QWidget& parent_;
    Plate& plate_;
    Runner run_;
    int running_ = 0;

    PanelBox frame_;
    QScrollArea view_; ///< stands for ControlPic
    QWidget contents_;
    CalmList pages_;
    QPushButton menu_;
    QPlainTextEdit comment_;
    StylePreview preview_;
    SlimList style_;
    QPushButton apply_;
    std::vector<Row> rows_;
};

} // namespace zorvane
