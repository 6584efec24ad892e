#include "base/natural_order.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "support/test_support.h"

namespace kirto::test {

namespace {

using Names = std::vector<std::string>;

void ExpectOrder(const Names& ordered) {
    for (size_t i = 0; i < ordered.size(); ++i) {
        for (size_t j = 0; j < ordered.size(); ++j)
            EXPECT_EQ(ComesBefore(ordered[i], ordered[j]), i < j)
                << ordered[i] << " " << ordered[j];
    }
}

}  // namespace

TEST(NaturalOrder, CountsNumbersAsNumbers) {
    ExpectOrder({"1.png", "2.png", "10.png", "30.png"});
    ExpectOrder({"a2b9", "a2b10", "a10b1"});
    ExpectOrder({"x99999999999999999999998", "x99999999999999999999999"});
}

TEST(NaturalOrder, TakesNumbersWithZerosBeforeThemForThose) {
    ExpectOrder({"f001", "f1", "f002", "f02", "f010"});
}

TEST(NaturalOrder, TakesNoNoticeOfCase) {
    ExpectOrder({"Frame1", "frame1", "FRAME2", "frame3"});
}

TEST(NaturalOrder, LetsShorterNamesComeFirst) {
    ExpectOrder({"", "1", "1a", "a", "a1", "aa"});
}

TEST(NaturalOrder, PutsTheFilesOfAFolderInItsPlace) {
    const TemporaryFolder folder;
    const auto path = [&](const std::string& name) { return folder.Path() + "/" + name; };
    std::filesystem::create_directory(path("in"));
    for (const char* name : {"in/10.png", "in/9.png", "in/.hidden", "2.png"})
        std::ofstream(path(name)) << "x";
    std::filesystem::create_directory(path("in/deeper"));

    EXPECT_EQ(InNaturalOrder({path("in"), path("2.png")}),
              (Names{path("2.png"), path("in/9.png"), path("in/10.png")}));
    EXPECT_EQ(InNaturalOrder({path("missing")}), Names{path("missing")});
}

}  // namespace kirto::test
