#include "library/disk/TemporaryNames.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <filesystem>
#include <random>

#include <unistd.h>

namespace zorvane {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kMark = ".zorvane-";
constexpr std::size_t kLetters = 6;

// A signal handler reads these, which therefore neither move nor grow. A program saves one or two
// files at a time; those that find no slot are still removed by their destructor.
std::array<std::atomic<const char*>, 16> slots;
static_assert(std::atomic<const char*>::is_always_lock_free);

std::size_t TakeSlot(const char* path) {
    for (std::size_t slot = 0; slot < slots.size(); ++slot) {
        const char* free = nullptr;
        if (slots[slot].compare_exchange_strong(free, path)) return slot;
    }
    return slots.size();
}

/// What the names of all temporary files of a path begin with.
String Beginning(const fs::path& path) { return "." + path.filename().string() + String(kMark); }

bool IsSmallLetter(char c) { return c >= 'a' && c <= 'z'; }

} // namespace

String TemporaryName(const String& path, std::string_view end) {
    return (fs::path(path).parent_path() / Beginning(path).append(end)).string();
}

String NewTemporaryName(const String& path) {
    std::random_device random;
    std::uniform_int_distribution<int> letter('a', 'z');
    String end;
    while (end.size() < kLetters)
        end += static_cast<char>(letter(random));
    return TemporaryName(path, end);
}

void SweepTemporaries(const String& path) {
    const String beginning = Beginning(path);
    const fs::path folder = fs::path(path).parent_path();
    std::error_code ignored;
    for (fs::directory_iterator each(folder.empty() ? "." : folder, ignored), end; each != end;
         each.increment(ignored)) {
        const String name = each->path().filename().string();
        if (!name.starts_with(beginning)) continue;
        const std::string_view rest = std::string_view(name).substr(beginning.size());
        const bool ours =
            rest.size() == kLetters && std::all_of(rest.begin(), rest.end(), IsSmallLetter);
        if (ours) fs::remove(each->path(), ignored);
    }
}

TemporaryFile::TemporaryFile(String path)
    : path_(std::move(path)), slot_(TakeSlot(path_.c_str())) {}

TemporaryFile::~TemporaryFile() {
    ::unlink(path_.c_str()); // It has another name by now where the save went well.
    if (slot_ < slots.size()) slots[slot_] = nullptr;
}

void TemporaryFile::RemoveAll() noexcept {
    for (const auto& slot : slots)
        if (const char* const path = slot.load()) ::unlink(path);
}

} // namespace zorvane
