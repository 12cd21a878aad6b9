#include "apps/viewer/editing/DifferencePanel.h"

#include "apps/viewer/widgets/Notice.h"
#include "runtime/Text.h"

#include <QEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QVBoxLayout>

#include <algorithm>

namespace zorvane::viewer {

namespace {

constexpr QRgb kAdded = 0x2E9E4F;
constexpr QRgb kRemoved = 0xD0453B;

/// Between the base of the palette and a colour, so that text stays legible on light and on dark.
QColor Tint(const QPalette& palette, QRgb color) {
    constexpr double share = 0.25;
    const QColor base = palette.color(QPalette::Base);
    const QColor full(color);
    const auto between = [](int from, int to) { return qRound(from + (to - from) * share); };
    return {between(base.red(), full.red()), between(base.green(), full.green()),
            between(base.blue(), full.blue())};
}

QString SignOf(LineChange change) {
    switch (change) {
    case LineChange::Removed:
        return QStringLiteral("− ");
    case LineChange::Added:
        return QStringLiteral("+ ");
    default:
        return QStringLiteral("  ");
    }
}

QString LineCount(std::ptrdiff_t count) {
    return count == 1 ? DifferencePanel::tr("1 line")
                      : DifferencePanel::tr("%n lines", nullptr, static_cast<int>(count));
}

QString Summary(const std::vector<ChangedLine>& lines, bool edited) {
    const auto count = [&](LineChange change) {
        return std::count_if(lines.begin(), lines.end(),
                             [=](const ChangedLine& line) { return line.change == change; });
    };
    const auto removed = count(LineChange::Removed);
    const auto added = count(LineChange::Added);
    if (removed + added == 0) return DifferencePanel::tr("This is what the library holds.");
    if (edited) {
        //: %1 and %2 are numbers of lines, such as "1 line" and "3 lines".
        return DifferencePanel::tr("Saving takes out %1 and puts in %2.")
            .arg(LineCount(removed), LineCount(added));
    }
    return DifferencePanel::tr(
        "Nothing was edited. Saving an edit also rewrites the coloured lines.");
}

} // namespace

DifferencePanel::DifferencePanel(QWidget* parent)
    : QWidget(parent), summary_(new QLabel), text_(new QPlainTextEdit), problem_(new Notice),
      save_(new QPushButton(tr("Save to Library"))) {
    summary_->setWordWrap(true);
    text_->setReadOnly(true);
    text_->setLineWrapMode(QPlainTextEdit::NoWrap);
    text_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text_->setAccessibleName(tr("Difference to the library"));
    text_->setTabChangesFocus(true);
    auto* saveAs = new QPushButton(tr("Save as New Plate…"));
    connect(save_, &QPushButton::clicked, this, &DifferencePanel::saveAsked);
    connect(saveAs, &QPushButton::clicked, this, &DifferencePanel::saveAsAsked);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(save_);
    buttons->addWidget(saveAs);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(summary_);
    layout->addWidget(text_, 1);
    layout->addWidget(problem_);
    layout->addLayout(buttons);
}

void DifferencePanel::Show(const std::vector<ChangedLine>& lines, bool edited) {
    save_->setEnabled(edited);
    const bool same = lines == lines_ && summary_->text() == Summary(lines, edited);
    if (same) return;
    lines_ = lines;
    summary_->setText(Summary(lines, edited));
    QStringList texts;
    for (const ChangedLine& line : lines)
        texts += SignOf(line.change) + QString::fromStdString(PrintableUtf8(line.text));
    text_->setPlainText(texts.join(QLatin1Char('\n')));
    Paint();
}

void DifferencePanel::ShowProblem(const QString& text) { problem_->Show(text); }

QString DifferencePanel::Text() const { return text_->toPlainText(); }

/// Colours the whole width of the lines that change, and scrolls to the first of them.
void DifferencePanel::Paint() {
    QList<QTextEdit::ExtraSelection> marks;
    QTextBlock block = text_->document()->begin();
    for (const ChangedLine& line : lines_) {
        if (line.change != LineChange::Same) {
            QTextEdit::ExtraSelection mark;
            mark.cursor = QTextCursor(block);
            mark.format.setBackground(
                Tint(palette(), line.change == LineChange::Added ? kAdded : kRemoved));
            mark.format.setProperty(QTextFormat::FullWidthSelection, true);
            marks.append(mark);
        }
        block = block.next();
    }
    text_->setExtraSelections(marks);
    if (marks.isEmpty()) return;
    text_->setTextCursor(marks.front().cursor);
    text_->centerCursor();
}

void DifferencePanel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) Paint();
}

} // namespace zorvane::viewer
