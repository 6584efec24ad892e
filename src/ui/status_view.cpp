#include "ui/status_view.h"

#include <QHBoxLayout>
#include <QRegularExpression>

#include "ui/controls.h"

StatusView::StatusView(const kirto::ShownDocument& shown, QWidget* parent)
    : QWidget(parent), shown_(shown) {
    setObjectName("StatusView");
    status = kirto::MakeLabel("Status", "Status: 0 frame(s), unmodified", this);
    // Long names in the text must not widen the window.
    status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    progress = new QProgressBar(this);
    progress->setObjectName("Progress");
    progress->setAccessibleName("Progress");
    progress->setMaximumWidth(fontMetrics().horizontalAdvance("0") * 24);
    progress->setVisible(false);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 8, 4);
    layout->addWidget(status, 1);
    layout->addWidget(progress);
    // The line keeps its height when the bar comes and goes.
    setMinimumHeight(layout->contentsMargins().top() + progress->sizeHint().height() +
                     layout->contentsMargins().bottom());
}

void StatusView::UpdateDisplay(const char* text) {
    if (text) {
        const QString line = QString::fromUtf8(text);
        kirto::ShowText(*status, line);
        ShowProgress(line);
        return;
    }
    kirto::ShowText(*status, QString("Status: %1 frame(s), %2")
                                 .arg(shown_.FrameCount())
                                 .arg(shown_.State().modified ? "modified" : "unmodified"));
    progress->setVisible(false);
}

void StatusView::ResetDisplay() {
    kirto::ShowText(*status, "Status: 0 frame(s), unmodified");
    progress->setVisible(false);
}

void StatusView::ShowProgress(const QString& text) {
    static const QRegularExpression kDoneOf("(\\d+) of (\\d+)");
    const QRegularExpressionMatch match = kDoneOf.match(text);
    if (match.hasMatch()) {
        progress->setMaximum(match.captured(2).toInt());
        progress->setValue(match.captured(1).toInt());
    }
    progress->setVisible(match.hasMatch());
}
