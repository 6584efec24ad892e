#include "kit/decoding/decoding_roster.h"

#include <csignal>
#include <fstream>
#include <gtest/gtest.h>
#include <thread>

#include "support/fake_roster.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using namespace std::chrono_literals;

// A roster whose decoder is taken over by the files that it is given.
class DecodingRosterTest : public testing::Test {
  protected:
    static constexpr DecoderProcess::Limits kPatient{20s, 20s};

    status_t Read(DecodingRoster& roster, const std::string& bytes) {
        const auto file = BFile::OnMemory({bytes.begin(), bytes.end()});
        return roster.Translate(*file, nullptr, &picture_);
    }
    status_t Read(const std::string& bytes) { return Read(roster_, bytes); }

    FakeRoster others_;
    DecodingRoster roster_{KIRTO_BAD_DECODER, others_, kPatient};
    std::shared_ptr<BBitmap> picture_;
};

TEST_F(DecodingRosterTest, ReadsWhatTheDecoderAnswers) {
    EXPECT_EQ(Read("good"), B_OK);

    ASSERT_NE(picture_, nullptr);
    EXPECT_EQ(picture_->Width(), 2);
    EXPECT_EQ(picture_->Height(), 2);
    EXPECT_EQ(picture_->ColorSpace(), B_RGB32);
}

TEST_F(DecodingRosterTest, ReadsNothingWhereTheDecoderCrashesEndsOrIsKilledAndReadsTheNextFile) {
    for (const char* order : {"crash", "end", "killed"}) {
        EXPECT_EQ(Read(order), B_NO_TRANSLATOR) << order;
        EXPECT_EQ(picture_, nullptr);
        EXPECT_EQ(Read("good"), B_OK) << order;
    }
}

TEST_F(DecodingRosterTest, ReadsNothingWhereTheDecoderTalksNonsenseAndReadsTheNextFile) {
    for (const char* order : {"long answer", "short answer", "too few pixels", "no pixels",
                              "wide as nothing", "minus two", "x: no such colors"}) {
        EXPECT_EQ(Read(order), B_NO_TRANSLATOR) << order;
        EXPECT_EQ(picture_, nullptr);
        EXPECT_EQ(Read("good"), B_OK) << order;
    }
}

TEST_F(DecodingRosterTest, TakesAFloodOfAnswersForTheOnesThatItAskedFor) {
    // Each is whole, but none has pixels.
    for (int i = 0; i < 50; ++i)
        EXPECT_EQ(Read("flood"), B_NO_TRANSLATOR);
    EXPECT_EQ(Read("good"), B_OK);
}

TEST_F(DecodingRosterTest, TakesAStatusThatIsNoneForOneOfAFileThatNobodyReads) {
    EXPECT_EQ(Read("y"), B_NO_TRANSLATOR);
}

TEST_F(DecodingRosterTest, TriesAFileAgainWhereTheDecoderWasBrokenByTheOneBefore) {
    EXPECT_EQ(Read("break next time"), B_OK);
    EXPECT_EQ(Read("good"), B_OK);
    ASSERT_NE(picture_, nullptr);
    EXPECT_EQ(picture_->Width(), 2);
}

TEST_F(DecodingRosterTest, HasANewDecoderWhereTheOldOneHasEndedBetweenTwoFiles) {
    // It answers first.
    EXPECT_EQ(Read("answer and end"), B_OK);
    EXPECT_EQ(Read("good"), B_OK);
}

TEST_F(DecodingRosterTest, EndsADecoderThatHangs) {
    DecodingRoster roster(KIRTO_BAD_DECODER, others_, {20s, 50ms});
    const DebugRecorder debug;

    EXPECT_EQ(Read(roster, "hang"), B_NO_TRANSLATOR);

    EXPECT_EQ(debug.Text(), "DecodingRoster::Translate() - The picture took too long\n");
}

TEST_F(DecodingRosterTest, EndsADecoderThatComputesTooLong) {
    DecodingRoster roster(KIRTO_BAD_DECODER, others_, {50ms, 600s});

    EXPECT_EQ(Read(roster, "over and over"), B_NO_TRANSLATOR);
}

TEST_F(DecodingRosterTest, EndsTheDecoderWhenNobodyWantsThePicture) {
    const auto file = BFile::OnMemory({'h'});
    int asked = 0;

    const status_t status =
        roster_.TranslateUnless([&] { return ++asked == 3; }, *file, nullptr, &picture_);

    EXPECT_EQ(status, B_CANCELED);
    EXPECT_EQ(Read("good"), B_OK);
}

TEST_F(DecodingRosterTest, ReadsNothingWithoutADecoder) {
    for (const char* program : {"", "/nowhere/kirto-decode", "/dev/null"}) {
        DecodingRoster roster(program, others_);
        EXPECT_EQ(Read(roster, "good"), B_NO_TRANSLATOR) << program;
    }
}

TEST_F(DecodingRosterTest, TellsWhenAPictureDoesNotFitTheBudget) {
    const auto budget = std::make_shared<PixelBudget>(4);
    const auto file = BFile::OnMemory({'g'});

    EXPECT_EQ(roster_.Translate(*file, budget, &picture_), B_NO_MEMORY);
    EXPECT_EQ(budget->Used(), 0u);
}

TEST_F(DecodingRosterTest, TellsWhyAFileCanNotBeOpened) {
    BFile missing("/nowhere/picture.png", B_READ_ONLY);

    EXPECT_EQ(roster_.Translate(missing, nullptr, &picture_), B_ENTRY_NOT_FOUND);
}

TEST_F(DecodingRosterTest, ReadsFilesOfSeveralThreadsAtATime) {
    std::array<status_t, 8> statuses{};
    {
        std::vector<std::jthread> threads;
        for (size_t i = 0; i < statuses.size(); ++i) {
            threads.emplace_back([this, i, &statuses] {
                std::shared_ptr<BBitmap> picture;
                for (int round = 0; round < 5; ++round) {
                    const auto file = BFile::OnMemory({static_cast<uint8>(i % 2 ? 'g' : 'c')});
                    statuses[i] = roster_.Translate(*file, nullptr, &picture);
                }
            });
        }
    }
    for (size_t i = 0; i < statuses.size(); ++i)
        EXPECT_EQ(statuses[i], i % 2 ? B_OK : B_NO_TRANSLATOR) << i;
}

}  // namespace

}  // namespace kirto::test
