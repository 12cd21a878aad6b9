#pragma once

#include "control/Plate.h"
#include "hosts/qt/QtSite.h"
#include "hosts/qt/ShapeImages.h"

#include <QColor>
#include <QPushButton>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

namespace zorvane {

class PanelMirror;
class PlateSignals;
class QtCanvas;
class SelectionAids;

/// Shows one plate. The control itself is plate(); this widget paints it, hands it the operator's
/// input and emits its events. A failure in answer to an event or to a property is emitted as
/// failed() or, where nothing is connected to that, shown in a message box; none is thrown.
///
/// A widget on which no plate has been loaded by the time it is first shown loads the plate
/// "No_Plate" from its library, when that library exists.
class PlateWidget : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString fileName READ fileName WRITE setFileName)
    Q_PROPERTY(bool fixedSize READ fixedSize WRITE setFixedSize)
    Q_PROPERTY(double drawingScale READ drawingScale WRITE setDrawingScale)
    Q_PROPERTY(bool horizontalCentred READ horizontalCentred WRITE setHorizontalCentred)
    Q_PROPERTY(bool verticalCentred READ verticalCentred WRITE setVerticalCentred)
    Q_PROPERTY(bool refitOnResize READ refitOnResize WRITE setRefitOnResize)
    Q_PROPERTY(QColor defaultRimColor READ defaultRimColor WRITE setDefaultRimColor)
    Q_PROPERTY(QColor defaultWellColor READ defaultWellColor WRITE setDefaultWellColor)
    Q_PROPERTY(QColor defaultSelectColor READ defaultSelectColor WRITE setDefaultSelectColor)
    Q_PROPERTY(QColor definedWellColor READ definedWellColor WRITE setDefinedWellColor)
    Q_PROPERTY(QColor errorWellColor READ errorWellColor WRITE setErrorWellColor)
    Q_PROPERTY(QColor selectedColor READ selectedColor WRITE setSelectedColor)
    Q_PROPERTY(QColor deselectedColor READ deselectedColor WRITE setDeselectedColor)
    Q_PROPERTY(bool multipleSelect READ multipleSelect WRITE setMultipleSelect)
    Q_PROPERTY(bool dragDrop READ dragDrop WRITE setDragDrop)
    Q_PROPERTY(bool mouseEnabled READ mouseEnabled WRITE setMouseEnabled)
    Q_PROPERTY(bool editEnable READ editEnable WRITE setEditEnable)
    Q_PROPERTY(bool dataVisible READ dataVisible WRITE setDataVisible DESIGNABLE false STORED false)
    Q_PROPERTY(Aids aids READ aids WRITE setAids)
    // Restored last, so that the plate is loaded with the other settings in force.
    Q_PROPERTY(QString plateName READ plateName WRITE setPlateName)

  public:
    /// What the widget adds to the control's own gestures and looks. The control raises no event
    /// for a selection that an aid makes; selectionAided() is emitted for it.
    enum class Aid {
        /// Shift and a press or an arrow key select the block from the well that was current
        /// before.
        /// With Ctrl, the other wells stay selected. Needs multipleSelect, as the next two.
        ShiftExtendsSelection = 0x01,
        CtrlASelectsAll = 0x02,
        /// A press on the legend of a row or column selects it in the current sub-well.
        LegendClickSelects = 0x04,
        EscapeClearsSelection = 0x08,
        /// The legends of the row and column under the pointer light up.
        HighlightLegends = 0x10,
        /// The tooltip names position, sub-well, volume, text and error.
        RichToolTips = 0x20,
        /// A defined well with an error code shows an exclamation mark.
        ErrorMarks = 0x40,
    };
    Q_ENUM(Aid)
    Q_DECLARE_FLAGS(Aids, Aid)
    Q_FLAG(Aids)

    explicit PlateWidget(QWidget* parent = nullptr);
    ~PlateWidget() override;

    /// The control. Its failures are thrown as RuntimeError, to be caught before they reach Qt.
    Plate& plate() { return *plate_; }
    const Plate& plate() const { return *plate_; }

    QString fileName() const;
    void setFileName(const QString& name);
    QString plateName() const;
    /// Loads the plate of that name from fileName.
    void setPlateName(const QString& name);

    bool fixedSize() const { return plate_->FixedSize; }
    void setFixedSize(bool on);
    /// Drawing units (1440 an inch) per millimetre.
    double drawingScale() const { return double{plate_->DrawingScale()}; }
    void setDrawingScale(double scale);
    bool horizontalCentred() const { return plate_->HorizontalCentred; }
    void setHorizontalCentred(bool on);
    bool verticalCentred() const { return plate_->VerticalCentred; }
    void setVerticalCentred(bool on);

    /// Whether a plate of fixed size is fitted anew whenever the widget is resized. Off at first:
    /// the control takes a new size into account at its next layout only. Waits while edits in the
    /// details panel are not applied, because a layout drops them.
    bool refitOnResize() const { return refitOnResize_; }
    void setRefitOnResize(bool on);

    // Colours hold from the next colouring of a well, or marking of the control, on. An invalid
    // colour brings back the one of a new control.

    QColor defaultRimColor() const { return ColorOf(plate_->DefaultRimColor()); }
    void setDefaultRimColor(const QColor& color);
    QColor defaultWellColor() const { return ColorOf(plate_->DefaultWellColor()); }
    void setDefaultWellColor(const QColor& color);
    QColor defaultSelectColor() const { return ColorOf(plate_->DefaultSelectColor); }
    void setDefaultSelectColor(const QColor& color);
    QColor definedWellColor() const { return ColorOf(plate_->DefinedWellColor); }
    void setDefinedWellColor(const QColor& color);
    QColor errorWellColor() const { return ColorOf(plate_->ErrorWellColor); }
    void setErrorWellColor(const QColor& color);
    QColor selectedColor() const { return ColorOf(plate_->SelectedColor); }
    void setSelectedColor(const QColor& color);
    QColor deselectedColor() const { return ColorOf(plate_->DeselectedColor); }
    void setDeselectedColor(const QColor& color);

    bool multipleSelect() const { return plate_->MultipleSelect; }
    void setMultipleSelect(bool on) { plate_->MultipleSelect = on; }
    bool dragDrop() const { return plate_->DragDrop; }
    void setDragDrop(bool on) { plate_->DragDrop = on; }
    bool mouseEnabled() const { return plate_->MouseEnabled(); }
    void setMouseEnabled(bool on) { plate_->MouseEnabled(on); }

    /// Whether the operator can edit the plate definition in the details panel.
    bool editEnable() const { return plate_->EditEnable(); }
    void setEditEnable(bool on) { plate_->EditEnable(on); }
    /// Whether the details panel is open.
    bool dataVisible() const { return plate_->DataVisible(); }
    void setDataVisible(bool on);

    /// None at first.
    Aids aids() const { return aids_; }
    void setAids(Aids aids);
    void setAid(Aid aid, bool on = true) { setAids(Aids(aids_).setFlag(aid, on)); }

    /// The well shown at a place of the widget, or -1.
    int wellAt(QPointF position) const;

    /// The size that the control last asked for.
    QSize sizeHint() const override { return askedSize_; }

  signals:
    void doubleClicked();
    void clicked();
    void wellSelected(int wellNo);
    void multipleWellsSelected();
    /// Buttons: 1 left, 2 right, 4 middle. Shift: 1 Shift, 2 Ctrl, 4 Alt. Positions are drawing
    /// units in the plate area.
    void mousePressed(int button, int shift, float x, float y);
    void mouseReleased(int button, int shift, float x, float y);
    void dragMoved(int button, int shift, int columns, int rows);
    void changesApplied();
    /// Something in the details panel has changed; comes in the middle of what changes it.
    void panelChanged();

    /// An aid has changed which wells are selected.
    void selectionAided();

    /// The operator's input or a property failed.
    void failed(int number, const QString& source, const QString& description);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    enum class Part { None, PlateArea, Panel, Background, Aid };
    /// A place in the plate area, in drawing units.
    struct Spot {
        Single x;
        Single y;
    };

    /// Runs what may fail, and reports a failure.
    void Try(const std::function<void()>& action);
    QColor ColorOf(Long color) const;
    void Report(int number, const QString& source, const QString& description);

    void ContentChanged(const Rect& area);
    void OutlineChanged(const Rect& pixels);
    void TakeSize(QSize size);
    void MirrorDataButton();
    void FitOverlay();
    void Relayout();
    void Refit();
    void PaintPlate(QPainter& painter, const QRectF& clip);
    void PaintHints(QtCanvas& canvas);
    void PaintFocusRing(QPainter& painter);

    Part PartAt(QPointF position) const;
    Spot InPlate(QPointF position) const;
    bool IsWell(Integer number) const { return number >= 0 && number < plate_->TotalWells(); }
    void Press(const QMouseEvent& event);
    bool AnswerPress(const QMouseEvent& event);
    bool AnswerKey(const QKeyEvent& event);
    void AnswerMove(Integer from, Qt::KeyboardModifiers modifiers);
    void Select(const std::function<void()>& selection);
    void HoverOver(Integer wellNo);
    void AnnounceCurrentWell();
    QString ToolTipText() const;
    void Release(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, QPointF position);
    void ShowPointer(bool overPlate);
    void ShowRing(bool on);

    QPushButton dataButton_;
    // Shared with each step that is under way, which may outlive this widget: a host may destroy it
    // while a menu or a question is open.
    std::shared_ptr<QtSite> site_;
    std::shared_ptr<Plate> plate_;
    std::unique_ptr<PlateSignals> signals_;
    std::unique_ptr<SelectionAids> selection_;
    std::unique_ptr<PanelMirror> panel_;
    Aids aids_;
    Integer hovered_ = -1;
    Integer announced_ = -1;
    ShapeImages images_;
    QSize askedSize_;
    Part pressed_ = Part::None; // where the button went down that is still held
    bool secondClick_ = false;
    bool bandLost_ = false;
    bool refitOnResize_ = false;
    bool refitting_ = false;
    bool ringShown_ = false;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(PlateWidget::Aids)

} // namespace zorvane
