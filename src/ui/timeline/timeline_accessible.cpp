#include "ui/timeline/timeline_accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>
#include <algorithm>

#include "ui/timeline/timeline_view.h"

namespace kirto {

namespace {

// One block. It outlives its frame's place in the list, and stands for nothing then.
class BlockAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    BlockAccessible(TimelineView& view, int32 frame) : view_(&view), frame_(frame) {}

    bool isValid() const override { return view_ && frame_ < view_->FrameCount(); }
    QObject* object() const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessibleInterface* parent() const override {
        return view_ ? QAccessible::queryAccessibleInterface(view_) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name && isValid() ? view_->NameOf(frame_) : QString();
    }
    QRect rect() const override {
        if (!isValid()) return {};
        const QRect place = view_->PlaceOf(frame_);
        return {view_->viewport()->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !isValid();
        if (state.invalid) return state;
        state.selectable = state.multiSelectable = state.focusable = true;
        state.selected = view_->IsSelected(frame_);
        state.focused = frame_ == view_->CurrentFrame() && view_->hasFocus();
        state.offscreen = !view_->viewport()->rect().intersects(view_->PlaceOf(frame_));
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type != QAccessible::ActionInterface) return nullptr;
        return static_cast<QAccessibleActionInterface*>(this);
    }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction() && isValid()) view_->Select(frame_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    int32 Frame() const { return frame_; }

  private:
    const QPointer<TimelineView> view_;
    const int32 frame_;
};

class TimelineAccessible : public QAccessibleWidget {
  public:
    explicit TimelineAccessible(TimelineView& view)
        : QAccessibleWidget(&view, QAccessible::List), view_(view) {}
    ~TimelineAccessible() override {
        for (const QAccessible::Id id : blocks_)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return static_cast<int>(Frames().size()); }
    QAccessibleInterface* child(int index) const override {
        const std::vector<int32> frames = Frames();
        if (index < 0 || index >= static_cast<int>(frames.size())) return nullptr;
        return BlockOf(frames[static_cast<size_t>(index)]);
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint point = view_.viewport()->mapFromGlobal(QPoint(x, y));
        for (const int32 frame : Frames()) {
            if (view_.PlaceOf(frame).contains(point)) return BlockOf(frame);
        }
        return nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* block = dynamic_cast<const BlockAccessible*>(child);
        if (!block) return -1;
        const std::vector<int32> frames = Frames();
        const auto found = std::find(frames.begin(), frames.end(), block->Frame());
        return found == frames.end() ? -1 : static_cast<int>(found - frames.begin());
    }
    QAccessibleInterface* focusChild() const override {
        return view_.hasFocus() && view_.CurrentFrame() >= 0 ? BlockOf(view_.CurrentFrame())
                                                             : nullptr;
    }

  private:
    // Those in sight and the current one, ascending.
    std::vector<int32> Frames() const {
        const auto [first, last] = view_.FramesInSight();
        std::vector<int32> frames;
        const int32 current = view_.CurrentFrame();
        const bool known = current >= 0 && current < view_.FrameCount();
        if (known && current < first) frames.push_back(current);
        for (int32 i = first; i < last; ++i)
            frames.push_back(i);
        if (known && current >= last) frames.push_back(current);
        return frames;
    }
    QAccessibleInterface* BlockOf(int32 frame) const {
        if (const auto known = blocks_.constFind(frame); known != blocks_.constEnd())
            return QAccessible::accessibleInterface(*known);
        auto* block = new BlockAccessible(view_, frame);
        blocks_.insert(frame, QAccessible::registerAccessibleInterface(block));
        return block;
    }

    TimelineView& view_;
    mutable QHash<int32, QAccessible::Id> blocks_;  // those that were asked for
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    auto* view = dynamic_cast<TimelineView*>(object);
    return view ? new TimelineAccessible(*view) : nullptr;
}

}  // namespace

void InstallTimelineAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    static_cast<void>(installed);
}

}  // namespace kirto
