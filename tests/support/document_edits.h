// Edits of a document's fields in one expression, as in EditOf(document)->width = 4. What has been
// changed is committed at the expression's end.
#pragma once

#include "document/animation_document.h"

namespace kirto::test {

// Holds a copy of Value and gives it back when it goes.
template <typename Value, typename Commit>
class ValueEdit {
  public:
    ValueEdit(Value value, Commit commit) : value_(std::move(value)), commit_(std::move(commit)) {}
    ~ValueEdit() { commit_(std::move(value_)); }
    ValueEdit(const ValueEdit&) = delete;
    ValueEdit& operator=(const ValueEdit&) = delete;

    Value* operator->() { return &value_; }
    Value& operator*() { return value_; }

  private:
    Value value_;
    const Commit commit_;
};

inline auto EditOf(AnimationDocument& document) {
    return ValueEdit(*document.Current(),
                     [&document](Animation changed) { document.Commit(std::move(changed)); });
}

// Of the global palette.
inline auto PaletteEditOf(AnimationDocument& document) {
    return ValueEdit(*document.Current()->palette, [&document](const Palette& changed) {
        document.Change([&changed](Animation& animation) {
            kirto::EditPalette(animation, [&changed](Palette& palette) { palette = changed; });
        });
    });
}

inline auto FrameEditOf(AnimationDocument& document, int32 i) {
    return ValueEdit(*document.FrameAt(i), [&document, i](const Frame& changed) {
        document.Change([&changed, i](Animation& animation) {
            animation.frames.Replace(i, std::make_shared<const Frame>(changed));
        });
    });
}

inline auto FramePaletteEditOf(AnimationDocument& document, int32 i) {
    return ValueEdit(*document.FrameAt(i)->palette, [&document, i](const Palette& changed) {
        document.Change([&changed, i](Animation& animation) {
            kirto::EditFramePalette(animation, i,
                                    [&changed](Palette& palette) { palette = changed; });
        });
    });
}

// A frame of a document, by its id. frame->x_offset = 4 changes the frame in the document, and
// frame.Palette()->bits = 2 its palette.
class FrameHandle {
  public:
    FrameHandle(AnimationDocument& document, FrameId id) : document_(document), id_(id) {}

    auto operator->() const { return FrameEditOf(document_, Index()); }
    auto Palette() const { return FramePaletteEditOf(document_, Index()); }
    Frame operator*() const { return *document_.FrameAt(Index()); }
    int32 Index() const { return document_.Current()->frames.Find(id_); }

  private:
    AnimationDocument& document_;
    const FrameId id_;
};

}  // namespace kirto::test
