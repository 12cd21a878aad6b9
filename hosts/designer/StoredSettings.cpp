#include "hosts/designer/StoredSettings.h"

#include "hosts/qt/PlateWidget.h"

#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerPropertySheetExtension>
#include <QExtensionManager>
#include <QMetaProperty>

namespace zorvane {

namespace {

void ForgetDefaults(QDesignerFormWindowInterface& form) {
    PlateWidget fresh;
    fresh.resetPlateName(); // as a widget does that is shown before a plate has been asked for
    const QMetaObject& described = PlateWidget::staticMetaObject;
    for (PlateWidget* const plate : form.findChildren<PlateWidget*>()) {
        auto* const sheet =
            qt_extension<QDesignerPropertySheetExtension*>(form.core()->extensionManager(), plate);
        if (!sheet) continue;
        for (int i = described.propertyOffset(); i < described.propertyCount(); ++i) {
            const QMetaProperty property = described.property(i);
            if (!property.isStored() || property.read(plate) != property.read(&fresh)) continue;
            sheet->setChanged(sheet->indexOf(QString::fromLatin1(property.name())), false);
        }
    }
}

} // namespace

void StoreOnlyWhatDiffers(QDesignerFormWindowInterface* form) {
    QObject::connect(form, &QDesignerFormWindowInterface::changed, form,
                     [form] { ForgetDefaults(*form); });
}

} // namespace zorvane
