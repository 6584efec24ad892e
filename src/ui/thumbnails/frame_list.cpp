#include "ui/thumbnails/frame_list.h"

#include <QKeyEvent>
#include <algorithm>

#include "base/text.h"
#include "document/command_codes.h"

namespace {

QString RowText(int32 row, const std::string& name) {
    return QString::fromStdString(kirto::Format("frame #%04d    %s", row, name.c_str()));
}

}  // namespace

FrameList::FrameList(BMessenger window, QWidget* parent)
    : QListWidget(parent), window_(std::move(window)) {
    setObjectName("FrameList");
    setAccessibleName("Frames");
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformItemSizes(true);
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        if (!showing_) window_.SendMessage(kirto::kFrameListSelection);
    });
}

void FrameList::ShowFrames(const kirto::FrameSequence& frames, int32 selected) {
    showing_ = true;
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
    if (selected != CurrentSelection()) {
        setCurrentRow(selected);
        if (selected < 0) clearSelection();
    }
    showing_ = false;
}

int32 FrameList::CurrentSelection() const {
    const QModelIndexList selected = selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
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
