#pragma once

#include "runtime/Types.h"

#include <QAccessibleInterface>
#include <QPointer>

namespace zorvane {

class PlateWidget;

/// One well as assistive technology sees it: where it is, what it holds and whether it is selected;
/// it can be made current and be selected. Invalid once the plate has no such well.
class WellAccessible final : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    WellAccessible(PlateWidget& widget, Integer well);

    Integer Well() const { return well_; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    /// None while the mouse is disabled: then the operator's input is not wanted.
    QStringList actionNames() const override;
    /// A press selects this well only, a toggle this one too.
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    QPointer<PlateWidget> widget_;
    Integer well_;
};

} // namespace zorvane
