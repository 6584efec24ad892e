#include "ui/controls/check_input.h"

#include <string_view>

#include "base/core_text.h"
#include "base/number.h"
#include "base/text.h"
#include "kit/alert.h"

namespace kirto {

namespace {

int32 NumberIn(std::string_view text, int32) {
    return LeadingInteger(text);
}

double NumberIn(std::string_view text, double) {
    return LeadingReal(text);
}

std::string Shown(int32 number) {
    return Format("%d", number);
}

std::string Shown(double number) {
    return Format("%01.2f", number);
}

template <typename Number>
Number CheckBounds(TextControl& control, Number min, Number max, Number no_bound,
                   const char* subject) {
    const std::string text = control.text().toStdString();
    Number value = NumberIn(text, Number());
    const char* complaint = nullptr;
    if (value < min) {
        complaint = CoreText::Later("%1 can't be less than %2.");
        value = min;
    } else if (max != no_bound && value > max) {
        complaint = CoreText::Later("%1 can't be greater than %2.");
        value = max;
    }
    if (complaint) {
        BAlert("", CoreText::With(CoreText::tr(complaint), {CoreText::tr(subject), Shown(value)}),
               CoreText::Later("OK"))
            .Go();
    }
    const std::string shown = Shown(value);
    control.SetText(QString::fromStdString(shown));
    return NumberIn(shown, Number());
}

}  // namespace

int32 CheckInput(TextControl& control, int32 min, int32 max, const char* subject) {
    return CheckBounds(control, min, max, kNoUpperBound, subject);
}

double CheckInput(TextControl& control, double min, double max, const char* subject) {
    return CheckBounds(control, min, max, kNoUpperBoundReal, subject);
}

}  // namespace kirto
