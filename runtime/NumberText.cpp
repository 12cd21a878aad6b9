#include "runtime/NumberText.h"

#include "runtime/Decimal.h"
#include "runtime/RuntimeError.h"

#include <algorithm>
#include <cstdlib>

namespace zorvane {

namespace {

constexpr int kFirstLargeExponent = 15;
constexpr int kLastSmallExponent = -5;

/// What a picture asks for on each side of its point.
struct Picture {
    bool plus = false;
    bool point = false;
    int leastWhole = 0; ///< digits before the point that are always written
    int leastPlaces = 0;
    int mostPlaces = 0;
};

Picture ParsePicture(std::string_view text) {
    Picture picture;
    if (!text.empty() && (text[0] == '+' || text[0] == '-')) {
        picture.plus = text[0] == '+';
        text.remove_prefix(1);
    }
    if (text.find_first_not_of("0#.") != text.npos) Raise(ErrorNumber::InvalidProcedureCall);
    const std::size_t point = text.find('.');
    picture.point = point != text.npos;
    const std::string_view whole = text.substr(0, point);
    const std::string_view places = picture.point ? text.substr(point + 1) : "";
    if (places.find('.') != places.npos) Raise(ErrorNumber::InvalidProcedureCall);
    picture.leastWhole = static_cast<int>(whole.size() - std::min(whole.find('0'), whole.size()));
    picture.leastPlaces = static_cast<int>(places.rfind('0') + 1);
    picture.mostPlaces = static_cast<int>(places.size());
    return picture;
}

/// The digits from 10^(whole - 1) down to the given number of places, zeros included.
String FixedDigits(const Decimal& decimal, int whole, int places, bool point) {
    String text;
    for (int power = whole - 1; power >= 0; --power)
        text += decimal.DigitAt(power);
    if (point) text += '.';
    for (int power = -1; power >= -places; --power)
        text += decimal.DigitAt(power);
    return text;
}

int PlacesOf(const Decimal& decimal) {
    return std::max(0, static_cast<int>(decimal.digits.size()) - 1 - decimal.exponent);
}

String ExponentText(const Decimal& decimal) {
    String text = decimal.digits.substr(0, 1);
    if (decimal.digits.size() > 1) text += "." + decimal.digits.substr(1);
    const String power = std::to_string(std::abs(decimal.exponent));
    return text + (decimal.exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
}

String GeneralForm(const Decimal& decimal) {
    if (decimal.digits.empty()) return "0";
    const String sign = decimal.negative ? "-" : "";
    if (decimal.exponent >= kFirstLargeExponent || decimal.exponent <= kLastSmallExponent)
        return sign + ExponentText(decimal);
    const int places = PlacesOf(decimal);
    return sign + FixedDigits(decimal, std::max(1, decimal.exponent + 1), places, places > 0);
}

} // namespace

String FormatPicture(Double value, std::string_view picture) {
    const Picture wanted = ParsePicture(picture);
    Decimal decimal(value);
    decimal.Round(wanted.mostPlaces);
    const int whole = decimal.digits.empty() ? 0 : decimal.exponent + 1;
    const String digits =
        FixedDigits(decimal, std::max(whole, wanted.leastWhole),
                    std::max(PlacesOf(decimal), wanted.leastPlaces), wanted.point);
    if (decimal.negative) return "-" + digits;
    return wanted.plus && !decimal.digits.empty() ? "+" + digits : digits;
}

String GeneralText(Double value) { return GeneralForm(Decimal(value)); }

String SingleText(Single value) { return GeneralForm(Decimal(value)); }

} // namespace zorvane
