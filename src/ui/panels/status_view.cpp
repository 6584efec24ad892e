#include "ui/panels/status_view.h"

#include <QHBoxLayout>
#include <algorithm>

#include "document/command_codes.h"
#include "ui/controls/controls.h"

StatusView::StatusView(const kirto::ShownDocument& shown, const BMessenger& window, QWidget* parent)
    : QWidget(parent), shown_(shown) {
    setObjectName("StatusView");
    status = kirto::MakeLabel("Status", "Status: 0 frame(s), unmodified", this);
    // Long names in the text must not widen the window.
    status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
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
    layout->addWidget(progress);
    layout->addWidget(cancel);
    // The line keeps its height when the bar comes and goes.
    setMinimumHeight(layout->contentsMargins().top() +
                     std::max(progress->sizeHint().height(), cancel->sizeHint().height()) +
                     layout->contentsMargins().bottom());
}

void StatusView::UpdateDisplay(const char* text) {
    if (text) {
        kirto::ShowText(*status, QString::fromUtf8(text));
        return;
    }
    kirto::ShowText(*status, QString("Status: %1 frame(s), %2")
                                 .arg(shown_.FrameCount())
                                 .arg(shown_.State().modified ? "modified" : "unmodified"));
}

void StatusView::ResetDisplay() {
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
