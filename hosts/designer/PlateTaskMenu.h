#pragma once

#include <QDesignerTaskMenuExtension>
#include <QExtensionFactory>
#include <QObject>

class QAction;

namespace zorvane {

class PlateWidget;

/// The entries of a plate's context menu in Qt Designer: they choose its library and one of the
/// plates in that, which a line of text cannot offer.
class PlateTaskMenu final : public QObject, public QDesignerTaskMenuExtension {
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

  public:
    PlateTaskMenu(PlateWidget* plate, QObject* parent);

    /// A double click on the plate in the form.
    QAction* preferredEditAction() const override { return choosePlate_; }
    QList<QAction*> taskActions() const override;

  private:
    void ChooseLibrary();
    void ChoosePlate();
    void SetProperty(const char* name, const QString& value);

    PlateWidget* plate_;
    QAction* chooseLibrary_;
    QAction* choosePlate_;
};

/// Makes the menu of each plate on a form.
class PlateTaskMenuFactory final : public QExtensionFactory {
    Q_OBJECT

  public:
    explicit PlateTaskMenuFactory(QExtensionManager* parent) : QExtensionFactory(parent) {}

  protected:
    QObject* createExtension(QObject* object, const QString& iid, QObject* parent) const override;
};

} // namespace zorvane
