#include "hosts/designer/PlateTaskMenu.h"

#include "hosts/qt/PlateWidget.h"
#include "platetext/LibraryIndex.h"
#include "runtime/RuntimeError.h"

#include <QAction>
#include <QDesignerFormWindowCursorInterface>
#include <QDesignerFormWindowInterface>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace zorvane {

PlateTaskMenu::PlateTaskMenu(PlateWidget* plate, QObject* parent)
    : QObject(parent), plate_(plate), chooseLibrary_(new QAction(tr("Choose Library..."), this)),
      choosePlate_(new QAction(tr("Choose Plate..."), this)) {
    connect(chooseLibrary_, &QAction::triggered, this, &PlateTaskMenu::ChooseLibrary);
    connect(choosePlate_, &QAction::triggered, this, &PlateTaskMenu::ChoosePlate);
}

QList<QAction*> PlateTaskMenu::taskActions() const { return {choosePlate_, chooseLibrary_}; }

void PlateTaskMenu::ChooseLibrary() {
    const QString name =
        QFileDialog::getOpenFileName(plate_->window(), tr("Choose Library"), plate_->fileName(),
                                     tr("Plate libraries (*.dat *.Dat);;All files (*)"));
    if (!name.isEmpty()) SetProperty("fileName", name);
}

void PlateTaskMenu::ChoosePlate() {
    QStringList names;
    try {
        for (const LibraryEntry& entry : ListLibrary(plate_->fileName().toStdString()).plates)
            if (entry.found) names << QString::fromStdString(entry.name);
    } catch (const RuntimeError& error) {
        QMessageBox::warning(
            plate_->window(), tr("Choose Plate"),
            tr("The library \"%1\" cannot be read: %2")
                .arg(plate_->fileName(), QString::fromStdString(error.Description())));
        return;
    }
    bool chosen = false;
    const QString name =
        QInputDialog::getItem(plate_->window(), tr("Choose Plate"), tr("Plate:"), names,
                              int(names.indexOf(plate_->plateName())), false, &chosen);
    if (chosen) SetProperty("plateName", name);
}

/// Through the form, so that the change can be undone and is saved.
void PlateTaskMenu::SetProperty(const char* name, const QString& value) {
    if (auto* const form = QDesignerFormWindowInterface::findFormWindow(plate_))
        form->cursor()->setWidgetProperty(plate_, QString::fromLatin1(name), value);
}

QObject* PlateTaskMenuFactory::createExtension(QObject* object, const QString& iid,
                                               QObject* parent) const {
    auto* const plate = qobject_cast<PlateWidget*>(object);
    if (!plate || iid != Q_TYPEID(QDesignerTaskMenuExtension)) return nullptr;
    return new PlateTaskMenu(plate, parent);
}

} // namespace zorvane
