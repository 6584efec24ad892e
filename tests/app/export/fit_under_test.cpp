// What is given up for a size, and what is not.
#include "app/export/fit_under.h"

#include "app/export/export_fixture.h"
#include "support/random_document.h"

namespace kirto::test {

namespace {

constexpr ExportFormat kFormats[] = {ExportFormat::kGif, ExportFormat::kWebp, ExportFormat::kApng};

// Soft colors with noise, which change from frame to frame.
struct NoisyFrames : ExportFixture {
    NoisyFrames() {
        constexpr uint32 kSide = 48;
        animation.width = animation.height = kSide;
        SeededChoices choices(3);
        for (uint32 i = 0; i < 8; ++i) {
            std::vector<uint32> pixels;
            for (uint32 y = 0; y < kSide; ++y) {
                for (uint32 x = 0; x < kSide; ++x) {
                    const uint32 noise = choices.Below(12);
                    pixels.push_back(0xFF000000 | (4 * x + noise) << 16 | (4 * y + noise) << 8 |
                                     (8 * i + choices.Below(9)));
                }
            }
            Add(pixels, 5);
        }
        wanted.quality = 90;
    }
    ExportResult Fit(uint64 limit) { return FitUnder(limit, Task(), wanted, &fitted); }

    const std::vector<uint8>& Fitted() const { return fitted.files.contents.front(); }

    ExportSettings wanted;
    FittedExport fitted;
};

}  // namespace

TEST(FitUnder, NothingIsGivenUpWhereAllFits) {
    for (const ExportFormat format : kFormats) {
        NoisyFrames frames;
        frames.wanted.format = format;
        ASSERT_EQ(frames.Export(frames.wanted), ExportResult::kDone);
        ASSERT_EQ(frames.Fit(frames.bytes.size()), ExportResult::kDone);
        EXPECT_EQ(frames.Fitted(), frames.bytes);
        EXPECT_EQ(GivenUp(frames.wanted, frames.fitted.settings), "");
    }
}

TEST(FitUnder, TheFileIsAtMostTheSizeAndMadeWithWhatIsTold) {
    for (const ExportFormat format : kFormats) {
        NoisyFrames frames;
        frames.wanted.format = format;
        ASSERT_EQ(frames.Export(frames.wanted), ExportResult::kDone);
        const uint64 whole = frames.bytes.size();
        for (const uint64 limit : {whole - 1, whole * 3 / 4, whole / 2, whole / 4, whole / 10}) {
            ASSERT_EQ(frames.Fit(limit), ExportResult::kDone) << NameOf(format) << limit;
            EXPECT_LE(frames.Fitted().size(), limit) << NameOf(format);
            EXPECT_NE(GivenUp(frames.wanted, frames.fitted.settings), "");
            ASSERT_EQ(frames.Export(frames.fitted.settings), ExportResult::kDone);
            EXPECT_EQ(frames.bytes, frames.Fitted()) << NameOf(format);
        }
    }
}

TEST(FitUnder, ALittleLessCostsColorsBeforeAnythingElse) {
    NoisyFrames frames;
    ASSERT_EQ(frames.Export(frames.wanted), ExportResult::kDone);
    ASSERT_EQ(frames.Fit(frames.bytes.size() - 1), ExportResult::kDone);
    const ExportSettings& given = frames.fitted.settings;
    EXPECT_LT(given.colors, 256);
    ExportSettings only_colors = frames.wanted;
    only_colors.colors = given.colors;
    EXPECT_TRUE(given == only_colors);
}

TEST(FitUnder, GivesUpColorsLossScaleAndFramesInThisOrder) {
    const std::vector<ExportSettings> steps = StepsToSmaller({});
    const auto first = [&](const auto& differs) {
        return std::find_if(steps.begin(), steps.end(), differs) - steps.begin();
    };
    const auto colors = first([](const ExportSettings& step) { return step.colors < 256; });
    const auto loss = first([](const ExportSettings& step) { return step.loss > 0; });
    const auto scale = first([](const ExportSettings& step) { return step.scale < 100; });
    const auto frames = first([](const ExportSettings& step) { return step.every > 1; });
    EXPECT_TRUE(steps.front() == ExportSettings());
    EXPECT_EQ(colors, 1);
    EXPECT_LT(colors, loss);
    EXPECT_LT(loss, scale);
    EXPECT_LT(scale, frames);
    EXPECT_LT(frames, static_cast<ptrdiff_t>(steps.size()));
}

TEST(FitUnder, StepsNeverTakeBackWhatIsWanted) {
    ExportSettings wanted;
    wanted.colors = 80;
    wanted.loss = 150;
    wanted.every = 60;
    wanted.scale = 1;
    for (const ExportSettings& step : StepsToSmaller(wanted)) {
        EXPECT_LE(step.colors, 80);
        EXPECT_GE(step.loss, 150);
        EXPECT_EQ(step.every, 60);
        EXPECT_EQ(step.scale, 1);
    }
}

TEST(FitUnder, AnImpossibleSizeIsToldAndMakesNothing) {
    for (const ExportFormat format : kFormats) {
        NoisyFrames frames;
        frames.wanted.format = format;
        EXPECT_EQ(frames.Fit(20), ExportResult::kTooManyBytes);
        EXPECT_TRUE(frames.fitted.files.Empty());
        EXPECT_GT(frames.fitted.smallest, 20u);
    }
}

TEST(FitUnder, StopsWhenItIsAskedTo) {
    NoisyFrames frames;
    frames.work.StopAll();
    EXPECT_EQ(frames.Fit(1000), ExportResult::kStopped);
}

}  // namespace kirto::test
