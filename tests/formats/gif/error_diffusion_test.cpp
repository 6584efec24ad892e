#include "formats/gif/error_diffusion.h"

#include <gtest/gtest.h>

#include "base/allocation.h"

namespace kirto::test {

namespace {

using Components = ErrorDiffusion::Components;

constexpr Components kNoError{0, 0, 0};
constexpr Components kGrey{100, 100, 100};

Components All(int32 value) {
    return {value, value, value};
}

// What is carried to the next pixel, seen from the middle grey so that nothing is clamped.
int32 Carried(const ErrorDiffusion& diffusion) {
    return 100 - diffusion.Correct(kGrey)[0];
}

// Goes on to the next row and returns what reaches its pixels 1 to count from above.
std::vector<int32> FromAbove(ErrorDiffusion& diffusion, int32 count) {
    std::vector<int32> carried;
    diffusion.StartRow();
    for (int32 x = 0; x < count; ++x) {
        diffusion.Diffuse(x, kNoError, kNoError);
        carried.push_back(Carried(diffusion));
    }
    return carried;
}

TEST(ErrorDiffusion, LeavesColoursAloneAtFirst) {
    const ErrorDiffusion diffusion(4);
    EXPECT_EQ(diffusion.Correct({0, 128, 255}), (Components{0, 128, 255}));
}

TEST(ErrorDiffusion, SpreadsSevenThreeFiveAndOneSixteenths) {
    ErrorDiffusion diffusion(5);
    diffusion.Diffuse(2, All(0), All(160));
    EXPECT_EQ(Carried(diffusion), -70);
    EXPECT_EQ(FromAbove(diffusion, 4), (std::vector<int32>{-30, -50, -10, 0}));
}

TEST(ErrorDiffusion, AddsWhatComesFromAboveToWhatComesFromTheLeft) {
    ErrorDiffusion diffusion(3);
    diffusion.Diffuse(1, All(0), All(160));
    diffusion.StartRow();
    diffusion.Diffuse(0, All(32), All(0));
    EXPECT_EQ(Carried(diffusion), 14 - 50);
}

TEST(ErrorDiffusion, AnErrorFromAboveIsUsedOnce) {
    ErrorDiffusion diffusion(3);
    diffusion.Diffuse(1, All(0), All(160));
    FromAbove(diffusion, 2);
    EXPECT_EQ(FromAbove(diffusion, 2), (std::vector<int32>{0, 0}));
}

TEST(ErrorDiffusion, FractionsAreRoundedDownOnBothSidesOfZero) {
    ErrorDiffusion diffusion(1);
    diffusion.Diffuse(0, All(100), All(0));
    EXPECT_EQ(Carried(diffusion), 43);
    diffusion.StartPicture();
    diffusion.Diffuse(0, All(0), All(100));
    EXPECT_EQ(Carried(diffusion), -44);
}

TEST(ErrorDiffusion, CorrectedColoursStayBetween0And255) {
    ErrorDiffusion diffusion(1);
    diffusion.Diffuse(0, {0, 255, 0}, {255, 0, 0});
    EXPECT_EQ(diffusion.Correct({200, 50, 7}), (Components{255, 0, 7}));
}

TEST(ErrorDiffusion, ComponentsDoNotTouchEachOther) {
    ErrorDiffusion diffusion(2);
    diffusion.Diffuse(0, {16, 0, 0}, {0, 0, 32});
    EXPECT_EQ(diffusion.Correct(kGrey), (Components{93, 100, 114}));
}

TEST(ErrorDiffusion, ANewRowForgetsWhatIsCarriedButNotWhatComesFromAbove) {
    ErrorDiffusion diffusion(3);
    diffusion.Diffuse(1, All(0), All(160));
    diffusion.StartRow();
    EXPECT_EQ(Carried(diffusion), 0);
    EXPECT_EQ(FromAbove(diffusion, 1), (std::vector<int32>{-50}));
}

TEST(ErrorDiffusion, ClearedRowsForgetWhatComesFromAboveButNotWhatIsCarried) {
    ErrorDiffusion diffusion(3);
    diffusion.Diffuse(1, All(0), All(160));
    diffusion.ClearRows();
    EXPECT_EQ(Carried(diffusion), -70);
    EXPECT_EQ(FromAbove(diffusion, 3), (std::vector<int32>{0, 0, 0}));
}

TEST(ErrorDiffusion, ANewPictureForgetsEverything) {
    ErrorDiffusion diffusion(3);
    diffusion.Diffuse(1, All(0), All(160));
    diffusion.StartPicture();
    EXPECT_EQ(Carried(diffusion), 0);
    EXPECT_EQ(FromAbove(diffusion, 3), (std::vector<int32>{0, 0, 0}));
}

TEST(ErrorDiffusion, TheLastColumnAndAPictureOfOneColumnHaveRoom) {
    ErrorDiffusion diffusion(1);
    diffusion.Diffuse(0, All(0), All(160));
    EXPECT_EQ(Carried(diffusion), -70);
    EXPECT_EQ(FromAbove(diffusion, 1), (std::vector<int32>{-10}));
}

TEST(ErrorDiffusion, TheHeightOfThePictureMakesNoDifference) {
    // The largest error on and on: sums that nothing reads back must not run over.
    ErrorDiffusion diffusion(3);
    std::vector<int32> carried;
    for (int32 row = 0; row < 5000; ++row) {
        diffusion.StartRow();
        for (int32 x = 0; x < 3; ++x)
            diffusion.Diffuse(x, All(0), All(255));
        carried.push_back(100 - diffusion.Correct(kGrey)[0]);
    }
    EXPECT_EQ(carried.back(), carried[2]);
}

TEST(ErrorDiffusion, WithoutMemoryItIsNotReady) {
    EXPECT_TRUE(ErrorDiffusion(10).Ready());
    for (int32 call = 1; call <= 3; ++call) {
        const AllocationFault fault(call);
        EXPECT_FALSE(ErrorDiffusion(10).Ready()) << "allocation " << call;
    }
}

TEST(ErrorDiffusion, ANegativeWidthCountsAsNone) {
    EXPECT_TRUE(ErrorDiffusion(-100).Ready());
}

}  // namespace

}  // namespace kirto::test
