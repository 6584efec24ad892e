// A clock that is told the time, by players that ask when they are told to, late, or at random.
#include "animation/playback_clock.h"

#include <gtest/gtest.h>
#include <random>

namespace kirto::test {

namespace {

using std::chrono::hours;
using std::chrono::milliseconds;
using Instant = PlaybackClock::Instant;
using Moment = PlaybackClock::Moment;
using Numbers = std::vector<int32>;

constexpr Instant kStart = hours(77);

// Of frames with those pauses, in hundredths of a second.
Animation AnimationOfPauses(const std::vector<double>& pauses) {
    Animation animation;
    for (const double pause : pauses) {
        Frame frame("frame", 1, 1);
        frame.use_pause = true;
        frame.pause_length = pause;
        InsertFrame(animation, animation.frames.Size(), std::make_shared<const Frame>(frame));
    }
    return animation;
}

PlaybackSchedule ScheduleOf(const Animation& animation) {
    return {animation, FrameSet::AllOf(animation.frames.Size()), {}};
}

PlaybackClock Started(const std::vector<double>& pauses, int64 rounds, int32 place = 0) {
    PlaybackClock clock;
    clock.Start(ScheduleOf(AnimationOfPauses(pauses)), place, rounds, kStart);
    return clock;
}

int32 PlaceAfter(const PlaybackClock& clock, Instant time) {
    return clock.At(kStart + time).place;
}

// The places that a player shows who asks again just when it is told to; as many at most.
Numbers Shown(const PlaybackClock& clock, size_t most, Instant from = kStart) {
    Numbers places;
    for (std::optional<Instant> now = from; now && places.size() < most;) {
        const Moment moment = clock.At(*now);
        places.push_back(moment.place);
        now = moment.next;
    }
    return places;
}

}  // namespace

TEST(PlaybackClock, ShowsEachFrameForItsPause) {
    const PlaybackClock clock = Started({4, 10, 2}, PlaybackClock::kForever);

    EXPECT_EQ(PlaceAfter(clock, milliseconds(0)), 0);
    EXPECT_EQ(PlaceAfter(clock, milliseconds(39)), 0);
    EXPECT_EQ(PlaceAfter(clock, milliseconds(40)), 1);
    EXPECT_EQ(PlaceAfter(clock, milliseconds(139)), 1);
    EXPECT_EQ(PlaceAfter(clock, milliseconds(159)), 2);
    EXPECT_EQ(PlaceAfter(clock, milliseconds(160)), 0) << "the second round";
    EXPECT_EQ(clock.At(kStart + milliseconds(160)).round, 1);
}

TEST(PlaybackClock, SaysWhenTheNextFrameIsDue) {
    const PlaybackClock clock = Started({4, 10}, PlaybackClock::kForever);

    EXPECT_EQ(clock.At(kStart).next, kStart + milliseconds(40));
    EXPECT_EQ(clock.At(kStart + milliseconds(33)).next, kStart + milliseconds(40));
    EXPECT_EQ(clock.At(kStart + milliseconds(41)).next, kStart + milliseconds(140));
}

TEST(PlaybackClock, EndsAfterItsRoundsWithTheLastFrame) {
    for (const int64 rounds : {1, 2, 7}) {
        const PlaybackClock clock = Started({4, 10}, rounds);
        const Instant end = kStart + milliseconds(140) * rounds;

        EXPECT_FALSE(clock.At(end - Instant(1)).over);
        const Moment last = clock.At(end);
        EXPECT_TRUE(last.over);
        EXPECT_EQ(last.place, 1);
        EXPECT_EQ(last.in_round, milliseconds(140));
        EXPECT_EQ(last.next, std::nullopt);
        EXPECT_TRUE(clock.At(end + hours(5)).over);
        EXPECT_EQ(Shown(clock, 100).size(), static_cast<size_t>(2 * rounds + 1));
    }
}

TEST(PlaybackClock, BeginsAtAnyPlaceAndCountsThatRoundAsTheFirst) {
    const PlaybackClock clock = Started({4, 10, 2}, 2, 1);

    EXPECT_EQ(Shown(clock, 10), (Numbers{1, 2, 0, 1, 2, 2}));
}

TEST(PlaybackClock, PlaysPausesOfZeroInTheirOrderAllTheSame) {
    const PlaybackClock clock = Started({0, 0, 0}, 1);

    EXPECT_EQ(Shown(clock, 10), (Numbers{0, 1, 2, 2}));
}

TEST(PlaybackClock, LetsASingleFrameStandForeverWithoutAsking) {
    const PlaybackClock forever = Started({5}, PlaybackClock::kForever);
    EXPECT_EQ(forever.At(kStart).next, std::nullopt);
    EXPECT_FALSE(forever.At(kStart + hours(1)).over);

    EXPECT_EQ(Started({5}, 1).At(kStart).next, kStart + milliseconds(50));
}

TEST(PlaybackClock, IsOverAtOnceWithoutFrames) {
    PlaybackClock clock;
    EXPECT_TRUE(clock.At(kStart).over);
    clock.Start({}, 0, PlaybackClock::kForever, kStart);

    const Moment moment = clock.At(kStart + hours(1));
    EXPECT_TRUE(moment.over);
    EXPECT_EQ(moment.place, -1);
    EXPECT_EQ(moment.next, std::nullopt);
}

TEST(PlaybackClock, DoesNotDriftHoweverLateItIsAsked) {
    std::mt19937 random(1);
    std::vector<double> pauses;
    for (int i = 0; i < 50; ++i)
        pauses.push_back(static_cast<double>(2 + random() % 9));
    const PlaybackClock clock = Started(pauses, PlaybackClock::kForever);
    const PlaybackSchedule& schedule = clock.Schedule();
    Instant now = kStart;
    for (int i = 0; i < 100000; ++i) {
        const Moment moment = clock.At(now);
        const Instant begun =
            kStart + schedule.Length() * moment.round + schedule.StartOf(moment.place);
        ASSERT_LE(begun, now);
        ASSERT_EQ(moment.next, begun + schedule.PauseAt(moment.place));
        now = *moment.next + Instant(random() % 300'000'000);
    }
}

TEST(PlaybackClock, SkipsFramesWhoseTimeHasPassed) {
    const PlaybackClock clock = Started({2, 2, 2, 2}, PlaybackClock::kForever);

    EXPECT_EQ(PlaceAfter(clock, milliseconds(65)), 3);
    EXPECT_EQ(clock.At(kStart + milliseconds(65)).next, kStart + milliseconds(80));
}

TEST(PlaybackClock, PlaysAtAnySpeedToTheNanosecond) {
    for (const double speed : {0.1, 0.25, 1.0 / 3, 0.7, 1.0, 1.5, 3.3, 4.0}) {
        PlaybackClock clock = Started({4, 10, 3}, PlaybackClock::kForever);
        clock.SetSpeed(speed, kStart);
        Instant now = kStart;
        for (int64 i = 0; i < 3000; ++i) {
            const Moment moment = clock.At(now);
            ASSERT_EQ(moment.place, i % 3) << speed;
            const Instant begun = clock.Schedule().StartOf(moment.place);
            ASSERT_GE(moment.in_round, begun) << speed;
            ASSERT_LE(moment.in_round, begun + Instant(4)) << speed;
            const auto played = clock.Schedule().Length() * moment.round + moment.in_round;
            const double meant = static_cast<double>(played.count()) / speed;
            ASSERT_NEAR(static_cast<double>((now - kStart).count()), meant, 2) << speed;
            now = *moment.next;
        }
    }
}

TEST(PlaybackClock, KeepsItsSpeedWithinWhatThereIs) {
    PlaybackClock clock;
    clock.SetSpeed(100, kStart);
    EXPECT_EQ(clock.Speed(), PlaybackClock::kFastest);
    clock.SetSpeed(0, kStart);
    EXPECT_EQ(clock.Speed(), PlaybackClock::kSlowest);
}

TEST(PlaybackClock, GoesOnFromWhereItIsWhenTheSpeedChanges) {
    PlaybackClock clock = Started({10, 10}, PlaybackClock::kForever);

    clock.SetSpeed(2, kStart + milliseconds(60));
    EXPECT_EQ(clock.At(kStart + milliseconds(60)).in_round, milliseconds(60));
    EXPECT_EQ(clock.At(kStart + milliseconds(60)).next, kStart + milliseconds(80));
    clock.SetSpeed(0.5, kStart + milliseconds(90));
    EXPECT_EQ(clock.At(kStart + milliseconds(90)).in_round, milliseconds(120));
    EXPECT_EQ(clock.At(kStart + milliseconds(90)).next, kStart + milliseconds(250));
}

TEST(PlaybackClock, CountsNewRoundsFromTheOneThatIsPlayed) {
    PlaybackClock clock = Started({10, 10}, PlaybackClock::kForever);
    const Instant now = kStart + milliseconds(730);

    clock.SetRounds(1, now);

    EXPECT_EQ(clock.At(now).place, 1);
    EXPECT_EQ(clock.At(now).next, kStart + milliseconds(800));
    EXPECT_TRUE(clock.At(kStart + milliseconds(800)).over);
}

TEST(PlaybackClock, KeepsTheFrameThatIsShownWhenOthersAreEdited) {
    Animation animation = AnimationOfPauses({10, 10, 10});
    PlaybackClock clock;
    clock.Start(ScheduleOf(animation), 0, PlaybackClock::kForever, kStart);
    const Instant now = kStart + milliseconds(440);  // 40 into the second frame of round 1

    InsertFrame(animation, 0, std::make_shared<const Frame>(Frame("new", 1, 1)));
    clock.Replace(ScheduleOf(animation), now);

    EXPECT_EQ(clock.At(now).place, 2);
    EXPECT_EQ(clock.At(now).round, 1);
    EXPECT_EQ(clock.At(now).next, now + milliseconds(60));
}

TEST(PlaybackClock, EndsAFrameThatIsShortenedBelowWhatItWasShown) {
    Animation animation = AnimationOfPauses({100, 10});
    PlaybackClock clock;
    clock.Start(ScheduleOf(animation), 0, PlaybackClock::kForever, kStart);
    EditFrame(animation, 0, [](Frame& frame) { frame.pause_length = 20; });
    const Instant now = kStart + milliseconds(600);

    clock.Replace(ScheduleOf(animation), now);

    EXPECT_EQ(clock.At(now).place, 0);
    EXPECT_EQ(clock.At(now).next, now + Instant(1));
    EXPECT_EQ(clock.At(now + Instant(1)).place, 1);
}

TEST(PlaybackClock, BeginsTheNextFrameWhenTheOneThatIsShownIsGone) {
    Animation animation = AnimationOfPauses({10, 10, 10});
    PlaybackClock clock;
    clock.Start(ScheduleOf(animation), 2, PlaybackClock::kForever, kStart);
    const Instant now = kStart + milliseconds(50);

    clock.Replace({animation, FrameSet::Of(0, 1), {}}, now);
    EXPECT_EQ(clock.At(now).place, 1);
    EXPECT_EQ(clock.At(now).next, now + milliseconds(100));

    clock.Replace({}, now);
    EXPECT_TRUE(clock.At(now).over);
    clock.Replace(ScheduleOf(animation), now);
    EXPECT_EQ(clock.At(now).place, 0) << "a new animation begins at its start";
}

TEST(PlaybackClock, SurvivesAnyOrderOfChanges) {
    std::mt19937 random(2);
    const auto below = [&random](int32 limit) {
        return std::uniform_int_distribution<int32>(0, limit - 1)(random);
    };
    PlaybackClock clock;
    Animation animation;
    Instant now = kStart;
    for (int i = 0; i < 20000; ++i) {
        now += Instant(below(1'000'000'000));
        const int32 size = animation.frames.Size();
        if (below(3) == 0 && size < 40) {
            const Animation another = AnimationOfPauses({static_cast<double>(below(20))});
            InsertFrame(animation, below(size + 1), another.FirstFrame());
        }
        if (below(4) == 0 && size > 0) animation.frames.Remove(below(size));
        if (below(5) == 0) clock.SetSpeed(below(500) / 100.0, now);
        if (below(5) == 0) clock.SetRounds(below(4), now);
        clock.Replace(ScheduleOf(animation), now);
        const Moment moment = clock.At(now);
        ASSERT_EQ(moment.place == -1, animation.frames.Empty());
        ASSERT_LT(moment.place, animation.frames.Size());
        if (!moment.next) continue;
        ASSERT_GT(*moment.next, now);
        ASSERT_LE(*moment.next - now, milliseconds(1901));
        if (clock.At(*moment.next).over) continue;
        ASSERT_EQ(clock.At(*moment.next).place, (moment.place + 1) % animation.frames.Size());
    }
}

}  // namespace kirto::test
