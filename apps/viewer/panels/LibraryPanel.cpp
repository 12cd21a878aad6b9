#include "apps/viewer/panels/LibraryPanel.h"

#include "apps/viewer/logic/PlateChoice.h"
#include "apps/viewer/panels/PlateItemDelegate.h"
#include "apps/viewer/widgets/Notice.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace zorvane::viewer {

namespace {

/// The numbers of rows, columns and sub-wells.
QString DetailsOf(const LibraryEntry& plate) {
    const QString text = plate.subWells == 1
                             ? LibraryPanel::tr("%1 × %2 · 1 sub-well")
                             : LibraryPanel::tr("%1 × %2 · %n sub-wells", nullptr, plate.subWells);
    return text.arg(plate.rows).arg(plate.cols);
}

} // namespace

LibraryPanel::LibraryPanel(QWidget* parent)
    : QWidget(parent), filter_(new QLineEdit), found_(new QLabel), list_(new QListWidget),
      notice_(new Notice) {
    filter_->setPlaceholderText(tr("Filter by name or tag"));
    filter_->setClearButtonEnabled(true);
    filter_->setAccessibleName(tr("Filter plates by name or tag"));
    filter_->installEventFilter(this);
    connect(filter_, &QLineEdit::textChanged, this, &LibraryPanel::Filter);
    connect(filter_, &QLineEdit::returnPressed, this, &LibraryPanel::Accept);

    list_->setAccessibleName(tr("Plates of the library"));
    list_->setItemDelegate(new PlateItemDelegate(list_));
    list_->setUniformItemSizes(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(list_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        if (item) emit plateChosen(item->text());
    });
    connect(list_, &QListWidget::itemActivated, this, &LibraryPanel::accepted);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(filter_);
    layout->addWidget(found_);
    found_->setObjectName(QStringLiteral("found"));
    found_->hide();
    layout->addWidget(list_, 1);
    layout->addWidget(notice_);
    setFocusProxy(filter_);
}

QString LibraryPanel::StopText(const LibraryListing& library) {
    const Long line = library.stoppedAtLine;
    if (line == 0) return {};
    switch (library.code) {
    case kStoppedAtStrayLine:
        return tr("Reading stops at line %1, which is not part of a plate and hides "
                  "the plates after it.")
            .arg(line);
    case kStoppedAtFailedLine:
        return tr("Reading stops at line %1, which cannot be read and hides the "
                  "plates after it.")
            .arg(line);
    default: // kStoppedAtInclude
        return tr("Reading stops at line %1: INCLUDE is not followed, and hides the "
                  "plates after it.")
            .arg(line);
    }
}

void LibraryPanel::Show(const LibraryListing& library) {
    const QSignalBlocker quiet(list_);
    library_ = library;
    filter_->clear();
    list_->clear();
    for (const LibraryEntry& plate : library.plates)
        AddPlate(plate);
    notice_->Show(StopText(library));
}

void LibraryPanel::AddPlate(const LibraryEntry& plate) {
    auto* item = new QListWidgetItem(QString::fromStdString(plate.name), list_);
    item->setData(PlateItemDelegate::kDetails, DetailsOf(plate));
    item->setData(PlateItemDelegate::kTags, QString::fromStdString(plate.tags));
    item->setToolTip(tr("%1\nLine %2").arg(item->text()).arg(plate.line));
    if (plate.found) return;
    item->setFlags(Qt::NoItemFlags);
    item->setToolTip(
        tr("Line %1: cannot be opened, as a plate before it has the same name").arg(plate.line));
}

QWidget& LibraryPanel::List() const { return *list_; }

void LibraryPanel::Choose(int index) { list_->setCurrentRow(index); }

QString LibraryPanel::Chosen() const {
    const QListWidgetItem* item = list_->currentItem();
    return item ? item->text() : QString();
}

void LibraryPanel::SetChosen(const QString& name) {
    const QSignalBlocker quiet(list_);
    for (int row = 0; row < list_->count(); ++row) {
        const QListWidgetItem* item = list_->item(row);
        if (item->text() == name && item->flags() != Qt::NoItemFlags) list_->setCurrentRow(row);
    }
}

void LibraryPanel::Filter() {
    const std::string typed = filter_->text().toStdString();
    int found = 0;
    for (int row = 0; row < list_->count(); ++row) {
        const LibraryEntry& plate = library_.plates[static_cast<std::size_t>(row)];
        const bool matches = MatchesFilter(plate, typed);
        list_->item(row)->setHidden(!matches);
        if (matches) ++found;
    }
    ShowCount(found);
    if (list_->currentItem()) list_->scrollToItem(list_->currentItem());
}

void LibraryPanel::ShowCount(int found) {
    found_->setText(found == 0 ? tr("Nothing found")
                               : tr("%1 of %n plates", nullptr, list_->count()).arg(found));
    found_->setVisible(!filter_->text().isEmpty());
}

void LibraryPanel::Step(int by) {
    for (int row = list_->currentRow() + by; row >= 0 && row < list_->count(); row += by) {
        const QListWidgetItem* item = list_->item(row);
        if (item->isHidden() || item->flags() == Qt::NoItemFlags) continue;
        list_->setCurrentRow(row);
        return;
    }
    const bool lost = list_->currentItem() && list_->currentItem()->isHidden();
    if (by > 0 && lost) Step(-1); // what is left lies above
}

void LibraryPanel::Accept() {
    const QListWidgetItem* item = list_->currentItem();
    if (!item || item->isHidden()) Step(1);
    emit accepted();
}

bool LibraryPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            Step(key == Qt::Key_Up ? -1 : 1);
            return true;
        }
        if (key == Qt::Key_Escape && !filter_->text().isEmpty()) {
            filter_->clear();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zorvane::viewer
