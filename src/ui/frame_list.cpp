#include "ui/frame_list.h"

#include <QKeyEvent>

#include "document/command_codes.h"
#include "platform/text.h"

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

void FrameList::ShowFrames(const std::vector<kirto::FrameSnapshot>& frames, int32 selected) {
    showing_ = true;
    for (size_t i = 0; i < frames.size(); ++i) {
        const std::string& name = frames[i].name;
        if (i < names_.size() && names_[i] == name) continue;
        const auto row = static_cast<int>(i);
        const QString text =
            QString::fromStdString(kirto::Format("frame #%04d    %s", row, name.c_str()));
        if (i < names_.size()) {
            item(row)->setText(text);
            names_[i] = name;
        } else {
            addItem(text);
            names_.push_back(name);
        }
    }
    names_.resize(frames.size());
    while (count() > static_cast<int>(frames.size()))
        delete takeItem(count() - 1);
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
