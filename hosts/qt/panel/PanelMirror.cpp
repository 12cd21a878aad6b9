#include "hosts/qt/panel/PanelMirror.h"

#include "drawing/Canvas.h"
#include "hosts/qt/QtPalette.h"
#include "hosts/qt/Units.h"
#include "hosts/qt/panel/PanelControls.h"
#include "hosts/qt/panel/PanelText.h"
#include "hosts/qt/texts/ControlText.h"

#include <QApplication>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace zorvane {

namespace {

constexpr const char* kThinScrollBar =
    "QScrollBar:vertical { width: 5px; background: transparent; }"
    "QScrollBar::handle:vertical { background: palette(mid); border-radius: 2px; min-height: 20px; "
    "}"
    "QScrollBar::add-line, QScrollBar::sub-line { height: 0; }";

} // namespace

PanelMirror::PanelMirror(QWidget& host, Plate& plate, StepRunner& steps)
    : host_(host), plate_(plate), steps_(steps), frame_(&host), place_(host, frame_),
      view_(&frame_), pages_(&contents_), menu_(&contents_), comment_(&contents_),
      preview_(&contents_), style_(&contents_), apply_(&contents_),
      rows_(frame_, view_, {&preview_, &style_, &apply_}) {
    frame_.hide();
    frame_.setAutoFillBackground(true);
    frame_.setLayoutDirection(Qt::LeftToRight); // the control places what is in it
    frame_.setCursor(Qt::ArrowCursor);          // the pointer shape of the plate means nothing here
    view_.setFrameShape(QFrame::NoFrame);
    view_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_.verticalScrollBar()->setStyleSheet(QLatin1String(kThinScrollBar));
    view_.setWidget(&contents_);
    view_.setFocusPolicy(Qt::NoFocus);
    view_.viewport()->setAutoFillBackground(false);
    contents_.setAutoFillBackground(false);
    comment_.setTabChangesFocus(true);
    comment_.setUndoRedoEnabled(true);
    Connect();
}

void PanelMirror::NameControls() {
    pages_.setAccessibleName(tr("Page"));
    menu_.setAccessibleName(tr("Sub-well commands"));
    menu_.setToolTip(menu_.accessibleName());
    comment_.setAccessibleName(tr("Comments"));
    style_.setAccessibleName(tr("Style"));
}

void PanelMirror::Connect() {
    connect(&frame_, &PanelFrame::enterPressed, this, &PanelMirror::PressApply);
    connect(&frame_, &PanelFrame::escapePressed, this, &PanelMirror::Close);
    connect(&place_, &PanelPlace::closed, this, &PanelMirror::Close);
    connect(&place_, &PanelPlace::moved, this, &PanelMirror::Sync);
    connect(&pages_, &QComboBox::activated, this, [this](int position) {
        Run([&] { plate_.PageChosen(static_cast<Integer>(position)); });
    });
    connect(&menu_, &QPushButton::clicked, this, [this] { Run([this] { plate_.MenuPressed(); }); });
    connect(&comment_, &QPlainTextEdit::textChanged, this, [this] {
        const String& before = Elements().txtComment.text;
        Run([&] { plate_.CommentTyped(TakenComment(LinesIn(*comment_.document()), before)); });
    });
    connect(&rows_, &PanelRows::edited, this, [this](int row, const QString& text) {
        const String& before = Elements().txtData[static_cast<std::size_t>(row)].text;
        Run([&] { plate_.RowTyped(static_cast<Integer>(row), TakenText(text, before)); });
    });
    connect(&style_, &QComboBox::activated, this, [this](int position) {
        Run([&] { plate_.StyleChosen(static_cast<Integer>(position)); });
    });
    connect(&apply_, &QPushButton::clicked, this,
            [this] { Run([this] { plate_.ApplyPressed(); }); });
}

void PanelMirror::PressApply() {
    const bool inRow = qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr;
    if (inRow && apply_.isVisible() && apply_.isEnabled()) apply_.click();
}

void PanelMirror::Close() {
    Run([this] { plate_.DataVisible(false); });
    host_.setFocus(Qt::OtherFocusReason);
}

bool PanelMirror::HoldsFocus() const {
    const QWidget* const focus = QApplication::focusWidget();
    return focus && frame_.isAncestorOf(focus);
}

void PanelMirror::Changed() {
    changed_ = true;
    Settle();
}

/// Shows what has come of the last step, once none is under way.
void PanelMirror::Settle() {
    if (running_ > 0) return;
    Sync();
    if (std::exchange(changed_, false)) emit changed();
}

void PanelMirror::Sync() {
    if (running_ > 0) return;
    if (!IsShown()) {
        if (HoldsFocus()) host_.setFocus(Qt::OtherFocusReason);
        frame_.hide();
        place_.SetOpen(false);
        return;
    }
    const QWidget* const focus = HoldsFocus() ? QApplication::focusWidget() : nullptr;
    ShowAll();
    // What had the focus may not be on the page that is shown now, or may be disabled.
    if (focus && !(focus->isVisible() && focus->isEnabled())) pages_.setFocus(Qt::OtherFocusReason);
}

void PanelMirror::ShowAll() {
    const SystemPalette colors = SystemColors(host_.palette());
    QFont font = host_.font();
    font.setPixelSize(qRound(ToPixels(kFontHeight)));
    if (frame_.font() != font) frame_.setFont(font);
    font.setPixelSize(font.pixelSize() - 1);
    if (style_.font() != font) style_.setFont(font);
    ShowDropDown(pages_, Elements().comboSelect, Extra().width());
    ShowComment(colors);
    if (rows_.Show(Elements(), colors, Extra().width())) OrderTabs();
    ShowStyle(colors);
    const QSize extra = Extra();
    ShowButton(menu_, Elements().cmdPopup, {extra.width(), 0});
    ShowButton(apply_, Elements().cmdApply,
               {extra.width() / 2, Elements().txtComment.visible ? extra.height() : 0});
    FitContents();
    PlaceFrame(colors);
    frame_.show();
    place_.SetOpen(true);
}

QSize PanelMirror::Extra() const {
    return place_.Extra(ToPixels(plate_.Elements().fraData.box).toRect().size());
}

void PanelMirror::ShowComment(const SystemPalette& colors) {
    const TextBox& box = Elements().txtComment;
    const QString text = ShownComment(box.text);
    const QSignalBlocker silent(comment_);
    comment_.setGeometry(InView(box.box, Extra().width()).adjusted(0, 0, 0, Extra().height()));
    SetColor(comment_, QPalette::Base, ToColor(Resolve(box.back, colors)));
    // Not disabled: a comment that can't be edited can still be scrolled and copied.
    comment_.setReadOnly(!box.enabled);
    if (!comment_.isVisibleTo(frame_.parentWidget()) || LinesIn(*comment_.document()) != text)
        comment_.setPlainText(text);
    comment_.setVisible(box.visible);
}

void PanelMirror::ShowStyle(const SystemPalette& colors) {
    const PanelElements& panel = Elements();
    ShowDropDown(style_, panel.cmbStyle, Extra().width());
    preview_.Show(panel.StyleRim, panel.StyleWell, colors);
    preview_.setGeometry(InView(panel.StyleRim.box));
    preview_.setVisible(panel.StyleRim.visible);
}

void PanelMirror::OrderTabs() {
    std::vector<QWidget*> order = rows_.TextBoxes();
    order.insert(order.begin() + 1, &style_); // the list is next to the first row
    order.insert(order.begin(), {&pages_, &menu_, &comment_});
    order.push_back(&apply_);
    for (std::size_t i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

/// The contents reach down to the last visible control, however far the container reaches.
void PanelMirror::FitContents() {
    QRect used = ToPixels(Rect{0, 0, Elements().ControlPic.width, 0}).toRect();
    for (const QObject* const child : contents_.children()) {
        const auto* const widget = qobject_cast<const QWidget*>(child);
        if (widget && !widget->isHidden())
            used.setBottom(std::max(used.bottom(), widget->geometry().bottom()));
    }
    contents_.resize(used.width() + Extra().width(), used.height());
}

void PanelMirror::PlaceFrame(const SystemPalette& colors) {
    const Frame& frame = plate_.Elements().fraData;
    const QString title = ControlText(frame.caption);
    frame_.setGeometry(place_.Frame(ToPixels(frame.box).toRect(), title));
    frame_.setTitle(WithoutMnemonic(frame_.fontMetrics().elidedText(
        title, Qt::ElideMiddle, frame_.width() - 2 * PanelFrame::kTitleLeft)));
    SetColor(frame_, QPalette::Window, ToColor(Resolve(frame.back, colors)));
    SetColor(frame_, QPalette::WindowText, ToColor(Resolve(frame.text, colors)));

    const Rect& container = Elements().ControlPic;
    QRect view = ToPixels({container.left, container.top + kEmptyTop, container.width,
                           container.height - kEmptyTop})
                     .toRect();
    view.setWidth(view.width() + Extra().width());
    view_.setGeometry(place_.View(view, frame_.height()));
}

} // namespace zorvane
