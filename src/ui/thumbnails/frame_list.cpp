#include "ui/thumbnails/frame_list.h"

#include <QKeyEvent>
#include <algorithm>

#include "base/text.h"
#include "document/command_codes.h"
#include "kit/qt/ui_text.h"

namespace {

QString RowText(int32 row, const std::string& name) {
    return UiText::tr("frame #%1    %2")
        .arg(row, 4, 10, QChar('0'))
        .arg(QString::fromStdString(name));
}

}  // namespace

FrameList::FrameList(BMessenger window, QWidget* parent)
    : QListWidget(parent), window_(std::move(window)) {
    setObjectName("FrameList");
    setAccessibleName(UiText::tr("Frames"));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setUniformItemSizes(true);
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        if (!showing_) window_.SendMessage(kirto::kFrameListSelection);
    });
}

void FrameList::ShowFrames(const kirto::Animation& animation) {
    showing_ = true;
    const kirto::FrameSequence& frames = animation.frames;
    const int32 common = std::min(frames.Size(), frames_.Size());
    const kirto::FrameSequence::Difference changed = frames.DifferenceTo(frames_);
    // Where frames came or went, all rows after them show others: their numbers stay.
    const bool moved = changed.end != changed.other_end;
    const int32 end = moved ? common : changed.end;
    for (int32 row = changed.begin; row < end; ++row) {
        const std::string& name = frames.At(row)->name;
        if (frames_.At(row)->name != name) item(row)->setText(RowText(row, name));
    }
    for (int32 row = common; row < frames.Size(); ++row)
        addItem(RowText(row, frames.At(row)->name));
    while (count() > frames.Size())
        delete takeItem(count() - 1);
    frames_ = frames;
    const kirto::FrameSet selection = animation.Selection();
    if (animation.selected != CurrentSelection() || !(selection == Selection()))
        ShowSelection(selection, animation.selected);
    showing_ = false;
}

void FrameList::ShowSelection(const kirto::FrameSet& frames, int32 current) {
    QItemSelection selection;
    for (const kirto::FrameSet::Range& range : frames.Ranges())
        selection.append(
            QItemSelectionRange(model()->index(range.first, 0), model()->index(range.last, 0)));
    setCurrentRow(current, QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    // The first frame of a longer selection is no place to go to.
    if (currentItem()) scrollToItem(currentItem());
}

kirto::FrameSet FrameList::Selection() const {
    kirto::FrameSet frames;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        frames.Add({range.top(), range.bottom()});
    return frames;
}

int32 FrameList::CurrentSelection() const {
    return Selection().NearestTo(currentRow());
}

void FrameList::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
    if (plain && event->key() == Qt::Key_Insert) {
        window_.SendMessage(kirto::kMenuInsert);
    } else if (plain && event->key() == Qt::Key_Delete) {
        window_.SendMessage(kirto::kRemoveFrame);
    } else {
        QListWidget::keyPressEvent(event);
    }
}
