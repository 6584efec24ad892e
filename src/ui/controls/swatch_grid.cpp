#include "ui/controls/swatch_grid.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <numeric>
#include <tuple>

#include "kit/qt/ui_text.h"
#include "ui/controls/swatch_grid_accessible.h"

namespace kirto {

namespace {

constexpr int kSwatchGap = 1;     // between swatches
constexpr int kSwatchMargin = 2;  // for the line around the current one
constexpr int kBright = 128;      // grey that dark letters are read on

// Greys first, from dark to light, then around the wheel.
auto HueOf(const QColor& color) {
    return std::tuple(color.hsvHue() < 0 ? -1 : color.hsvHue(), color.lightness(),
                      color.hsvSaturation());
}

}  // namespace

SwatchGrid::SwatchGrid(QWidget* parent) : QWidget(parent) {
    InstallSwatchAccessibility();
    setObjectName("Swatches");
    setAccessibleName(UiText::tr("Colors"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SwatchGrid::SetSwatches(std::vector<Swatch> swatches, Marks marks) {
    swatches_ = std::move(swatches);
    marks_ = marks;
    pointed_ = pointed_ < Count() ? pointed_ : -1;
    current_ = Count() == 0 ? -1 : std::clamp(current_, 0, Count() - 1);
    Arrange();
}

void SwatchGrid::SetOrder(Order order) {
    sorted_ = order;
    Arrange();
}

void SwatchGrid::Arrange() {
    order_.resize(swatches_.size());
    std::iota(order_.begin(), order_.end(), 0);
    const auto swatch = [this](int index) { return swatches_[static_cast<size_t>(index)]; };
    if (sorted_ == Order::kHue) {
        std::stable_sort(order_.begin(), order_.end(), [&](int a, int b) {
            return HueOf(swatch(a).color) < HueOf(swatch(b).color);
        });
    } else if (sorted_ == Order::kUse) {
        std::stable_sort(order_.begin(), order_.end(),
                         [&](int a, int b) { return swatch(a).pixels > swatch(b).pixels; });
    }
    places_.resize(order_.size());
    for (size_t place = 0; place < order_.size(); ++place)
        places_[static_cast<size_t>(order_[place])] = static_cast<int>(place);
    updateGeometry();
    update();
    Tell();
}

int SwatchGrid::PlaceOf(int index) const {
    return index >= 0 && index < Count() ? places_[static_cast<size_t>(index)] : -1;
}

int SwatchGrid::Side() const {
    const int rows = std::max(Rows(), 1);
    return std::max(
        std::min((width() - 2 * kSwatchMargin) / kColumns, (height() - 2 * kSwatchMargin) / rows),
        1 + kSwatchGap);
}

QRect SwatchGrid::AreaOf(int index) const {
    const int place = PlaceOf(index);
    if (place < 0) return {};
    const int side = Side();
    return {kSwatchMargin + place % kColumns * side, kSwatchMargin + place / kColumns * side,
            side - kSwatchGap, side - kSwatchGap};
}

int SwatchGrid::IndexAt(QPoint point) const {
    const QPoint inside = point - QPoint(kSwatchMargin, kSwatchMargin);
    if (inside.x() < 0 || inside.y() < 0 || inside.x() >= kColumns * Side()) return -1;
    const int place = inside.y() / Side() * kColumns + inside.x() / Side();
    return place < Count() ? IndexOf(place) : -1;
}

QString SwatchGrid::NameOf(int index) const {
    if (PlaceOf(index) < 0) return {};
    const Swatch& swatch = swatches_[static_cast<size_t>(index)];
    QString name = UiText::tr("Color %1, %2, %3 pixels")
                       .arg(index)
                       .arg(swatch.color.name())
                       .arg(qlonglong{swatch.pixels});
    if (index == marks_.background) name += UiText::tr(", background");
    if (index == marks_.transparent) name += UiText::tr(", transparent");
    return name;
}

void SwatchGrid::SetCurrent(int index) {
    if (PlaceOf(index) < 0 || index == current_) return;
    current_ = index;
    update();
    Tell();
    TellFocusedSwatch(*this);
}

void SwatchGrid::Choose(int index) {
    if (PlaceOf(index) < 0) return;
    SetCurrent(index);
    if (chosen_) chosen_(index);
}

void SwatchGrid::Point(int index) {
    if (index == pointed_) return;
    pointed_ = index;
    Tell();
}

void SwatchGrid::Tell() const {
    if (told_) told_();
}

QSize SwatchGrid::minimumSizeHint() const {
    const int side = fontMetrics().height() + kSwatchGap;
    return {kColumns * side + 2 * kSwatchMargin, kColumns * side + 2 * kSwatchMargin};
}

bool SwatchGrid::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    QToolTip::showText(help.globalPos(), NameOf(IndexAt(help.pos())), this);
    return true;
}

void SwatchGrid::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int index = 0; index < Count(); ++index) {
        const QColor color = swatches_[static_cast<size_t>(index)].color;
        const QRect area = AreaOf(index);
        painter.fillRect(area, color);
        painter.setPen(qGray(color.rgb()) < kBright ? Qt::white : Qt::black);
        if (index == marks_.background || index == marks_.transparent) {
            const bool both = marks_.background == marks_.transparent;
            painter.drawText(area, Qt::AlignCenter,
                             both                         ? "BT"
                             : index == marks_.background ? "B"
                                                          : "T");
        }
    }
    const QRect current = AreaOf(current_);
    if (current.isEmpty()) return;
    painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), 2));
    painter.drawRect(current.adjusted(0, 0, kSwatchGap, kSwatchGap));
}

void SwatchGrid::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Choose(IndexAt(event->pos()));
}

void SwatchGrid::mouseMoveEvent(QMouseEvent* event) {
    Point(IndexAt(event->pos()));
}

void SwatchGrid::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    Point(-1);
}

void SwatchGrid::keyPressEvent(QKeyEvent* event) {
    const int place = PlaceOf(current_);
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
    if (place < 0 || !plain) return QWidget::keyPressEvent(event);
    const auto go_to = [this](int target) {
        if (target >= 0 && target < Count()) SetCurrent(IndexOf(target));
    };
    switch (event->key()) {
        case Qt::Key_Left:
            return go_to(place - 1);
        case Qt::Key_Right:
            return go_to(place + 1);
        case Qt::Key_Up:
            return go_to(place - kColumns);
        case Qt::Key_Down:
            return go_to(place + kColumns);
        case Qt::Key_Home:
            return go_to(0);
        case Qt::Key_End:
            return go_to(Count() - 1);
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Choose(current_);
        default:
            return QWidget::keyPressEvent(event);
    }
}

}  // namespace kirto
