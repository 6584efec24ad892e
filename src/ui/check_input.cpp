#include "ui/check_input.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

#include "platform/alert.h"
#include "platform/text.h"

namespace kirto {

namespace {

// Blanks and a plus sign in front of a number count for nothing.
std::string_view NumberStart(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    if (text.starts_with('+')) text.remove_prefix(1);
    return text;
}

// The number that the text opens with; 0 without one, the type's bound where it can't hold it.
template <typename Number>
Number Settle(std::string_view text, Number number, std::errc error) {
    if (error != std::errc::result_out_of_range) return number;
    return text.starts_with('-') ? std::numeric_limits<Number>::lowest()
                                 : std::numeric_limits<Number>::max();
}

int32 LeadingNumber(std::string_view text, int32) {
    text = NumberStart(text);
    int32 number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return Settle(text, number, result.ec);
}

double LeadingNumber(std::string_view text, double) {
    text = NumberStart(text);
    double number = 0;
    const auto result =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    // "inf" and "nan" are words, not lengths of time.
    return std::isfinite(number) ? Settle(text, number, result.ec) : 0;
}

std::string Shown(int32 number) {
    return Format("%d", number);
}

std::string Shown(double number) {
    return Format("%01.2f", number);
}

template <typename Number>
Number CheckBounds(TextControl& control, Number min, Number max, Number no_bound,
                   const std::string& subject) {
    const std::string text = control.text().toStdString();
    Number value = LeadingNumber(text, Number());
    std::string complaint;
    if (value < min) {
        complaint = " can't be less than ";
        value = min;
    } else if (max != no_bound && value > max) {
        complaint = " can't be greater than ";
        value = max;
    }
    if (!complaint.empty()) {
        BAlert("", subject + complaint + Shown(value) + ".", "OK").Go();
    }
    const std::string shown = Shown(value);
    control.SetText(QString::fromStdString(shown));
    return LeadingNumber(shown, Number());
}

}  // namespace

int32 CheckInput(TextControl& control, int32 min, int32 max, const std::string& subject) {
    return CheckBounds(control, min, max, kNoUpperBound, subject);
}

double CheckInput(TextControl& control, double min, double max, const std::string& subject) {
    return CheckBounds(control, min, max, kNoUpperBoundReal, subject);
}

}  // namespace kirto
