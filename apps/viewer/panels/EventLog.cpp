#include "apps/viewer/panels/EventLog.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

namespace zorvane::viewer {

namespace {

constexpr int kMostLines = 1000;

} // namespace

EventLog::EventLog(QWidget* parent) : QWidget(parent), lines_(new QPlainTextEdit) {
    lines_->setReadOnly(true);
    lines_->setMaximumBlockCount(kMostLines);
    lines_->setLineWrapMode(QPlainTextEdit::NoWrap);
    lines_->setTabChangesFocus(true);
    lines_->setPlaceholderText(tr("Events of the plate appear here as they are raised."));
    lines_->setAccessibleName(tr("Events"));

    auto* clear = new QPushButton(tr("C&lear"));
    clear->setToolTip(tr("Empty the list of events"));
    clear->setAutoDefault(false);
    connect(clear, &QPushButton::clicked, this, &EventLog::Clear);

    auto* layout = new QHBoxLayout(this);
    layout->addWidget(lines_, 1);
    layout->addWidget(clear, 0, Qt::AlignTop);
}

void EventLog::Add(const QString& line) {
    lines_->appendPlainText(QStringLiteral("%1  %2").arg(++count_, 4).arg(line));
    lines_->verticalScrollBar()->setValue(lines_->verticalScrollBar()->maximum());
}

void EventLog::Clear() {
    lines_->clear();
    count_ = 0;
}

QString EventLog::Text() const { return lines_->toPlainText(); }

} // namespace zorvane::viewer
