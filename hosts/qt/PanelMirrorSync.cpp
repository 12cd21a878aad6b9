#include "drawing/Canvas.h"
#include "hosts/qt/PanelMirror.h"
#include "hosts/qt/PanelText.h"
#include "hosts/qt/QtPalette.h"
#include "hosts/qt/Units.h"

#include <QSignalBlocker>

#include <algorithm>

/// How what stands on the surface of the control is taken over.
namespace zorvane {

namespace {

QString ToQString(const String& text) { return QString::fromStdString(text); }

/// A text of the plate's whose "&" are characters as any other.
QString Plain(QString text) { return text.replace(QLatin1Char('&'), QLatin1String("&&")); }

/// The container is empty down to its first element. The view begins below, so that nothing scrolls
/// under the data button, which stands there.
constexpr Single kEmptyTop = 225;

QRect InView(const Rect& box) { return ToPixels(box.Moved(0, -kEmptyTop)).toRect(); }

void Place(QWidget& widget, const Rect& box) { widget.setGeometry(InView(box)); }

/// Gives a widget a colour for one role of its palette; setting a palette costs a repaint.
void Paint(QWidget& widget, QPalette::ColorRole role, const QColor& color) {
    if (widget.palette().color(role) == color) return;
    QPalette palette = widget.palette();
    palette.setColor(role, color);
    widget.setPalette(palette);
}

void Show(QPushButton& shown, const Button& button) {
    Place(shown, button.box);
    shown.setText(ToQString(button.caption));
    shown.setEnabled(button.enabled);
    shown.setVisible(button.visible);
}

void Show(QComboBox& shown, const DropDown& list) {
    const QSignalBlocker silent(shown);
    Place(shown, list.box);
    while (shown.count() > static_cast<int>(list.entries.size()))
        shown.removeItem(shown.count() - 1);
    for (int i = 0; i < static_cast<int>(list.entries.size()); ++i) {
        const QString entry = ShownText(list.entries[static_cast<std::size_t>(i)]);
        if (i == shown.count()) shown.addItem(entry);
        if (shown.itemText(i) != entry) shown.setItemText(i, entry);
    }
    shown.setCurrentIndex(list.position);
    shown.setEnabled(list.enabled);
    shown.setVisible(list.visible);
}

} // namespace

void PanelMirror::ShowAll() {
    const SystemPalette colors = SystemColors(parent_.palette());
    QFont font = parent_.font();
    font.setPixelSize(qRound(ToPixels(kFontHeight)));
    if (frame_.font() != font) frame_.setFont(font);
    font.setPixelSize(font.pixelSize() - 1);
    if (style_.font() != font) style_.setFont(font);
    ShowPages();
    ShowComment(colors);
    ShowRows(colors);
    ShowStyle(colors);
    ShowButtons();
    FitContents();
    PlaceFrame(colors);
    frame_.show();
}

// Where the widget is lower than the panel, the panel ends with it and scrolls.
void PanelMirror::PlaceFrame(const SystemPalette& colors) {
    const Frame& frame = plate_.Elements().fraData;
    QRect place = ToPixels(frame.box).toRect();
    place.setBottom(std::min(place.bottom(), parent_.height() - 1));
    frame_.setGeometry(place);
    frame_.setTitle(Plain(frame_.fontMetrics().elidedText(
        ShownText(frame.caption), Qt::ElideMiddle, place.width() - 2 * PanelBox::kTitleLeft)));
    Paint(frame_, QPalette::Window, ToColor(Resolve(frame.back, colors)));
    Paint(frame_, QPalette::WindowText, ToColor(Resolve(frame.text, colors)));

    const Rect& container = Elements().ControlPic;
    QRect view = ToPixels({container.left, container.top + kEmptyTop, container.width,
                           container.height - kEmptyTop})
                     .toRect();
    view.setBottom(std::min(view.bottom(), place.height() - 3));
    view_.setGeometry(view);
}

/// The contents are as high as what stands in them, however far the container reaches.
void PanelMirror::FitContents() {
    QRect used = ToPixels(Rect{0, 0, Elements().ControlPic.width, 0}).toRect();
    for (const QObject* const child : contents_.children()) {
        const auto* const widget = qobject_cast<const QWidget*>(child);
        if (widget && !widget->isHidden())
            used.setBottom(std::max(used.bottom(), widget->geometry().bottom()));
    }
    contents_.resize(used.size());
}

void PanelMirror::ShowPages() { zorvane::Show(pages_, Elements().comboSelect); }

void PanelMirror::ShowComment(const SystemPalette& colors) {
    const TextBox& box = Elements().txtComment;
    const QSignalBlocker silent(comment_);
    Place(comment_, box.box);
    Paint(comment_, QPalette::Base, ToColor(Resolve(box.back, colors)));
    // Not disabled: a comment that can't be edited can still be scrolled and copied.
    comment_.setReadOnly(!box.enabled);
    if (!comment_.isVisibleTo(&parent_) || LinesIn(*comment_.document()) != ShownComment(box.text))
        comment_.setPlainText(ShownComment(box.text));
    comment_.setVisible(box.visible);
}

void PanelMirror::ShowRows(const SystemPalette& colors) {
    const PanelElements& panel = Elements();
    const bool grows = rows_.size() < panel.txtData.size();
    // The page of comments leaves the rows of the page before it as they are, under its text box.
    const bool covered = panel.txtComment.visible;
    while (rows_.size() < panel.txtData.size())
        AddRow();
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const RowCaption& caption = panel.lblAnnotation[i];
        const TextBox& box = panel.txtData[i];
        Place(*rows_[i].caption,
              {caption.box.left, caption.box.top, box.box.left - 30, caption.box.height});
        rows_[i].caption->setText(Plain(ShownText(caption.caption)));
        rows_[i].caption->setVisible(caption.visible && !covered);

        RowEdit& text = *rows_[i].text;
        // The frame lies around the box, which has no room for one.
        text.setGeometry(InView(box.box).adjusted(0, -1, 0, 1));
        text.setAlignment((box.rightAligned ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        Paint(text, QPalette::Base, ToColor(Resolve(box.back, colors)));
        ShowText(rows_[i], caption, box);
        text.setVisible(box.visible && !covered);
    }
    if (grows) {
        OrderTabs();
        Stack();
    }
}

// A text that is set anew can't be undone: what was typed for one property is none of another's.
void PanelMirror::ShowText(Row& row, const RowCaption& caption, const TextBox& box) {
    const QString name = ShownText(caption.caption);
    const bool same = row.text->isVisibleTo(&parent_) && row.property == caption.Tag &&
                      row.text->accessibleName() == name;
    row.property = caption.Tag;
    if (row.text->accessibleName() != name) row.text->setAccessibleName(name);
    if (!same || row.text->text() != ShownText(box.text)) row.text->setText(ShownText(box.text));
}

void PanelMirror::ShowStyle(const SystemPalette& colors) {
    const PanelElements& panel = Elements();
    zorvane::Show(style_, panel.cmbStyle);
    preview_.Show(panel.StyleRim, panel.StyleWell, colors);
    Place(preview_, panel.StyleRim.box);
    preview_.setVisible(panel.StyleRim.visible);
}

void PanelMirror::ShowButtons() {
    zorvane::Show(menu_, Elements().cmdPopup);
    zorvane::Show(apply_, Elements().cmdApply);
}

} // namespace zorvane
