#pragma once

#include "runtime/Types.h"

#include <string_view>

/// Numbers to text and back, always with "." as the decimal separator. The words for infinity and
/// "not a number" are not numbers here: reading does not know them, and writing a value that is not
/// finite raises error 6.
namespace zorvane {

/// The value written with a picture of digits 0 and #, at most one point and an optional leading
/// sign ("0.00", "0.0#", "+0"). Every 0 stands for a digit that is always written, every # for one
/// that is left out when it would be an outer zero; a point is always written. With "+" in front
/// the sign of a positive value is written too. A comma between digits before the point parts
/// thousands ("#,##0"), "%" at the end writes hundredths ("0.0%"), and an exponent at the end gives
/// the value as many digits before the point as the picture has ("0.00E+00"; with "E-" only a
/// negative sign is written). Rounds half away from zero on the value's 15-digit decimal form; a
/// result of zero has no sign. Error 5 for any other picture.
String FormatPicture(Double value, std::string_view picture);

/// The shortest general number text with at most 15 significant digits: "3", "2.5", with an
/// exponent from 1E+15 on and below 0.0001 ("1E-05").
String GeneralText(Double value);

/// The shortest decimal text that reads back as the same Single, in the form of GeneralText.
String SingleText(Single value);

/// The number at the start of a text, after blanks: sign, digits, point, exponent. 0 when the text
/// does not begin with one. Error 6 when the number is too large for a Double; one too small for
/// it is 0.
Double LeadingNumber(std::string_view text);

/// LeadingNumber as the nearest Single; error 6 when it is too large for one.
Single LeadingSingle(std::string_view text);

/// True when the whole text, ignoring blanks around it, is one decimal number that a Double can
/// hold.
Boolean IsNumber(std::string_view text);

/// The whole text, ignoring blanks around it, as a number. Error 13 when it is none, 6 when it is
/// too large for a Double.
Double ParseDouble(std::string_view text);

/// The whole text, ignoring blanks around it, as a 32-bit number: decimal (halves to even), or
/// hexadecimal with the prefix "&H", whose 32 bits are taken as is ("&HFFFFFFFF" is -1).
/// Error 13 when it is no number, 6 when it does not fit.
Long ParseLong(std::string_view text);

} // namespace zorvane
