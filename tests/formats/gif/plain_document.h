// A document of which every byte that is written is known.
#pragma once

#include <gtest/gtest.h>
#include <vector>

#include "formats/gif/gif_parts.h"
#include "formats/gif/gif_save.h"
#include "support/test_support.h"

namespace kirto::test {

inline void MakeBlackAndWhite(Palette* palette) {
    palette->mode = kPaletteFromFile;
    palette->bits = 1;
    palette->size = 2;
    palette->colors[0] = {0, 0, 0, 255};
    palette->colors[1] = {255, 255, 255, 255};
}

// A document whose palette is black and white, without loop, comment and pause.
struct PlainDocument : DocumentFixture {
    PlainDocument() {
        prefs.animation_gifcomment = false;
        EditOf(document)->width = 4;
        EditOf(document)->height = 4;
        EditOf(document)->use_loop = false;
        EditOf(document)->use_pause = false;
        MakeBlackAndWhite(&*PaletteEditOf(document));
    }
    FrameHandle Add(int32 width, int32 height, const std::vector<uint32>& argb) {
        return AppendFrame(document, PictureOf(width, height, argb), "frame");
    }
    std::vector<uint8> Save() {
        const std::shared_ptr<BFile> file = BFile::OnMemory();
        GifSave(file, document);
        return file->Memory();
    }
    GifParts SaveParts() {
        const GifParts parts = TakeApart(Save());
        EXPECT_TRUE(parts.complete);
        return parts;
    }
    // The delay field of the only frame.
    int32 SaveDelay() {
        const std::vector<uint8> control = SaveParts().images.at(0).control;
        return control[4] | control[5] << 8;
    }
};

}  // namespace kirto::test
