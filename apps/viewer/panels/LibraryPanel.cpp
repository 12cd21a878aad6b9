#include "apps/viewer/panels/LibraryPanel.h"

#include "apps/viewer/logic/PlateChoice.h"
#include "apps/viewer/panels/PlateItemDelegate.h"
#include "apps/viewer/widgets/Notice.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace zorvane::viewer {

namespace {

/// Why a listing ends before its file does; empty when it does not.
QString StopText(const LibraryListing& library) {
    const Long line = library.stoppedAtLine;
    if (line == 0) return {};
    switch (library.code) {
    case kStoppedAtStrayLine:
        return LibraryPanel::tr("Reading stops at line %1, which is not part of a plate and hides "
                                "the plates after it.")
            .arg(line);
    case kStoppedAtFailedLine:
        return LibraryPanel::tr("Reading stops at line %1, which cannot be read and hides the "
                                "plates after it.")
            .arg(line);
    default: // kStoppedAtInclude
        return LibraryPanel::tr("Reading stops at line %1: INCLUDE is not followed, and hides the "
                                "plates after it.")
            .arg(line);
    }
}

/// The numbers of rows, columns and sub-wells.
QString DetailsOf(const LibraryEntry& plate) {
    const QString text = plate.subWells == 1
                             ? LibraryPanel::tr("%1 × %2 · 1 sub-well")
                             : LibraryPanel::tr("%1 × %2 · %n sub-wells", nullptr, plate.subWells);
    return text.arg(plate.rows).arg(plate.cols);
}

} // namespace

LibraryPanel::LibraryPanel(QWidget* parent)
    : QWidget(parent), filter_(new QLineEdit), list_(new QListWidget), notice_(new Notice) {
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
    layout->addWidget(list_, 1);
    layout->addWidget(notice_);
    setFocusProxy(filter_);
}

void LibraryPanel::Show(const LibraryListing& library) {
    const QSignalBlocker quiet(list_);
    library_ = library;
    filter_->clear();
    list_->clear();
    for (const LibraryEntry& plate : library.plates)
        AddPlate(plate);
    const QString stop = StopText(library);
    const bool none = library.plates.empty() && stop.isEmpty();
    notice_->Show(none ? tr("There is no plate in this file.") : stop);
}

void LibraryPanel::AddPlate(const LibraryEntry& plate) {
    auto* item = new QListWidgetItem(QString::fromStdString(plate.name), list_);
    item->setData(PlateItemDelegate::kDetails, DetailsOf(plate));
    item->setData(PlateItemDelegate::kTags, QString::fromStdString(plate.tags));
    item->setToolTip(tr("Line %1").arg(plate.line));
    if (plate.found) return;
    item->setFlags(Qt::NoItemFlags);
    item->setToolTip(
        tr("Line %1: cannot be opened, as a plate before it has the same name").arg(plate.line));
}

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
    for (int row = 0; row < list_->count(); ++row) {
        const LibraryEntry& plate = library_.plates[static_cast<std::size_t>(row)];
        list_->item(row)->setHidden(!MatchesFilter(plate, typed));
    }
    if (list_->currentItem()) list_->scrollToItem(list_->currentItem());
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
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zorvane::viewer
