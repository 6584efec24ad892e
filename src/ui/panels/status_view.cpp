#include "ui/panels/status_view.h"

#include <QHBoxLayout>
#include <QLocale>
#include <algorithm>

#include "animation/pauses.h"
#include "document/command_codes.h"
#include "kit/qt/ui_text.h"
#include "ui/controls/controls.h"
#include "ui/panels/size_text.h"

namespace {

constexpr int kSizesIndent = 8;  // tells them from what stands before

}  // namespace

StatusView::StatusView(const kirto::ShownDocument& shown, const BMessenger& window, QWidget* parent)
    : QWidget(parent), shown_(shown) {
    setObjectName("StatusView");
    status = kirto::MakeLabel("Status", UiText::tr("Status: 0 frame(s), unmodified"), this);
    // Long names in the text must not widen the window.
    status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    selection = kirto::MakeLabel("Selection", "", this);
    sizes = kirto::MakeLabel("Sizes", "", this);
    sizes->setIndent(kSizesIndent);
    progress = new QProgressBar(this);
    progress->setObjectName("Progress");
    progress->setAccessibleName(UiText::tr("Progress"));
    progress->setMaximumWidth(fontMetrics().horizontalAdvance("0") * 24);
    cancel = kirto::MakeButton("Cancel", UiText::tr("Cancel"), kirto::kStopWork, window, this);
    cancel->setToolTip(UiText::tr("Stops what is being done; what is complete is kept"));
    // The keyboard stays where it is: Escape does the same.
    cancel->setFocusPolicy(Qt::NoFocus);
    HideWork();

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 8, 4);
    layout->addWidget(status, 1);
    layout->addWidget(selection);
    layout->addWidget(sizes);
    layout->addWidget(progress);
    layout->addWidget(cancel);
    // The line keeps its height when the bar comes and goes.
    setMinimumHeight(layout->contentsMargins().top() +
                     std::max(progress->sizeHint().height(), cancel->sizeHint().height()) +
                     layout->contentsMargins().bottom());
}

void StatusView::UpdateDisplay(const char* text) {
    ShowSelection();
    if (text) {
        kirto::ShowText(*status, QString::fromUtf8(text));
    } else {
        kirto::ShowText(*status, UiText::tr("Status: %1 frame(s), %2")
                                     .arg(shown_.FrameCount())
                                     .arg(shown_.State().modified ? UiText::tr("modified")
                                                                  : UiText::tr("unmodified")));
    }
    if (meter_) meter_->Measure(shown_.StatePointer());
    UpdateSizes();
}

void StatusView::ShowSizes(std::shared_ptr<const kirto::PixelBudget> memory) {
    memory_ = std::move(memory);
    meter_ = std::make_unique<kirto::SavedSizeMeter>([this] {
        QMetaObject::invokeMethod(
            this, [this] { UpdateSizes(); }, Qt::QueuedConnection);
    });
    UpdateDisplay();
}

// What is left beside everything else.
int StatusView::RoomForSizes() const {
    const QMargins margins = layout()->contentsMargins();
    int room = width() - margins.left() - margins.right() - kSizesIndent;
    for (const QWidget* widget : std::initializer_list<QWidget*>{selection, progress, cancel})
        if (!widget->isHidden()) room -= widget->sizeHint().width() + layout()->spacing();
    return room - status->fontMetrics().horizontalAdvance(status->text()) - layout()->spacing();
}

// As much of it as there is room for; all of it where the pointer rests.
void StatusView::UpdateSizes() {
    if (!memory_ || shown_.Frames().Empty()) {
        kirto::ShowText(*sizes, {});
        return sizes->setToolTip({});
    }
    constexpr int kDigits = 3;
    const QString memory = UiText::tr("%1 in memory")
                               .arg(kirto::SizeText(static_cast<int64>(memory_->Used()), kDigits));
    QString file;
    QString bytes = UiText::tr("The size of the file is not known yet.");
    if (const auto size = meter_->Last()) {
        file = (size->is_exact ? UiText::tr("file %1") : UiText::tr("file about %1"))
                   .arg(kirto::SizeText(size->bytes, size->is_exact ? kDigits : kDigits - 1));
        bytes = (size->is_exact ? UiText::tr("Saved as a GIF file, it has %1 bytes.")
                                : UiText::tr("Saved as a GIF file, it has about %1 bytes."))
                    .arg(QLocale().toString(qlonglong{size->bytes}));
    }
    const QString all = file.isEmpty() ? memory : memory + ", " + file;
    const int room = RoomForSizes();
    const QFontMetrics metrics = sizes->fontMetrics();
    QString text;
    for (const QString& choice : {file, all})
        if (metrics.horizontalAdvance(choice) <= room) text = choice;
    kirto::ShowText(*sizes, text);
    sizes->setToolTip(UiText::tr("The animation and what can be undone take %1.").arg(memory) +
                      "\n" + bytes);
}

void StatusView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    UpdateSizes();
}

// "5 of 30 selected, 0.20 s of 3.00 s, 10 fps", or the end of it.
void StatusView::ShowSelection() {
    const kirto::Animation& animation = shown_.Current();
    if (animation.frames.Empty()) return kirto::ShowText(*selection, {});
    const double units = kirto::PauseUnitsPerSecond(shown_.Settings().global_pauseinseconds);
    const auto seconds_of = [&](const kirto::FrameSet& frames) {
        return kirto::PauseOfAll(animation, frames) / units;
    };
    const int32 count = animation.frames.Size();
    const double seconds = seconds_of(kirto::FrameSet::AllOf(count));
    QString text = UiText::tr("%1 s").arg(seconds, 0, 'f', 2);
    if (!animation.several.Empty()) {
        text = UiText::tr("%1 of %2 selected, %3 s of %4")
                   .arg(animation.several.Count())
                   .arg(count)
                   .arg(seconds_of(animation.several), 0, 'f', 2)
                   .arg(text);
    }
    if (seconds > 0) text += UiText::tr(", %1 fps").arg(count / seconds, 0, 'g', 3);
    kirto::ShowText(*selection, text);
}

void StatusView::ResetDisplay() {
    kirto::ShowText(*selection, {});
    kirto::ShowText(*status, UiText::tr("Status: 0 frame(s), unmodified"));
    HideWork();
    if (meter_) meter_->Measure(shown_.StatePointer());
}

void StatusView::ShowWork(int64 done, int64 total) {
    // The bar counts in int; a file may have more bytes.
    constexpr int kParts = 1000;
    progress->setMaximum(total > 0 ? kParts : 0);
    const double share = total > 0 ? static_cast<double>(done) / static_cast<double>(total) : 0;
    progress->setValue(static_cast<int>(std::clamp(share, 0.0, 1.0) * kParts));
    progress->setVisible(true);
    cancel->setVisible(true);
    UpdateSizes();
}

void StatusView::HideWork() {
    progress->setVisible(false);
    cancel->setVisible(false);
    UpdateSizes();
}
