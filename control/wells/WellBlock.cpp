#include "control/wells/WellBlock.h"

#include "runtime/Checked.h"
#include "runtime/RuntimeError.h"

#include <string>

namespace zorvane {

namespace {

/// One direction of a walk: `count` positions from `first` in steps of +1 or -1.
struct Run {
    Integer first;
    Integer step;
    Integer count;

    Integer At(Integer index) const { return Checked(first) + Checked(step) * index; }
};

Run RunOver(Integer first, Integer count, Boolean backwards) {
    const Integer last = Checked(first) + count - 1;
    return backwards ? Run{last, -1, count} : Run{first, 1, count};
}

Boolean IsVertical(Long order) { return order % 2 != 0; }
Boolean FromRight(Long order) { return (order & 2) != 0; }
Boolean FromBottom(Long order) { return (order & 4) != 0; }

String NumberedCaption(const String& annotation, Integer number) {
    const std::size_t mark = annotation.find('#');
    if (mark == String::npos) return annotation;
    return annotation.substr(0, mark) + std::to_string(number) + annotation.substr(mark + 1);
}

} // namespace

void WellBlock::Record(Integer x, Integer y, Integer width, Integer height) {
    x_ = x;
    y_ = y;
    width_ = width;
    height_ = height;
}

void WellBlock::Check() const {
    const Integer right = Checked(x_) + width_;
    const Integer bottom = Checked(y_) + height_;
    if (bottom > fields_.Rows || right > fields_.Cols || x_ < 0 || y_ < 0) {
        Raise(ErrorNumber::ArrayOutsidePlate,
              "Attempt to select wells outside <" + plateName_ + "> plate", "Zorvane::SelectBlock");
    }
}

void WellBlock::Select(Long color) {
    Check();
    for (Integer column = 0; column < width_; ++column) {
        for (Integer row = 0; row < height_; ++row) {
            cursor_.MoveTo(Checked(y_) + row, Checked(x_) + column);
            if (selection_.AddCurrent() && color != kNoColor)
                elements_.FillBottom(cursor_.Number(), color);
        }
    }
}

void WellBlock::Fill(Long color, const String& annotation, Integer startWell, Integer stopWell) {
    const Integer stop = stopWell == -1 ? Checked(width_) * height_ : Checked(stopWell);
    if (stop < startWell || direction_ < foTopLeftHorizontal || direction_ > foBottomRightVertical)
        return;

    const Boolean vertical = IsVertical(direction_);
    const Run columns = RunOver(x_, width_, FromRight(direction_));
    const Run rows = RunOver(y_, height_, FromBottom(direction_));
    const Run& outer = vertical ? columns : rows;
    const Run& inner = vertical ? rows : columns;
    Integer number = 0;
    for (Integer i = 0; i < outer.count; ++i) {
        for (Integer j = 0; j < inner.count; ++j) {
            if (number >= stop) return;
            number = Checked(number) + 1;
            if (number < startWell) continue;
            cursor_.MoveTo(vertical ? inner.At(j) : outer.At(i),
                           vertical ? outer.At(i) : inner.At(j));
            if (color != kNoColor) elements_.FillBottom(cursor_.Number(), color);
            if (annotation != kNoValue)
                elements_.Annotate(cursor_.Number(), NumberedCaption(annotation, number));
        }
    }
}

} // namespace zorvane
