#include "apps/plate/table/DisplayWidth.h"

#include "runtime/Text.h"

#include <locale.h>
#include <wchar.h>

namespace zorvane {

namespace {

/// The widths of the system's Unicode tables, whatever the locale of the user is.
class UnicodeWidths {
  public:
    UnicodeWidths() : before_(unicode_ ? ::uselocale(unicode_) : nullptr) {}
    ~UnicodeWidths() {
        if (unicode_) ::uselocale(before_);
    }
    UnicodeWidths(const UnicodeWidths&) = delete;
    UnicodeWidths& operator=(const UnicodeWidths&) = delete;

    std::size_t WidthOf(Long code) const {
        if (!unicode_) return 1;
        const int width = ::wcwidth(static_cast<wchar_t>(code));
        return width < 0 ? 1 : static_cast<std::size_t>(width);
    }

  private:
    static inline const locale_t unicode_ = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    locale_t before_;
};

} // namespace

std::size_t DisplayWidth(std::string_view text) {
    const UnicodeWidths widths;
    std::size_t width = 0;
    while (!text.empty()) {
        const CharacterAt character = FirstCharacter(text);
        width += widths.WidthOf(character.code);
        text.remove_prefix(character.bytes);
    }
    return width;
}

} // namespace zorvane
