#include "ui/panels/size_text.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "kit/qt/ui_text.h"

namespace kirto {

QString SizeText(int64 bytes, int digits) {
    constexpr int64 kThousand = 1000;
    if (bytes < kThousand) return UiText::tr("%1 bytes").arg(bytes);
    static constexpr std::array<const char*, 3> kUnits = {
        UiText::Later("%1 kB"), UiText::Later("%1 MB"), UiText::Later("%1 GB")};
    size_t unit = 0;
    double value = static_cast<double>(bytes) / kThousand;
    const auto rounded = [digits](double number) {
        const int whole = static_cast<int>(std::floor(std::log10(number))) + 1;
        const double step = std::pow(10.0, whole - digits);
        return std::round(number / step) * step;
    };
    while (rounded(value) >= kThousand && unit + 1 < kUnits.size()) {
        value /= kThousand;
        ++unit;
    }
    value = rounded(value);
    const int whole = static_cast<int>(std::floor(std::log10(value))) + 1;
    return UiText::tr(kUnits[unit]).arg(value, 0, 'f', std::max(digits - whole, 0));
}

}  // namespace kirto
