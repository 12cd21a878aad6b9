#include "hosts/designer/PlateWidgetPlugin.h"

#include "hosts/designer/PlateTaskMenu.h"
#include "hosts/designer/StoredSettings.h"
#include "hosts/qt/PlateWidget.h"

#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowManagerInterface>
#include <QExtensionManager>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>

namespace zorvane {

QString PlateWidgetPlugin::name() const { return QStringLiteral("zorvane::PlateWidget"); }

QString PlateWidgetPlugin::group() const { return QStringLiteral("Zorvane"); }

QString PlateWidgetPlugin::toolTip() const { return tr("Crystallization micro-plate"); }

QString PlateWidgetPlugin::whatsThis() const {
    return tr("Shows a plate from a plate library, in which an operator can pick wells.");
}

QString PlateWidgetPlugin::includeFile() const { return QStringLiteral("hosts/qt/PlateWidget.h"); }

/// A plate of two rows and three columns, one well of which is selected.
QIcon PlateWidgetPlugin::icon() const {
    constexpr int side = 48;
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x40, 0x48, 0x50), 2));
    painter.setBrush(QColor(0xF4, 0xF6, 0xF8));
    painter.drawRoundedRect(2, 8, side - 4, side - 16, 4, 4);
    for (int well = 0; well < 6; ++well) {
        painter.setBrush(well == 4 ? QColor(0x2F, 0x7F, 0xD6) : QColor(0xE0, 0xE0, 0xE0));
        painter.drawEllipse(6 + well % 3 * 13, 12 + well / 3 * 13, 10, 10);
    }
    return pixmap;
}

// A text that is not for translators in the widget that is dropped on a form stays so. Designer
// gives properties with these names an editor of one line.
QString PlateWidgetPlugin::domXml() const {
    return QStringLiteral(R"(<ui language="c++" displayname="Plate">
 <widget class="zorvane::PlateWidget" name="plate">
  <property name="geometry"><rect><x>0</x><y>0</y><width>440</width><height>320</height></rect></property>
  <property name="fileName"><string notr="true">%1</string></property>
  <property name="plateName"><string notr="true"/></property>
 </widget>
 <customwidgets>
  <customwidget>
   <class>zorvane::PlateWidget</class>
   <extends>QWidget</extends>
   <header>hosts/qt/PlateWidget.h</header>
  </customwidget>
 </customwidgets>
</ui>)")
        .arg(PlateWidget().fileName().toHtmlEscaped());
}

QWidget* PlateWidgetPlugin::createWidget(QWidget* parent) {
    auto* const plate = new PlateWidget(parent);
    if (inDesigner_) {
        // A form opens without questions on a machine that does not have the plate's library, and
        // keeps the plate's name.
        connect(plate, &PlateWidget::plateChanged, plate, [plate] { plate->setToolTip({}); });
        connect(plate, &PlateWidget::failed, plate,
                [plate](int, const QString&, const QString& why) {
                    if (plate->requestedPlateName().isEmpty()) return; // it has not been asked for
                    if (plate->plateName().isEmpty()) {
                        const QSignalBlocker silent(plate);
                        plate->setPlateClassText("PLATE " + plate->requestedPlateName() + '\n');
                    }
                    plate->setToolTip(why);
                });
    }
    return plate;
}

void PlateWidgetPlugin::initialize(QDesignerFormEditorInterface* editor) {
    if (initialized_) return;
    initialized_ = true;
    inDesigner_ = editor != nullptr;
    if (!inDesigner_) return; // a program that loads forms chooses its language itself
    PlateWidget::installTranslation();
    if (QExtensionManager* const manager = editor->extensionManager()) {
        manager->registerExtensions(new PlateTaskMenuFactory(manager),
                                    Q_TYPEID(QDesignerTaskMenuExtension));
    }
    if (QDesignerFormWindowManagerInterface* const forms = editor->formWindowManager()) {
        connect(forms, &QDesignerFormWindowManagerInterface::formWindowAdded, forms,
                &StoreOnlyWhatDiffers);
    }
}

} // namespace zorvane
