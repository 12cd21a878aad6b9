#pragma once

#include "platform/Registry.h"
#include "runtime/Export.h"

#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace zorvane {

/// A registry held in memory. Key paths and value names ignore letter case.
class ZORVANE_EXPORT MemoryRegistry final : public Registry {
  public:
    MemoryRegistry();
    ~MemoryRegistry() override;

    Long OpenKey(Long root, const String& key, Long access, Handle& opened) override;
    Long CreateKey(Long root, const String& key, Long access, Handle& opened) override;
    Long QueryValue(Handle key, const String& name, Long capacity, Long& type,
                    String& data) override;
    Long SetValue(Handle key, const String& name, Long type, std::string_view data) override;
    Long EnumValue(Handle key, Long index, Long nameCapacity, Long dataCapacity, String& name,
                   String& data) override;
    Long CloseKey(Handle key) override;

    /// Stores a value as another program would have left it.
    void Put(Long root, const String& key, const String& name, Long type, std::string_view data);
    /// Makes every later call that writes answer this result instead of writing; 0 ends that.
    void RefuseWrites(Long result) { refusal_ = result; }
    Long OpenHandles() const { return static_cast<Long>(handles_.size()); }

  private:
    struct Value;
    struct Key;
    /// The key of a folded path; makes what is missing of the path.
    Key& MakeKey(Long root, const String& path);
    Key* KeyOf(Handle handle);
    Handle OpenHandle(Key& key);

    std::map<std::pair<Long, String>, std::unique_ptr<Key>> keys_; // by root and folded path
    std::map<Handle, Key*> handles_;
    Handle lastHandle_ = 0;
    Long refusal_ = kRegistrySuccess;
};

} // namespace zorvane
