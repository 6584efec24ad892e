#include "ui/panels/status_view.h"

#include <QHBoxLayout>
#include <algorithm>

#include "animation/pauses.h"
#include "document/command_codes.h"
#include "ui/controls/controls.h"

StatusView::StatusView(const kirto::ShownDocument& shown, const BMessenger& window, QWidget* parent)
    : QWidget(parent), shown_(shown) {
    setObjectName("StatusView");
    status = kirto::MakeLabel("Status", "Status: 0 frame(s), unmodified", this);
    // Long names in the text must not widen the window.
    status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    selection = kirto::MakeLabel("Selection", "", this);
    progress = new QProgressBar(this);
    progress->setObjectName("Progress");
    progress->setAccessibleName("Progress");
    progress->setMaximumWidth(fontMetrics().horizontalAdvance("0") * 24);
    cancel = kirto::MakeButton("Cancel", "Cancel", kirto::kStopWork, window, this);
    cancel->setToolTip("Stops what is being done; what is complete is kept");
    // The keyboard stays where it is: Escape does the same.
    cancel->setFocusPolicy(Qt::NoFocus);
    HideWork();

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 8, 4);
    layout->addWidget(status, 1);
    layout->addWidget(selection);
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
        return;
    }
    kirto::ShowText(*status, QString("Status: %1 frame(s), %2")
                                 .arg(shown_.FrameCount())
                                 .arg(shown_.State().modified ? "modified" : "unmodified"));
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
    QString text = QString("%1 s").arg(seconds, 0, 'f', 2);
    if (!animation.several.Empty()) {
        text = QString("%1 of %2 selected, %3 s of ")
                   .arg(animation.several.Count())
                   .arg(count)
                   .arg(seconds_of(animation.several), 0, 'f', 2) +
               text;
    }
    if (seconds > 0) text += QString(", %1 fps").arg(count / seconds, 0, 'g', 3);
    kirto::ShowText(*selection, text);
}

void StatusView::ResetDisplay() {
    kirto::ShowText(*selection, {});
    kirto::ShowText(*status, "Status: 0 frame(s), unmodified");
    HideWork();
}

void StatusView::ShowWork(int64 done, int64 total) {
    // The bar counts in int; a file may have more bytes.
    constexpr int kParts = 1000;
    progress->setMaximum(total > 0 ? kParts : 0);
    const double share = total > 0 ? static_cast<double>(done) / static_cast<double>(total) : 0;
    progress->setValue(static_cast<int>(std::clamp(share, 0.0, 1.0) * kParts));
    progress->setVisible(true);
    cancel->setVisible(true);
}

void StatusView::HideWork() {
    progress->setVisible(false);
    cancel->setVisible(false);
}
