// Arbitrary bytes as a script of edits, undone and redone: whatever the order, the document keeps
// its own rules, undoing gives back what was before, and redoing what was after. Two bytes are an
// edit: which one, and where.
#include <cstdlib>
#include <utility>
#include <vector>

#include "document/animation_document.h"

namespace {

using kirto::Animation;

constexpr int32 kMostFrames = 200;
constexpr size_t kMostBytes = 400;

void Check(bool holds) {
    if (!holds) std::abort();
}

void CheckAnimation(const Animation& animation) {
    const int32 count = animation.frames.Size();
    Check((animation.selected == -1) == (count == 0) && animation.selected < count);
    Check(animation.several.Empty() ||
          (animation.several.Count() >= 2 && animation.several.Contains(animation.selected)));
    Check(animation.several.Last() < count && animation.several.First() >= -1);
    int32 visited = 0;
    for (const kirto::FramePointer& frame : animation.frames)
        Check(frame && frame == animation.frames.At(visited++));
    Check(visited == count && !animation.frames.At(count));
}

class ScriptedDocument {
  public:
    void Take(uint8 what, uint8 where) {
        switch (what % 16) {
            case 14:
                return Undo();
            case 15:
                return Redo();
            default:
                break;
        }
        const Animation before = *document_.Current();
        document_.BeginStep();
        Edit(what % 16, where);
        document_.EndStep("Edit");
        const Animation after = *document_.Current();
        CheckAnimation(after);
        if (before == after) return;
        steps_.resize(done_);
        steps_.emplace_back(before, after);
        ++done_;
    }

  private:
    void Edit(int32 what, uint8 where) {
        const int32 count = document_.FrameCount();
        const auto change = [this](auto edit) { document_.Change(edit); };
        if (what < 4 && count < kMostFrames) {
            document_.InsertFrameAsCurrent(where, Frame("frame", where % 7 + 1, 3));
        } else if (what < 6 && count < kMostFrames) {
            Check(document_.InsertFrame(where, Frame("frame", 5, 5)) == (where <= count));
        } else if (what == 6) {
            document_.RemoveFrame();
        } else if (what == 7) {
            document_.MoveFrame((where & 1) != 0);
        } else if (what == 8) {
            document_.ReverseFrames();
        } else if (what == 9) {
            document_.Select(where);
        } else if (what == 10 || what == 11) {
            change([where, count](Animation& next) {
                const kirto::FrameSet set =
                    kirto::FrameSet::Of(where % 50, count - 1, where % 3 + 1);
                if (count > 0) kirto::SelectFrames(next, set.Within(count), where % count);
            });
        } else if (what == 12) {
            change([where](Animation& next) {
                kirto::EditSelectedFrames(next, [where](Frame& frame) { frame.x_offset = where; });
            });
        } else if (what == 13) {
            change([where](Animation& next) { next.loop_count = where; });
        }
    }

    void Undo() {
        Check(document_.Undo() == (done_ > 0));
        if (done_ == 0) return;
        Check(*document_.Current() == steps_[--done_].first);
    }

    void Redo() {
        Check(document_.Redo() == (done_ < steps_.size()));
        if (done_ == steps_.size()) return;
        Check(*document_.Current() == steps_[done_++].second);
    }

    Prefs prefs_{Prefs::BuiltIn{}};
    AnimationDocument document_{prefs_};
    std::vector<std::pair<Animation, Animation>> steps_;
    size_t done_ = 0;  // how many of them are in effect
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ScriptedDocument document;
    for (size_t i = 0; i + 1 < size && i < kMostBytes; i += 2)
        document.Take(data[i], data[i + 1]);
    return 0;
}
