#include "hosts/qt/PanelMirror.h"

#include "hosts/qt/PanelText.h"

#include <QApplication>
#include <QCursor>
#include <QPointer>
#include <QScrollBar>

namespace zorvane {

namespace {

constexpr const char* kThinScrollBar =
    "QScrollBar:vertical { width: 5px; background: transparent; }"
    "QScrollBar::handle:vertical { background: palette(mid); border-radius: 2px; min-height: 20px; "
    "}"
    "QScrollBar::add-line, QScrollBar::sub-line { height: 0; }";

} // namespace

PanelMirror::PanelMirror(QWidget& parent, Plate& plate, Runner run)
    : parent_(parent), plate_(plate), run_(std::move(run)), frame_(&parent), view_(&frame_),
      pages_(&contents_), menu_(&contents_), comment_(&contents_), preview_(&contents_),
      style_(&contents_), apply_(&contents_) {
    frame_.hide();
    frame_.setAutoFillBackground(true);
    frame_.setCursor(Qt::ArrowCursor); // what the pointer means on the plate, it does not here
    view_.setFrameShape(QFrame::NoFrame);
    view_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_.verticalScrollBar()->setStyleSheet(QLatin1String(kThinScrollBar));
    view_.setWidget(&contents_);
    view_.setFocusPolicy(Qt::NoFocus);
    view_.viewport()->setAutoFillBackground(false);
    contents_.setAutoFillBackground(false);
    comment_.setTabChangesFocus(true);
    comment_.setUndoRedoEnabled(true);

    pages_.setAccessibleName(QObject::tr("Page"));
    menu_.setAccessibleName(QObject::tr("Sub-well commands"));
    menu_.setToolTip(menu_.accessibleName());
    comment_.setAccessibleName(QObject::tr("Comments"));
    style_.setAccessibleName(QObject::tr("Style"));
    Connect();
}

// While the widgets go one by one, the focus may wander through the rows that are left.
PanelMirror::~PanelMirror() {
    for (const Row& row : rows_)
        row.text->onFocus = [](bool) {};
}

void PanelMirror::Connect() {
    frame_.onEnter = [this] { Enter(); };
    frame_.onEscape = [this] { Close(); };
    QObject::connect(&pages_, &QComboBox::activated, &frame_, [this](int position) {
        Run([&] { plate_.PageChosen(static_cast<Integer>(position)); });
    });
    QObject::connect(&menu_, &QPushButton::clicked, &frame_,
                     [this] { Run([this] { plate_.MenuPressed(); }); });
    QObject::connect(&comment_, &QPlainTextEdit::textChanged, &frame_, [this] {
        const String& before = Elements().txtComment.text;
        Run([&] { plate_.CommentTyped(TakenComment(LinesIn(*comment_.document()), before)); });
    });
    QObject::connect(&style_, &QComboBox::activated, &frame_, [this](int position) {
        Run([&] { plate_.StyleChosen(static_cast<Integer>(position)); });
    });
    QObject::connect(&apply_, &QPushButton::clicked, &frame_,
                     [this] { Run([this] { plate_.ApplyPressed(); }); });
}

void PanelMirror::Run(const std::function<void()>& action) {
    const QPointer<QWidget> shown(&frame_);
    ++running_;
    run_(action);
    if (!shown) return; // the host has destroyed the widget meanwhile
    --running_;
    Sync();
}

void PanelMirror::Enter() {
    const bool inRow = qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr;
    if (inRow && apply_.isVisible() && apply_.isEnabled()) apply_.click();
}

void PanelMirror::Close() {
    Run([this] { plate_.DataVisible(false); });
    parent_.setFocus(Qt::OtherFocusReason);
}

QPoint PanelMirror::MenuPlace() const {
    return menu_.underMouse() ? QCursor::pos() : menu_.mapToGlobal(menu_.rect().bottomLeft());
}

bool PanelMirror::HoldsFocus() const {
    const QWidget* const focus = QApplication::focusWidget();
    return focus && frame_.isAncestorOf(focus);
}

void PanelMirror::Sync() {
    if (running_ > 0) return;
    if (!plate_.Elements().fraData.visible) {
        if (HoldsFocus()) parent_.setFocus(Qt::OtherFocusReason);
        frame_.hide();
        return;
    }
    const QWidget* const focus = HoldsFocus() ? QApplication::focusWidget() : nullptr;
    ShowAll();
    // What had the focus may not be on the page that is shown now, or have nothing to do there.
    if (focus && !(focus->isVisible() && focus->isEnabled())) pages_.setFocus(Qt::OtherFocusReason);
}

void PanelMirror::AddRow() {
    const std::size_t number = rows_.size();
    const Row row{new QLabel(&contents_), new RowEdit(&contents_)};
    row.caption->setBuddy(row.text);
    rows_.push_back(row);
    QObject::connect(
        row.text, &QLineEdit::textEdited, &frame_, [this, number](const QString& text) {
            const String& before = Elements().txtData[number].text;
            Run([&] { plate_.RowTyped(static_cast<Integer>(number), TakenText(text, before)); });
        });
    row.text->onFocus = [this, row](bool taken) { taken ? Raise(row) : Stack(); };
}

void PanelMirror::OrderTabs() {
    QWidget* last = &pages_;
    const auto next = [&last](QWidget& widget) {
        QWidget::setTabOrder(last, &widget);
        last = &widget;
    };
    next(menu_);
    next(comment_);
    for (const Row& row : rows_) {
        next(*row.text);
        if (row.text == rows_.front().text) next(style_);
    }
    next(apply_);
}

/// Brings the row that is worked on to the front and into sight.
void PanelMirror::Raise(const Row& row) {
    Stack();
    row.caption->setAutoFillBackground(true);
    row.caption->raise();
    row.text->raise();
    view_.ensureWidgetVisible(row.text, 0, 4);
}

/// Each over those before it: the rows in their order, the style controls, the Apply button.
void PanelMirror::Stack() {
    for (const Row& row : rows_) {
        // A caption that lies over another one hides it.
        const bool over = &row != rows_.data() && row.text->y() == rows_.front().text->y();
        row.caption->setAutoFillBackground(over);
        row.caption->raise();
        row.text->raise();
    }
    preview_.raise();
    style_.raise();
    apply_.raise();
}

} // namespace zorvane
