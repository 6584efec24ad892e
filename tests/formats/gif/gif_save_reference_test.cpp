// The files of arbitrary documents, byte for byte as the plain encoder writes them.
#include <gtest/gtest.h>

#include "formats/gif/gif_save.h"
#include "formats/gif/reference_gif_encoder.h"
#include "support/random_document.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

std::vector<uint8> Save(AnimationDocument& document) {
    const std::shared_ptr<BFile> file = BFile::OnMemory();
    GifSave(file, document);
    return file->Memory();
}

void ExpectSameFiles(const DocumentStyle& style, uint32 first_seed, uint32 count) {
    for (uint32 seed = first_seed; seed < first_seed + count; ++seed) {
        SeededChoices choices(seed);
        DocumentFixture fixture;
        ChooseSettings(choices, style, &fixture.prefs);
        FillDocument(choices, style, fixture.document);
        ASSERT_TRUE(Save(fixture.document) == EncodeReferenceGif(fixture.document))
            << "seed " << seed;
    }
}

TEST(GifSaveAgainstReference, WritesTheSameFilesForColoursOfThePalette) {
    ExpectSameFiles({}, 1, 150);
}

TEST(GifSaveAgainstReference, WritesTheSameFilesForAnyColours) {
    DocumentStyle style;
    style.fitting_colors = false;
    ExpectSameFiles(style, 1001, 150);
}

TEST(GifSaveAgainstReference, WritesTheSameFilesForOddDocuments) {
    DocumentStyle style;
    style.fitting_colors = false;
    style.oddities = true;
    ExpectSameFiles(style, 2001, 200);
}

TEST(GifSaveAgainstReference, WritesTheSameFilesForLargerPictures) {
    DocumentStyle style;
    style.max_side = 150;
    style.max_frames = 2;
    style.fitting_colors = false;
    ExpectSameFiles(style, 3001, 12);
}

}  // namespace

}  // namespace kirto::test
