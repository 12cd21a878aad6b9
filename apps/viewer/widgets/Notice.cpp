#include "apps/viewer/widgets/Notice.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace zorvane::viewer {

Notice::Notice(QWidget* parent) : QFrame(parent), text_(new QLabel) {
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    auto* icon = new QLabel;
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
    text_->setWordWrap(true);
    text_->setTextFormat(Qt::PlainText);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);

    setFrameShape(QFrame::StyledPanel);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(icon, 0, Qt::AlignTop);
    layout->addWidget(text_, 1);
    hide();
}

void Notice::Show(const QString& text) {
    text_->setText(text);
    setAccessibleName(text);
    setVisible(!text.isEmpty());
}

QString Notice::Text() const { return text_->text(); }

} // namespace zorvane::viewer
