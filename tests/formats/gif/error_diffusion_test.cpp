#include "formats/gif/error_diffusion.h"

#include <array>
#include <gtest/gtest.h>

#include "base/allocation.h"

namespace kirto::test {

namespace {

using Components = std::array<int32, 3>;  // red, green, blue

constexpr Components kNoError{0, 0, 0};
constexpr Components kGrey{100, 100, 100};

Components All(int32 value) {
    return {value, value, value};
}

// One row after the other.
class Diffusion {
  public:
    explicit Diffusion(int32 max_width) : errors_(max_width) {}

    void StartRow() { carried_ = ErrorDiffusion::Carried{}; }
    void StartPicture() {
        ClearRows();
        StartRow();
    }
    void ClearRows() { errors_.ClearRow(); }
    Components Correct(const Components& color) const {
        const auto corrected = ErrorDiffusion::Correct(Four(color), carried_);
        return {corrected[0], corrected[1], corrected[2]};
    }
    void Diffuse(int32 x, const Components& chosen, const Components& corrected) {
        errors_.Diffuse(x, Four(chosen), Four(corrected), &carried_);
    }

  private:
    static ErrorDiffusion::Components Four(const Components& color) {
        return ErrorDiffusion::Components{color[0], color[1], color[2], 0};
    }

    ErrorDiffusion errors_;
    ErrorDiffusion::Carried carried_{};
};

// What is carried to the next pixel, seen from the middle grey so that nothing is clamped.
int32 Carried(const Diffusion& diffusion) {
    return 100 - diffusion.Correct(kGrey)[0];
}

// Goes on to the next row and returns what reaches its pixels 1 to count from above.
std::vector<int32> FromAbove(Diffusion& diffusion, int32 count) {
    std::vector<int32> carried;
    diffusion.StartRow();
    for (int32 x = 0; x < count; ++x) {
        diffusion.Diffuse(x, kNoError, kNoError);
        carried.push_back(Carried(diffusion));
    }
    return carried;
}

TEST(ErrorDiffusion, LeavesColoursAloneAtFirst) {
    const Diffusion diffusion(4);
    EXPECT_EQ(diffusion.Correct({0, 128, 255}), (Components{0, 128, 255}));
}

TEST(ErrorDiffusion, SpreadsSevenThreeFiveAndOneSixteenths) {
    Diffusion diffusion(5);
    diffusion.Diffuse(2, All(0), All(160));
    EXPECT_EQ(Carried(diffusion), -70);
    EXPECT_EQ(FromAbove(diffusion, 4), (std::vector<int32>{-30, -50, -10, 0}));
}

TEST(ErrorDiffusion, AddsWhatComesFromAboveToWhatComesFromTheLeft) {
    Diffusion diffusion(3);
    diffusion.Diffuse(1, All(0), All(160));
    diffusion.StartRow();
    diffusion.Diffuse(0, All(32), All(0));
    EXPECT_EQ(Carried(diffusion), 14 - 50);
}

TEST(ErrorDiffusion, AnErrorFromAboveIsUsedOnce) {
    Diffusion diffusion(3);
    diffusion.Diffuse(1, All(0), All(160));
    FromAbove(diffusion, 2);
    EXPECT_EQ(FromAbove(diffusion, 2), (std::vector<int32>{0, 0}));
}

TEST(ErrorDiffusion, FractionsAreRoundedDownOnBothSidesOfZero) {
    Diffusion diffusion(1);
    diffusion.Diffuse(0, All(100), All(0));
    EXPECT_EQ(Carried(diffusion), 43);
    diffusion.StartPicture();
    diffusion.Diffuse(0, All(0), All(100));
    EXPECT_EQ(Carried(diffusion), -44);
}

TEST(ErrorDiffusion, CorrectedColoursStayBetween0And255) {
    Diffusion diffusion(1);
    diffusion.Diffuse(0, {0, 255, 0}, {255, 0, 0});
    EXPECT_EQ(diffusion.Correct({200, 50, 7}), (Components{255, 0, 7}));
}

TEST(ErrorDiffusion, ComponentsDoNotTouchEachOther) {
    Diffusion diffusion(2);
    diffusion.Diffuse(0, {16, 0, 0}, {0, 0, 32});
    EXPECT_EQ(diffusion.Correct(kGrey), (Components{93, 100, 114}));
}

TEST(ErrorDiffusion, ANewRowForgetsWhatIsCarriedButNotWhatComesFromAbove) {
    Diffusion diffusion(3);
    diffusion.Diffuse(1, All(0), All(160));
    diffusion.StartRow();
    EXPECT_EQ(Carried(diffusion), 0);
    EXPECT_EQ(FromAbove(diffusion, 1), (std::vector<int32>{-50}));
}

TEST(ErrorDiffusion, ClearedRowsForgetWhatComesFromAboveButNotWhatIsCarried) {
    Diffusion diffusion(3);
    diffusion.Diffuse(1, All(0), All(160));
    diffusion.ClearRows();
    EXPECT_EQ(Carried(diffusion), -70);
    EXPECT_EQ(FromAbove(diffusion, 3), (std::vector<int32>{0, 0, 0}));
}

TEST(ErrorDiffusion, ANewPictureForgetsEverything) {
    Diffusion diffusion(3);
    diffusion.Diffuse(1, All(0), All(160));
    diffusion.StartPicture();
    EXPECT_EQ(Carried(diffusion), 0);
    EXPECT_EQ(FromAbove(diffusion, 3), (std::vector<int32>{0, 0, 0}));
}

TEST(ErrorDiffusion, TheLastColumnAndAPictureOfOneColumnHaveRoom) {
    Diffusion diffusion(1);
    diffusion.Diffuse(0, All(0), All(160));
    EXPECT_EQ(Carried(diffusion), -70);
    EXPECT_EQ(FromAbove(diffusion, 1), (std::vector<int32>{-10}));
}

TEST(ErrorDiffusion, TheHeightOfThePictureMakesNoDifference) {
    // The largest error on and on: sums that nothing reads back must not run over.
    Diffusion diffusion(3);
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
    const AllocationFault fault(1);
    EXPECT_FALSE(ErrorDiffusion(10).Ready());
}

TEST(ErrorDiffusion, ANegativeWidthCountsAsNone) {
    EXPECT_TRUE(ErrorDiffusion(-100).Ready());
}

}  // namespace

}  // namespace kirto::test
