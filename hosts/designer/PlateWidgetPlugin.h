#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace zorvane {

/// Puts PlateWidget into the widget box of Qt Designer. QUiLoader finds it as well, so that
/// programs can load forms with plates at run time.
class PlateWidgetPlugin final : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetInterface")
    Q_INTERFACES(QDesignerCustomWidgetInterface)

  public:
    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QString domXml() const override;
    QWidget* createWidget(QWidget* parent) override;
    bool isInitialized() const override { return initialized_; }
    void initialize(QDesignerFormEditorInterface* editor) override;

  private:
    bool initialized_ = false;
    bool inDesigner_ = false; ///< not in a program that loads forms
};

} // namespace zorvane
