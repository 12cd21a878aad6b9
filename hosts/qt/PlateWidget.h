#pragma once

#include "control/Plate.h"
#include "runtime/Export.h"

#include <QColor>
#include <QString>
#include <QWidget>

namespace zorvane {

/// Shows one plate. The control itself is plate(); this widget paints it, hands it the operator's
/// input and emits its events. A failure in answer to an event or to a property is emitted as
/// failed() or, where nothing is connected to that, shown in a message box; none is thrown.
///
/// A widget on which no plate has been loaded by the time it is first shown loads the plate
/// "No_Plate" from its library, when that library exists.
class ZORVANE_EXPORT PlateWidget : public QWidget {
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
    // Restored last, so that the plate is loaded with the other settings applied.
    Q_PROPERTY(QString plateName READ plateName WRITE setPlateName)

  public:
    /// What the widget adds to the control's own gestures and looks. The control raises no event
    /// for a selection that an aid makes; selectionAided() is emitted for it.
    enum class Aid {
        /// Shift and a press or an arrow key select the block from the well that was current
        /// before. With Ctrl, the other wells stay selected. Needs multipleSelect, as do the next
        /// two.
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
    Plate& plate();
    const Plate& plate() const;

    QString fileName() const;
    void setFileName(const QString& name);
    QString plateName() const;
    /// Loads the plate of that name from fileName.
    void setPlateName(const QString& name);

    bool fixedSize() const;
    void setFixedSize(bool on);
    /// Drawing units (1440 an inch) per millimetre.
    double drawingScale() const;
    void setDrawingScale(double scale);
    bool horizontalCentred() const;
    void setHorizontalCentred(bool on);
    bool verticalCentred() const;
    void setVerticalCentred(bool on);

    /// Whether a plate of fixed size is fitted to the widget whenever that is resized. Off at
    /// first: the control takes a new size into account only at its next layout. Waits while edits
    /// in the details panel are not applied, because a layout drops them.
    bool refitOnResize() const;
    void setRefitOnResize(bool on);

    // A colour applies from the next time that a well is coloured, or the control marked. An
    // invalid colour brings back the one of a new control.

    QColor defaultRimColor() const;
    void setDefaultRimColor(const QColor& color);
    QColor defaultWellColor() const;
    void setDefaultWellColor(const QColor& color);
    QColor defaultSelectColor() const;
    void setDefaultSelectColor(const QColor& color);
    QColor definedWellColor() const;
    void setDefinedWellColor(const QColor& color);
    QColor errorWellColor() const;
    void setErrorWellColor(const QColor& color);
    QColor selectedColor() const;
    void setSelectedColor(const QColor& color);
    QColor deselectedColor() const;
    void setDeselectedColor(const QColor& color);

    bool multipleSelect() const;
    void setMultipleSelect(bool on);
    bool dragDrop() const;
    void setDragDrop(bool on);
    bool mouseEnabled() const;
    void setMouseEnabled(bool on);

    /// Whether the operator can edit the plate definition in the details panel.
    bool editEnable() const;
    void setEditEnable(bool on);
    /// Whether the details panel is open.
    bool dataVisible() const;
    void setDataVisible(bool on);

    /// None at first.
    Aids aids() const;
    void setAids(Aids aids);
    void setAid(Aid aid, bool on = true) { setAids(aids().setFlag(aid, on)); }

    /// The well shown at a place of the widget, or -1.
    int wellAt(QPointF position) const;

    /// The size that the control last asked for.
    QSize sizeHint() const override;

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
    /// Something in the details panel has changed. Comes once for each step of the operator in the
    /// panel and for each fit to a new size, after it.
    void panelChanged();

    // What has changed, whoever changed it; each comes at most once for an operation.

    void currentWellChanged(int wellNo);
    /// Other wells are selected.
    void selectionChanged();
    /// Text, error code, volume, annotation, mark or colour of wells in this range has changed.
    void wellDataChanged(int first, int last);
    /// Another plate definition, or another layout of it, is shown.
    void plateChanged();

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
    friend class StepRunner; // asks whether failed() is connected
    struct Parts;

    QColor ShownColor(Long color) const;

    Parts* d_ = nullptr;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(PlateWidget::Aids)

} // namespace zorvane
