#include "ui/file_panels/kirto_filter.h"

#include <gtest/gtest.h>

namespace kirto::test {

namespace {

bool FilterOffers(const std::string& path, const std::string& type) {
    return KirtoFilter().Filter(entry_ref(path), [&] { return type; });
}

}  // namespace

TEST(KirtoFilter, OffersAFileNamedClipInCapitalsOfUnknownTypeButNotInMixedCase) {
    EXPECT_TRUE(FilterOffers("/a/clip.GIF", ""));
    EXPECT_FALSE(FilterOffers("/a/clip.Gif", ""));
}

TEST(KirtoFilter, OffersFilesByNamePartsAnywhereInTheName) {
    for (const char* name :
         {"/a.gif", "/a.GIF", "/a.fli", "/a.FLI", "/a.flc", "/a.FLC", "/a.gif.png", "/.gif"}) {
        EXPECT_TRUE(FilterOffers(name, "text/plain")) << name;
    }
    for (const char* name : {"/gif", "/a.Fli", "/a.png", "/a.gif/b"}) {
        EXPECT_FALSE(FilterOffers(name, "text/plain")) << name;
    }
}

TEST(KirtoFilter, OffersFilesByType) {
    for (const char* type : {"image/gif", "image/x-gif", "video/x-fli", "video/x-flc"})
        EXPECT_TRUE(FilterOffers("/a", type)) << type;
    for (const char* type : {"image/png", "image/gif2", "video/x-flic", ""})
        EXPECT_FALSE(FilterOffers("/a", type)) << type;
}

TEST(KirtoFilter, OffersVolumesFoldersAndLinks) {
    EXPECT_TRUE(FilterOffers("/", "application/x-vnd.Be-volume"));
    EXPECT_TRUE(FilterOffers("/a", "application/x-vnd.Be-directory"));
    EXPECT_TRUE(FilterOffers("/a", "application/x-vnd.Be-symlink"));
}

TEST(KirtoFilter, AsksForNoTypeWhereTheNameTells) {
    const auto type = []() -> std::string {
        ADD_FAILURE() << "asked";
        return {};
    };
    EXPECT_TRUE(KirtoFilter().Filter(entry_ref("/a.gif"), type));
}

}  // namespace kirto::test
