#pragma once

#include "control/Plate.h"
#include "runtime/Export.h"

#include <QColor>
#include <QList>
#include <QLocale>
#include <QRectF>
#include <QString>
#include <QVector3D>
#include <QWidget>

#include <functional>

class QSettings;

namespace zorvane {

/// Shows one plate. The control itself is plate(); this widget paints it, hands it the operator's
/// input and emits its events. Whatever a host needs of the control it also finds here, in the
/// types of Qt.
///
/// Well numbers count from 0, sub-well by sub-well and row by row. Lengths of the plate are
/// millimetres.
///
/// Failures are not thrown. One in answer to an event, a slot or a property is emitted as failed()
/// or, where nothing is connected to that, shown in a message box; see also setMessageHandler().
/// A property or a question about a well that does not exist reads as 0, empty or false.
///
/// A widget on which no plate has been loaded by the time it is first shown loads the plate
/// "No_Plate" from its library, when that library exists.
class ZORVANE_EXPORT PlateWidget : public QWidget {
    Q_OBJECT

    // What a form keeps: the settings of the control and what this widget adds to it. A reset
    // brings back what a new widget has.
    Q_PROPERTY(
        QString fileName READ fileName WRITE setFileName RESET resetFileName NOTIFY fileNameChanged)
    Q_PROPERTY(bool fixedSize READ fixedSize WRITE setFixedSize RESET resetFixedSize)
    Q_PROPERTY(double drawingScale READ drawingScale WRITE setDrawingScale RESET resetDrawingScale
                   NOTIFY plateChanged)
    Q_PROPERTY(bool horizontalCentred READ horizontalCentred WRITE setHorizontalCentred RESET
                   resetHorizontalCentred)
    Q_PROPERTY(bool verticalCentred READ verticalCentred WRITE setVerticalCentred RESET
                   resetVerticalCentred)
    Q_PROPERTY(QColor defaultRimColor READ defaultRimColor WRITE setDefaultRimColor RESET
                   resetDefaultRimColor)
    Q_PROPERTY(QColor defaultWellColor READ defaultWellColor WRITE setDefaultWellColor RESET
                   resetDefaultWellColor)
    Q_PROPERTY(QColor defaultSelectColor READ defaultSelectColor WRITE setDefaultSelectColor RESET
                   resetDefaultSelectColor)
    Q_PROPERTY(
        QColor selectedColor READ selectedColor WRITE setSelectedColor RESET resetSelectedColor)
    Q_PROPERTY(QColor deselectedColor READ deselectedColor WRITE setDeselectedColor RESET
                   resetDeselectedColor)
    Q_PROPERTY(
        bool multipleSelect READ multipleSelect WRITE setMultipleSelect RESET resetMultipleSelect)
    Q_PROPERTY(
        bool refitOnResize READ refitOnResize WRITE setRefitOnResize RESET resetRefitOnResize)
    Q_PROPERTY(Aids aids READ aids WRITE setAids RESET resetAids)
    Q_PROPERTY(bool detailsDetached READ detailsDetached WRITE setDetailsDetached RESET
                   resetDetailsDetached)
    // Restored last, so that the plate is loaded with the other settings applied.
    Q_PROPERTY(QString plateName READ plateName WRITE setPlateName RESET resetPlateName NOTIFY
                   plateNameChanged)

    // What starts afresh with each widget.
    Q_PROPERTY(QColor definedWellColor READ definedWellColor WRITE setDefinedWellColor RESET
                   resetDefinedWellColor DESIGNABLE false STORED false)
    Q_PROPERTY(QColor errorWellColor READ errorWellColor WRITE setErrorWellColor RESET
                   resetErrorWellColor DESIGNABLE false STORED false)
    Q_PROPERTY(bool dragDrop READ dragDrop WRITE setDragDrop DESIGNABLE false STORED false)
    Q_PROPERTY(
        bool mouseEnabled READ mouseEnabled WRITE setMouseEnabled DESIGNABLE false STORED false)
    Q_PROPERTY(bool selected READ selected WRITE setSelected DESIGNABLE false STORED false)
    Q_PROPERTY(bool editEnable READ editEnable WRITE setEditEnable DESIGNABLE false STORED false)
    Q_PROPERTY(bool dataVisible READ dataVisible WRITE setDataVisible NOTIFY dataVisibleChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(bool editsPending READ editsPending NOTIFY editsPendingChanged
                   DESIGNABLE false STORED false)

    // The plate that is shown.
    Q_PROPERTY(QString plateClassText READ plateClassText WRITE setPlateClassText NOTIFY
                   plateChanged DESIGNABLE false STORED false)
    Q_PROPERTY(QString tagList READ tagList NOTIFY plateChanged DESIGNABLE false STORED false)
    Q_PROPERTY(int status READ status NOTIFY plateChanged DESIGNABLE false STORED false)
    Q_PROPERTY(bool dirty READ dirty WRITE setDirty DESIGNABLE false STORED false)
    Q_PROPERTY(int rows READ rows NOTIFY plateChanged DESIGNABLE false STORED false)
    Q_PROPERTY(int cols READ cols NOTIFY plateChanged DESIGNABLE false STORED false)
    Q_PROPERTY(int subWellCount READ subWellCount NOTIFY plateChanged DESIGNABLE false STORED false)
    Q_PROPERTY(int totalWells READ totalWells NOTIFY plateChanged DESIGNABLE false STORED false)
    Q_PROPERTY(double xPitch READ xPitch NOTIFY plateChanged DESIGNABLE false STORED false)
    Q_PROPERTY(double yPitch READ yPitch NOTIFY plateChanged DESIGNABLE false STORED false)
    Q_PROPERTY(double xOverall READ xOverall NOTIFY plateChanged DESIGNABLE false STORED false)
    Q_PROPERTY(double yOverall READ yOverall NOTIFY plateChanged DESIGNABLE false STORED false)
    Q_PROPERTY(double pHeight READ pHeight NOTIFY plateChanged DESIGNABLE false STORED false)
    Q_PROPERTY(double xLeft READ xLeft NOTIFY plateChanged DESIGNABLE false STORED false)
    Q_PROPERTY(double yTop READ yTop NOTIFY plateChanged DESIGNABLE false STORED false)
    Q_PROPERTY(double zClear READ zClear NOTIFY plateChanged DESIGNABLE false STORED false)

    // The current well.
    Q_PROPERTY(int currentWell READ currentWell WRITE setCurrentWell NOTIFY currentWellChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(QString currentWellName READ currentWellName NOTIFY currentWellDataChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(
        int row READ row WRITE setRow NOTIFY currentWellChanged DESIGNABLE false STORED false)
    Q_PROPERTY(
        int col READ col WRITE setCol NOTIFY currentWellChanged DESIGNABLE false STORED false)
    Q_PROPERTY(int wellIndex READ wellIndex WRITE setWellIndex NOTIFY currentWellDataChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(QString subWell READ subWell WRITE setSubWell NOTIFY currentWellDataChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(
        QString location READ location NOTIFY currentWellDataChanged DESIGNABLE false STORED false)
    Q_PROPERTY(bool currentWellSelected READ currentWellSelected WRITE setCurrentWellSelected NOTIFY
                   currentWellDataChanged DESIGNABLE false STORED false)
    Q_PROPERTY(bool solutionDefined READ solutionDefined WRITE setSolutionDefined NOTIFY
                   currentWellDataChanged DESIGNABLE false STORED false)
    Q_PROPERTY(double currentVolume READ currentVolume WRITE setCurrentVolume NOTIFY
                   currentWellDataChanged DESIGNABLE false STORED false)
    Q_PROPERTY(QColor currentWellColor READ currentWellColor WRITE setCurrentWellColor NOTIFY
                   currentWellDataChanged DESIGNABLE false STORED false)
    Q_PROPERTY(QColor currentRimColor READ currentRimColor WRITE setCurrentRimColor NOTIFY
                   currentWellDataChanged DESIGNABLE false STORED false)
    Q_PROPERTY(double currentWellX READ currentWellX NOTIFY currentWellDataChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(double currentWellY READ currentWellY NOTIFY currentWellDataChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(double currentWellZ READ currentWellZ NOTIFY currentWellDataChanged
                   DESIGNABLE false STORED false)

    // The sub-well of the current well.
    Q_PROPERTY(SubWellStyle subWellStyle READ subWellStyle WRITE setSubWellStyle NOTIFY
                   currentWellDataChanged DESIGNABLE false STORED false)
    Q_PROPERTY(double maxVolume READ maxVolume WRITE setMaxVolume NOTIFY currentWellDataChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(double subWellDepth READ subWellDepth WRITE setSubWellDepth NOTIFY
                   currentWellDataChanged DESIGNABLE false STORED false)
    Q_PROPERTY(double wellDiameter READ wellDiameter WRITE setWellDiameter NOTIFY
                   currentWellDataChanged DESIGNABLE false STORED false)
    Q_PROPERTY(double wellSizeX READ wellSizeX WRITE setWellSizeX NOTIFY currentWellDataChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(double wellSizeY READ wellSizeY WRITE setWellSizeY NOTIFY currentWellDataChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(double rimWidth READ rimWidth WRITE setRimWidth NOTIFY currentWellDataChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(double rimHeight READ rimHeight WRITE setRimHeight NOTIFY currentWellDataChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(double xOffset READ xOffset WRITE setXOffset NOTIFY currentWellDataChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(double yOffset READ yOffset WRITE setYOffset NOTIFY currentWellDataChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(double initialVolume READ initialVolume WRITE setInitialVolume NOTIFY
                   currentWellDataChanged DESIGNABLE false STORED false)

    // Selection and blocks of wells.
    Q_PROPERTY(QList<int> selectedWells READ selectedWells WRITE setSelectedWells NOTIFY
                   selectionChanged DESIGNABLE false STORED false)
    Q_PROPERTY(int nSelected READ nSelected NOTIFY selectionChanged DESIGNABLE false STORED false)
    Q_PROPERTY(QRect array READ array DESIGNABLE false STORED false)
    Q_PROPERTY(QString arraySubwell READ arraySubwell DESIGNABLE false STORED false)

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
        /// The tooltip names position, sub-well, volume, text, annotation and error.
        RichToolTips = 0x20,
        /// A defined well with an error code shows an exclamation mark.
        ErrorMarks = 0x40,
        /// An arrow key chooses the first sub-well where none is chosen, as after a load. Without
        /// this, the first arrow key after a load leads to a number that is no well.
        ArrowsChooseSubWell = 0x80,
    };
    Q_ENUM(Aid)
    Q_DECLARE_FLAGS(Aids, Aid)
    Q_FLAG(Aids)

    /// What setWell() does with the selection besides making the well current.
    enum class SelectAction {
        Silent = wsSilent,                 ///< leave every selection alone
        SingleWell = wsSingle,             ///< clear the selection, then select the well
        AddToSelection = wsAddToSelection, ///< toggle the well; multipleSelect keeps the others
    };
    Q_ENUM(SelectAction)

    /// From which corner fillArray() walks a block, and whether along its rows or its columns.
    enum class FillOrder {
        TopLeftHorizontal = foTopLeftHorizontal,
        TopLeftVertical = foTopLeftVertical,
        TopRightHorizontal = foTopRightHorizontal,
        TopRightVertical = foTopRightVertical,
        BottomLeftHorizontal = foBottomLeftHorizontal,
        BottomLeftVertical = foBottomLeftVertical,
        BottomRightHorizontal = foBottomRightHorizontal,
        BottomRightVertical = foBottomRightVertical,
    };
    Q_ENUM(FillOrder)

    /// How a sub-well is drawn, by the codes of definitions; others than these are possible.
    enum class SubWellStyle { Round, Shelf, Pillar, Square };
    Q_ENUM(SubWellStyle)

    /// Takes a message: the title of its box and the text.
    using MessageHandler = std::function<void(const QString& title, const QString& text)>;

    explicit PlateWidget(QWidget* parent = nullptr);
    ~PlateWidget() override;

    /// The control. Its failures are thrown as RuntimeError, to be caught before they reach Qt.
    Plate& plate();
    const Plate& plate() const;

    /// Hands the messages that controls of the program would show in message boxes to a function,
    /// called in the thread that fails; an empty one brings the boxes back. Programs that install a
    /// Process of their own get their messages there instead.
    static void setMessageHandler(MessageHandler handler);

    /// Shows the texts of all widgets, and what controls report, in the language of a locale from
    /// now on: German, where this library was built with it. Names and values stay as they are, and
    /// so does the control. Returns whether the language is there; without it, or before this is
    /// called, texts are English. Needs the program's QCoreApplication.
    static bool installTranslation(const QLocale& locale = QLocale());

    // The plate, and the library from which it is loaded.

    /// Loads a plate (case does not matter) from a library, or from fileName without one, and
    /// returns whether that worked; if not, the drawing stays as it was. With `why`, the reason
    /// goes there, empty where it worked, and nowhere else: no message box opens and failed() is
    /// not emitted.
    Q_INVOKABLE bool load(const QString& plateName, const QString& library = {},
                          QString* why = nullptr);
    /// The name with which a plate was asked for last, also where it could not be loaded.
    QString requestedPlateName() const;
    QString fileName() const;
    /// The plate library from which plates are loaded; a name alone loads nothing.
    void setFileName(const QString& name);
    void resetFileName();
    QString plateName() const;
    /// Resets to "No_Plate", as far as the library exists.
    void resetPlateName();
    /// The definition of the loaded plate, in the text format of libraries.
    QString plateClassText() const;
    /// The tags of the plate, separated by blanks.
    QString tagList() const;
    /// What the last layout left there; 0 when it worked.
    int status() const;
    /// The host's own mark; every load clears it.
    bool dirty() const;
    void setDirty(bool on);
    int rows() const;
    int cols() const;
    int subWellCount() const;
    int totalWells() const;
    /// The distance of columns.
    double xPitch() const;
    /// The distance of rows.
    double yPitch() const;
    double xOverall() const;
    double yOverall() const;
    double pHeight() const;
    /// Where the first column is in the plate.
    double xLeft() const;
    /// Where the first row is in the plate.
    double yTop() const;
    /// The height that clears the plate.
    double zClear() const;
    /// What the definition records under a name such as "XPITCH" or "Drop.Depth"; empty when it
    /// records nothing.
    Q_INVOKABLE QString definitionProperty(const QString& name) const;
    /// Records a value in the definition; the drawing follows once the definition is read again.
    Q_INVOKABLE void setDefinitionProperty(const QString& name, const QString& value);
    /// The box of a well position seen from above; heights are in plate().
    Q_INVOKABLE QRectF wellEnvelope(int row, int col) const;
    /// The centre of a well position.
    Q_INVOKABLE QVector3D wellCentroid(int row, int col) const;
    /// Where a well is in the plate: its centre, and the height of its floor.
    Q_INVOKABLE QVector3D wellPosition(int wellNo) const;

    // Settings.

    /// Keeps the settings of the control in the store's present group, but for those that are as in
    /// a new control.
    void saveSettings(QSettings& settings) const;
    /// Takes over what saveSettings() kept and loads the plate; what is not there is as in a new
    /// control.
    void restoreSettings(QSettings& settings);

    bool fixedSize() const;
    /// Whether the drawing is fitted to the widget rather than the widget to the drawing.
    void setFixedSize(bool on);
    using QWidget::setFixedSize; // that of the widget
    void resetFixedSize();
    /// Drawing units (1440 an inch) per millimetre.
    double drawingScale() const;
    void setDrawingScale(double scale);
    void resetDrawingScale();
    bool horizontalCentred() const;
    void setHorizontalCentred(bool on);
    void resetHorizontalCentred();
    bool verticalCentred() const;
    void setVerticalCentred(bool on);
    void resetVerticalCentred();

    /// Whether a plate of fixed size is fitted to the widget whenever that is resized or shows
    /// another plate. Off at first: the control takes a new size into account only at its next
    /// layout, and a new plate at that after the next. Waits while edits
    /// in the details panel are not applied, because a layout drops them.
    bool refitOnResize() const;
    void setRefitOnResize(bool on);
    void resetRefitOnResize() { setRefitOnResize(false); }

    // A colour applies from the next time that a well is coloured, or the control marked. An
    // invalid colour is a reset: it brings back the one of a new control.

    QColor defaultRimColor() const;
    void setDefaultRimColor(const QColor& color);
    void resetDefaultRimColor() { setDefaultRimColor({}); }
    QColor defaultWellColor() const;
    void setDefaultWellColor(const QColor& color);
    void resetDefaultWellColor() { setDefaultWellColor({}); }
    /// The rim of a selected well.
    QColor defaultSelectColor() const;
    void setDefaultSelectColor(const QColor& color);
    void resetDefaultSelectColor() { setDefaultSelectColor({}); }
    QColor definedWellColor() const;
    void setDefinedWellColor(const QColor& color);
    void resetDefinedWellColor() { setDefinedWellColor({}); }
    /// The bottom of a defined well with an error code.
    QColor errorWellColor() const;
    void setErrorWellColor(const QColor& color);
    void resetErrorWellColor() { setErrorWellColor({}); }
    /// The plate area while the control is marked as the selected one.
    QColor selectedColor() const;
    void setSelectedColor(const QColor& color);
    void resetSelectedColor() { setSelectedColor({}); }
    QColor deselectedColor() const;
    void setDeselectedColor(const QColor& color);
    void resetDeselectedColor() { setDeselectedColor({}); }

    bool multipleSelect() const;
    void resetMultipleSelect() { setMultipleSelect(false); }
    /// Whether a press on a selected well begins a move, which ends in dragMoved(). Moving the data
    /// is the host's task.
    bool dragDrop() const;
    bool mouseEnabled() const;
    /// Whether the whole control is marked as the selected one.
    bool selected() const;
    /// None at first.
    Aids aids() const;
    void setAids(Aids aids);
    void resetAids() { setAids({}); }
    void setAid(Aid aid, bool on = true) { setAids(aids().setFlag(aid, on)); }

    // The details panel.

    /// Whether the operator can edit the plate definition in the details panel.
    bool editEnable() const;
    /// Whether the details panel is open.
    bool dataVisible() const;
    /// Whether the panel has edits that its Apply button would take.
    bool editsPending() const;
    /// Whether the details panel is a widget of its own instead of covering a part of the plate. It
    /// then leaves the size of this widget alone. Off at first.
    bool detailsDetached() const;
    void setDetailsDetached(bool on);
    void resetDetailsDetached() { setDetailsDetached(false); }
    /// The detached details panel, or null. A tool window that is open while dataVisible, until the
    /// host puts it into a layout or a dock: there it always shows the plate's details, and the
    /// button that would open it is hidden. It goes with this widget. Where its place in the host
    /// goes first, the details are back in this widget.
    QWidget* detailsPanel() const;

    // Wells by number and by name.

    /// A well's name by its legends, "C3", or "C3.Drop1" where there are several sub-wells; empty
    /// for a number that is no well.
    Q_INVOKABLE QString wellName(int wellNo) const;
    /// The same for people to read, as the tooltip has it: "C3, Drop1".
    Q_INVOKABLE QString wellCaption(int wellNo) const;
    /// The number of the well with that name, or -1. "C3" alone is the first sub-well there; letter
    /// case does not matter, unless the legends differ by nothing else.
    Q_INVOKABLE int wellNumber(const QString& name) const;
    /// The well shown at a place of the widget, or -1.
    Q_INVOKABLE int wellAt(QPointF position) const;
    /// The box of a well's rim in the widget; empty for a number that is no well.
    Q_INVOKABLE QRectF wellRect(int wellNo) const;

    // The current well. Setters check no range and draw nothing.

    int currentWell() const;
    QString currentWellName() const;
    int row() const;
    int col() const;
    /// The sub-well's position from 1; 0 while none is chosen.
    int wellIndex() const;
    /// "Default" while no sub-well is chosen.
    QString subWell() const;
    /// Sub-well, row and column, from 0: "Drop, 2, 5".
    QString location() const;
    bool currentWellSelected() const;
    bool solutionDefined() const;
    double currentVolume() const;
    QColor currentWellColor() const;
    QColor currentRimColor() const;
    // In the plate, without xLeft and yTop.
    double currentWellX() const;
    double currentWellY() const;
    double currentWellZ() const;

    // The sub-well of the current well; 0 and ignored while none is chosen. Only initialVolume is
    // drawn at once.

    SubWellStyle subWellStyle() const;
    void setSubWellStyle(SubWellStyle style);
    double maxVolume() const;
    void setMaxVolume(double value);
    double subWellDepth() const;
    void setSubWellDepth(double value);
    /// The mean of both sizes.
    double wellDiameter() const;
    void setWellDiameter(double value);
    double wellSizeX() const;
    void setWellSizeX(double value);
    double wellSizeY() const;
    void setWellSizeY(double value);
    double rimWidth() const;
    void setRimWidth(double value);
    double rimHeight() const;
    void setRimHeight(double value);
    double xOffset() const;
    void setXOffset(double value);
    double yOffset() const;
    void setYOffset(double value);
    double initialVolume() const;
    void setInitialVolume(double value);

    // Selection.

    /// The selected wells, by number.
    QList<int> selectedWells() const;
    /// How many wells are selected, as counted by setWell(), area selections and arrays: marks made
    /// by selectWell() and selectAll() do not count.
    int nSelected() const;
    Q_INVOKABLE bool isSelected(int wellNo) const;
    /// The block of setArray(): its first column and row, its width and height.
    QRect array() const;
    QString arraySubwell() const;

    // Data of any well.

    Q_INVOKABLE QString text(int wellNo) const;
    Q_INVOKABLE int errorCode(int wellNo) const;
    Q_INVOKABLE double volume(int wellNo) const;
    /// The caption shown on a well.
    Q_INVOKABLE QString wellAnnotation(int wellNo) const;
    Q_INVOKABLE bool isDefined(int wellNo) const;
    /// The colours of a well's bottom and rim; invalid for a number that is no well.
    Q_INVOKABLE QColor wellFill(int wellNo) const;
    Q_INVOKABLE QColor rimFill(int wellNo) const;

    /// The size that the control last asked for.
    QSize sizeHint() const override;

  public slots: // NOLINT(readability-redundant-access-specifiers): for the meta-object
    /// Loads the plate of that name from fileName.
    void setPlateName(const QString& name);
    /// Shows a plate by its definition text.
    void setPlateClassText(const QString& text);

    void setMultipleSelect(bool on);
    void setDragDrop(bool on);
    void setMouseEnabled(bool on);
    void setSelected(bool on);
    void setEditEnable(bool on);
    void setDataVisible(bool on);
    /// Shows a page of the definition in the details panel (0 comments, 1 tags, 2 the plate, 3 and
    /// up its sub-wells), or takes over what stands there as that page.
    void setDataDisplay(int page);
    void getDataDisplay(int page);

    void setCurrentWell(int wellNo);
    void setRow(int row);
    void setCol(int col);
    void setWellIndex(int position);
    void setSubWell(const QString& name);
    void setCurrentWellSelected(bool on);
    void setSolutionDefined(bool on);
    void setCurrentVolume(double value);
    void setCurrentWellColor(const QColor& color);
    void setCurrentRimColor(const QColor& color);
    /// Clears mark, volume, annotation and colour of the current well, or of one sub-well in every
    /// position.
    void clearWell();
    void clearSubWells(const QString& subWell);

    /// Makes a well current and does with the selection what the action says.
    void setWell(int row, int col, const QString& subWell = {},
                 SelectAction action = SelectAction::SingleWell);
    /// Selects these wells and no others, counted by nSelected; the current well stays. Numbers
    /// that are no well are left out. While multipleSelect is off, only the last one is selected.
    void setSelectedWells(const QList<int>& wells);
    /// Marks one well or all of them; neither counts them nor raises an event.
    void selectWell(int wellNo, bool on = true);
    void selectAll(bool on = true);
    void clearSelection();
    /// Whether an area selection is framed.
    void setSelectBoxEnabled(bool on);
    /// Records a block, chooses the sub-well and adds the block to the selection. With a colour,
    /// the wells take it.
    void setArray(int x, int y, int width, int height, const QString& subWell,
                  FillOrder direction = FillOrder::TopLeftHorizontal, const QColor& color = {});
    /// Walks the recorded block. An invalid colour and a null text leave wells as they are; the
    /// first "#" of the text becomes the number along the walk.
    void fillArray(const QColor& color, const QString& annotation = {}, int startWell = 1,
                   int stopWell = -1);

    void setText(int wellNo, const QString& text);
    /// Colours nothing; set it before isDefined to get the error colour.
    void setErrorCode(int wellNo, int code);
    void setVolume(int wellNo, double volume);
    void setWellAnnotation(int wellNo, const QString& caption);
    /// Marks and colours a well; off also clears its error code.
    void setIsDefined(int wellNo, bool on);
    void setWellFill(int wellNo, const QColor& color);
    void setRimFill(int wellNo, const QColor& color);

  signals:
    // The events of the control.

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

    // What the operator does with a well. The first two come next to clicked() and doubleClicked().

    /// The left button was pressed and released on this well.
    void wellClicked(int wellNo);
    void wellDoubleClicked(int wellNo);
    /// The pointer is over another well; -1 when it is over none any more.
    void wellHovered(int wellNo);

    // What has changed, whoever changed it; each comes at most once for an operation.

    void currentWellChanged(int wellNo);
    /// Another well is current, or the data, the sub-well or the plate of the current one changed.
    /// Follows each of the signals about those.
    void currentWellDataChanged();
    /// Other wells are selected.
    void selectionChanged();
    /// Text, error code, volume, annotation, mark or colour of wells in this range has changed.
    void wellDataChanged(int first, int last);
    /// The plate definition has changed, or another one or another layout is shown.
    void plateChanged();
    void fileNameChanged(const QString& name);
    void plateNameChanged(const QString& name);
    void dataVisibleChanged(bool visible);
    void editsPendingChanged(bool pending);
    /// Something in the details panel has changed. Comes once for each step of the operator in the
    /// panel and for each fit to a new size, after it.
    void panelChanged();

    /// An aid has changed which wells are selected.
    void selectionAided();

    /// The operator's input, a slot or a property failed. The number is 0 for a plate that was not
    /// found and for what a slot of the host has thrown.
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
    struct Parts;
    friend class StepRunner;

    /// Whether somebody hears of failures.
    bool ReportsFailures() const;
    QColor ShownColor(Long color) const;

    Parts* d_ = nullptr;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(PlateWidget::Aids)

} // namespace zorvane
