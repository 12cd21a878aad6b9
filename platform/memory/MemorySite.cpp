#include "platform/memory/MemorySite.h"

#include "platform/Process.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace zorvane {

namespace {

// Larger than any screen; what lies beyond it could not be seen.
constexpr Single kMostPixels = 8192;

Long PixelsOf(Single length, Single twipsPerPixel) {
    const Single pixels = length / twipsPerPixel;
    // A screen without a pixel size shows nothing.
    return pixels > 0 ? static_cast<Long>(std::min(pixels, kMostPixels)) : 0;
}

/// Takes the next value from a script, or returns the one that means "cancelled".
template <class T>
T Next(std::deque<T>& script, T cancelled) {
    if (script.empty()) return cancelled;
    T next = std::move(script.front());
    script.pop_front();
    return next;
}

} // namespace

void MemorySite::SetSize(Single width, Single height) {
    width_ = width;
    height_ = height;
    const Screen& screen = CurrentProcess().TheScreen();
    overlay.Resize(PixelsOf(width, screen.TwipsPerPixelX()),
                   PixelsOf(height, screen.TwipsPerPixelY()));
}

void MemorySite::Resize(Single width, Single height) {
    ++resizes;
    SetSize(width, height);
}

String MemorySite::Ask(const Question& question) {
    questions.push_back(question);
    return Next(answers, String());
}

Integer MemorySite::Choose(const std::vector<MenuEntry>& entries) {
    menus.push_back(entries);
    const Integer choice = Next(choices, Integer{-1});
    if (choice < 0 || static_cast<std::size_t>(choice) >= entries.size()) return -1;
    return entries[static_cast<std::size_t>(choice)].enabled ? choice : Integer{-1};
}

} // namespace zorvane
