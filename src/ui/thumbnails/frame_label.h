#pragma once

#include <QPainter>
#include <QPalette>
#include <QString>
#include <string>

#include "animation/animation.h"
#include "picture/disposal.h"

namespace kirto {

// What a strip at the foot of a thumbnail tells of its frame: the number, the pause, in bold where
// it is the frame's own, and marks for what else the frame does not share with the others. GUI
// thread.
struct FrameLabel {
    // Lower thumbnails have no label, nor do those of which it would cover more than a third.
    static constexpr int kLeastHeight = 60;  // units of the widget

    QString number;
    QString pause;  // in seconds
    bool own_pause = false;
    bool own_palette = false;
    bool damaged = false;
    Disposal disposal = Disposal::kNone;  // how it stood in its file

    // in_seconds: the unit of pause lengths; index: 0 to the number of frames - 1.
    static FrameLabel Of(const Animation& animation, int32 index, bool in_seconds);

    // What the marks mean, in words; empty where there are none.
    QString Marks() const;
    // Into the thumbnail, whose place it is given; of a narrow one whatever fits, the number first.
    void Paint(QPainter& painter, const QRectF& thumbnail, const QPalette& palette) const;

  private:
    void PaintBehind(QPainter& painter, const QRectF& room) const;
    int MarkCount() const;
    void PaintMarks(QPainter& painter, QRectF mark) const;
};

}  // namespace kirto
