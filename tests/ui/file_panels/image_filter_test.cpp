#include "ui/file_panels/image_filter.h"

#include <gtest/gtest.h>

#include "support/fake_roster.h"

namespace kirto::test {

namespace {

// Reads formats of these types.
struct TypesRoster : FakeRoster {
    std::vector<translator_id> Translators() const override { return {1, 2}; }
    std::vector<translation_format> InputFormats(translator_id translator) const override {
        if (translator == 1) return {{1, "image/png", "PNG", {}}, {2, "image/x-tga", "TGA", {}}};
        return {{3, "image/gif", "GIF", {}}};
    }
};

bool Offers(const std::string& path, const std::string& type) {
    return ImageFilter(TypesRoster()).Filter(entry_ref(path), [&] { return type; });
}

}  // namespace

TEST(ImageFilter, OffersFilesOfTheTypesThatTheRosterReads) {
    for (const char* type : {"image/png", "image/x-tga", "image/gif"})
        EXPECT_TRUE(Offers("/a", type)) << type;
    for (const char* type : {"image/jpeg", "text/plain", "image/png2"})
        EXPECT_FALSE(Offers("/a.png", type)) << type;
}

TEST(ImageFilter, OffersFilesWhoseTypeIsPartOfAKnownOne) {
    EXPECT_TRUE(Offers("/a", "image/x"));
    EXPECT_TRUE(Offers("/a", "png"));
}

TEST(ImageFilter, OffersNoFileWithoutAType) {
    EXPECT_FALSE(Offers("/a.png", ""));
}

TEST(ImageFilter, OffersVolumesFoldersAndLinks) {
    EXPECT_TRUE(Offers("/", "application/x-vnd.Be-volume"));
    EXPECT_TRUE(Offers("/a", "application/x-vnd.Be-directory"));
    EXPECT_TRUE(Offers("/a", "application/x-vnd.Be-symlink"));
}

}  // namespace kirto::test
