#include "runtime/NumberText.h"

#include "runtime/Decimal.h"
#include "runtime/RuntimeError.h"

#include <algorithm>
#include <cstdlib>

namespace zorvane {

namespace {

constexpr int kFirstLargeExponent = 15;
constexpr int kLastSmallExponent = -5;

bool IsSign(char c) { return c == '+' || c == '-'; }

/// What a picture asks for on each side of its point.
struct Picture {
    bool plus = false;
    bool grouped = false;
    bool percent = false;
    bool point = false;
    int wholePlaces = 0; ///< digits before the point, written or not
    int leastWhole = 0;  ///< those that are always written
    int leastPlaces = 0;
    int mostPlaces = 0;
    std::string_view exponent; ///< "E+00", or nothing
};

/// Takes the exponent off the end of a picture.
std::string_view TakeExponent(std::string_view& text) {
    const std::size_t at = text.find_first_of("Ee");
    if (at == text.npos) return {};
    const std::string_view exponent = text.substr(at);
    text = text.substr(0, at);
    const bool whole = exponent.size() >= 3 && IsSign(exponent[1]) &&
                       exponent.find_first_not_of('0', 2) == exponent.npos;
    if (!whole) Raise(ErrorNumber::InvalidProcedureCall);
    return exponent;
}

/// Reads the places before the point. Commas may separate them.
void ReadWhole(Picture& picture, std::string_view whole) {
    picture.grouped = whole.find(',') != whole.npos;
    if (whole.starts_with(',') || whole.ends_with(',')) Raise(ErrorNumber::InvalidProcedureCall);
    for (const char c : whole) {
        if (c == ',') continue;
        ++picture.wholePlaces;
        if (c == '0' || picture.leastWhole > 0) ++picture.leastWhole;
    }
}

Picture ParsePicture(std::string_view text) {
    Picture picture;
    if (!text.empty() && IsSign(text[0])) {
        picture.plus = text[0] == '+';
        text.remove_prefix(1);
    }
    picture.percent = text.ends_with('%');
    if (picture.percent) text.remove_suffix(1);
    picture.exponent = TakeExponent(text);
    if (text.find_first_not_of("0#.,") != text.npos) Raise(ErrorNumber::InvalidProcedureCall);
    const std::size_t point = text.find('.');
    picture.point = point != text.npos;
    ReadWhole(picture, text.substr(0, point));
    const std::string_view places = picture.point ? text.substr(point + 1) : "";
    if (places.find_first_of(".,") != places.npos) Raise(ErrorNumber::InvalidProcedureCall);
    picture.leastPlaces = static_cast<int>(places.rfind('0') + 1);
    picture.mostPlaces = static_cast<int>(places.size());
    return picture;
}

/// The digits from 10^(whole - 1) down to the given number of places, zeros included.
String FixedDigits(const Decimal& decimal, int whole, int places, bool point,
                   bool grouped = false) {
    String text;
    for (int power = whole - 1; power >= 0; --power) {
        text += decimal.DigitAt(power);
        if (grouped && power % 3 == 0 && power > 0) text += ',';
    }
    if (point) text += '.';
    for (int power = -1; power >= -places; --power)
        text += decimal.DigitAt(power);
    return text;
}

int PlacesOf(const Decimal& decimal) {
    return std::max(0, static_cast<int>(decimal.digits.size()) - 1 - decimal.exponent);
}

String PowerText(int power, std::size_t leastDigits) {
    const String digits = std::to_string(std::abs(power));
    return String(leastDigits - std::min(leastDigits, digits.size()), '0') + digits;
}

String ExponentText(const Decimal& decimal) {
    String text = decimal.digits.substr(0, 1);
    if (decimal.digits.size() > 1) text += "." + decimal.digits.substr(1);
    return text + (decimal.exponent < 0 ? "E-" : "E+") + PowerText(decimal.exponent, 2);
}

String GeneralForm(const Decimal& decimal) {
    if (decimal.digits.empty()) return "0";
    const String sign = decimal.negative ? "-" : "";
    if (decimal.exponent >= kFirstLargeExponent || decimal.exponent <= kLastSmallExponent)
        return sign + ExponentText(decimal);
    const int places = PlacesOf(decimal);
    return sign + FixedDigits(decimal, std::max(1, decimal.exponent + 1), places, places > 0);
}

/// Rounds to what the picture shows. With an exponent, moves the point to where the picture has it
/// and returns the power of ten that this takes.
int FitToPicture(Decimal& decimal, const Picture& picture) {
    const int wanted = picture.wholePlaces - 1;
    if (picture.exponent.empty() || decimal.digits.empty()) {
        decimal.Round(picture.mostPlaces);
        return 0;
    }
    int power = decimal.exponent - wanted;
    decimal.exponent = wanted;
    decimal.Round(picture.mostPlaces);
    // Rounding up to the next power of ten gives a digit too many.
    power += decimal.exponent - wanted;
    decimal.exponent = wanted;
    return power;
}

/// Writes an exponent as the picture has it: "E+00", "e-0".
String PictureExponent(int power, std::string_view picture) {
    const char* const sign = power < 0 ? "-" : picture[1] == '+' ? "+" : "";
    return picture[0] + (sign + PowerText(power, picture.size() - 2));
}

} // namespace

String FormatPicture(Double value, std::string_view picture) {
    const Picture wanted = ParsePicture(picture);
    Decimal decimal(value);
    if (wanted.percent && !decimal.digits.empty()) decimal.exponent += 2;
    const int power = FitToPicture(decimal, wanted);
    const int whole = decimal.digits.empty() ? 0 : decimal.exponent + 1;
    String text =
        FixedDigits(decimal, std::max(whole, wanted.leastWhole),
                    std::max(PlacesOf(decimal), wanted.leastPlaces), wanted.point, wanted.grouped);
    if (!wanted.exponent.empty()) text += PictureExponent(power, wanted.exponent);
    if (wanted.percent) text += '%';
    if (decimal.negative) return "-" + text;
    return wanted.plus && !decimal.digits.empty() ? "+" + text : text;
}

String GeneralText(Double value) { return GeneralForm(Decimal(value)); }

String SingleText(Single value) { return GeneralForm(Decimal(value)); }

} // namespace zorvane
