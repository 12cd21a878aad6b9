#pragma once

#include "platform/PropertyStore.h"
#include "runtime/Export.h"

class QSettings;

namespace zorvane {

/// Keeps the settings of one control in the present group of a QSettings, which must outlive this
/// object. Settings that are as in a new control are left out.
class ZORVANE_EXPORT SettingsStore final : public PropertyStore {
  public:
    explicit SettingsStore(QSettings& settings) : settings_(settings) {}

    /// A stored text is taken as a value of the fallback's type where it stands for one, as files
    /// may know nothing but texts. Where it does not, the control refuses it.
    PropertyValue Read(const String& key, const PropertyValue& fallback) const override;
    void Write(const String& key, const PropertyValue& value,
               const PropertyValue& fallback) override;

  private:
    QSettings& settings_;
};

} // namespace zorvane
