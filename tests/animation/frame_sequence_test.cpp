#include "animation/frame_sequence.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace kirto::test {

namespace {

using PlainList = std::vector<FramePointer>;

constexpr long kMostFramesInALeaf = 64;

FramePointer NewFrame() {
    return std::make_shared<const Frame>();
}

FrameSequence SequenceOf(int32 count) {
    FrameSequence frames;
    for (int32 i = 0; i < count; ++i)
        frames.Insert(i, NewFrame());
    return frames;
}

PlainList ListOf(const FrameSequence& frames) {
    return {frames.begin(), frames.end()};
}

// Where two plain lists without repetitions differ, frame by frame.
FrameSequence::Difference PlainDifference(const PlainList& a, const PlainList& b) {
    const auto front = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    const auto back = std::mismatch(a.rbegin(), std::make_reverse_iterator(front.first), b.rbegin(),
                                    std::make_reverse_iterator(front.second));
    return {static_cast<int32>(front.first - a.begin()),
            static_cast<int32>(back.first.base() - a.begin()),
            static_cast<int32>(back.second.base() - b.begin())};
}

void ExpectDifference(const FrameSequence& a, const FrameSequence& b) {
    const FrameSequence::Difference difference = a.DifferenceTo(b);
    const PlainList list = ListOf(a);
    const PlainList other = ListOf(b);
    if (list == other) {
        EXPECT_EQ(difference.begin, difference.end);
        EXPECT_EQ(difference.begin, difference.other_end);
        return;
    }
    const FrameSequence::Difference plain = PlainDifference(list, other);
    EXPECT_EQ(difference.begin, plain.begin);
    EXPECT_EQ(difference.end, plain.end);
    EXPECT_EQ(difference.other_end, plain.other_end);
}

// A sequence and a plain list on which every edit is carried out as well.
class EditedSequence {
  public:
    explicit EditedSequence(uint32 seed) : random_(seed) {}

    int32 Size() const { return static_cast<int32>(list_.size()); }
    const FrameSequence& Sequence() const { return sequence_; }
    const PlainList& List() const { return list_; }

    void Insert() {
        const int32 i = Below(Size() + 1);
        FramePointer frame = NewFrame();
        list_.insert(list_.begin() + i, frame);
        sequence_.Insert(i, std::move(frame));
    }
    void Append() {
        list_.push_back(NewFrame());
        sequence_.Insert(sequence_.Size(), list_.back());
    }
    void Remove() {
        const int32 i = Below(Size());
        list_.erase(list_.begin() + i);
        sequence_.Remove(i);
    }
    void Replace() {
        const int32 i = Below(Size());
        list_[static_cast<size_t>(i)] = NewFrame();
        sequence_.Replace(i, list_[static_cast<size_t>(i)]);
    }
    void Swap() {
        const int32 i = Below(Size());
        const int32 j = Below(Size());
        std::swap(list_[static_cast<size_t>(i)], list_[static_cast<size_t>(j)]);
        sequence_.Swap(i, j);
    }
    void Reverse() {
        std::reverse(list_.begin(), list_.end());
        sequence_.Reverse();
    }
    // Inserts more often than it removes until the list is long, and the other way round then.
    void EditAtRandom() {
        if (Size() > 400) growing_ = false;
        if (Size() == 0) growing_ = true;
        const int32 choice = Below(100);
        if (choice < 5 || Size() == 0) {
            Append();
        } else if (choice < 60) {
            growing_ ? Insert() : Remove();
        } else if (choice < 70) {
            growing_ ? Remove() : Insert();
        } else if (choice < 85) {
            Replace();
        } else if (choice < 99) {
            Swap();
        } else {
            Reverse();
        }
    }

    void ExpectEqual() {
        ASSERT_EQ(sequence_.Size(), Size());
        ASSERT_EQ(sequence_.Empty(), list_.empty());
        ASSERT_TRUE(ListOf(sequence_) == list_);
        ASSERT_EQ(sequence_.At(-1), nullptr);
        ASSERT_EQ(sequence_.At(Size()), nullptr);
        if (list_.empty()) return;
        const int32 i = Below(Size());
        ASSERT_EQ(sequence_.At(i), list_[static_cast<size_t>(i)]);
        ASSERT_EQ(sequence_.Find(list_[static_cast<size_t>(i)]->id), i);
    }

  private:
    int32 Below(int32 bound) { return static_cast<int32>(random_() % static_cast<uint32>(bound)); }

    std::mt19937 random_;
    PlainList list_;
    FrameSequence sequence_;
    bool growing_ = true;
};

// How many frames have more owners than the number says.
int64 CountWithOwnersAbove(const PlainList& frames, long owners) {
    return std::count_if(frames.begin(), frames.end(), [owners](const FramePointer& frame) {
        return frame.use_count() > owners;
    });
}

}  // namespace

TEST(FrameSequence, IsEmptyAtFirst) {
    const FrameSequence frames;

    EXPECT_TRUE(frames.Empty());
    EXPECT_EQ(frames.Size(), 0);
    EXPECT_EQ(frames.At(0), nullptr);
    EXPECT_TRUE(frames.begin() == frames.end());
}

TEST(FrameSequence, FindsNoFrameThatIsNotThere) {
    const FrameSequence frames = SequenceOf(100);

    EXPECT_EQ(frames.Find(0), -1);
    EXPECT_EQ(frames.Find(Frame().id), -1);
    EXPECT_EQ(frames.Find(frames.At(99)->id), 99);
}

TEST(FrameSequence, IsAsAPlainListThroughRandomEdits) {
    EditedSequence edited(20241);
    for (int32 edit = 0; edit < 6000; ++edit) {
        edited.EditAtRandom();
        edited.ExpectEqual();
        ASSERT_FALSE(testing::Test::HasFailure()) << "after edit " << edit;
    }
}

TEST(FrameSequence, TellsADifferenceAsAPlainComparisonDoes) {
    EditedSequence edited(7);
    std::mt19937 random(8);
    for (int32 round = 0; round < 1500; ++round) {
        const FrameSequence before = edited.Sequence();
        const auto edits = random() % 5;
        for (size_t edit = 0; edit < edits; ++edit)
            edited.EditAtRandom();
        ExpectDifference(before, edited.Sequence());
        ExpectDifference(edited.Sequence(), before);
        ASSERT_FALSE(testing::Test::HasFailure()) << "in round " << round;
    }
}

TEST(FrameSequence, TellsTheDifferenceOfListsThatWereMadeApart) {
    const FrameSequence frames = SequenceOf(150);
    FrameSequence same;
    for (const FramePointer& frame : frames)
        same.Insert(0, frame);
    same.Reverse();
    FrameSequence longer = same;
    longer.Insert(70, NewFrame());

    ExpectDifference(frames, same);
    ExpectDifference(frames, longer);
    ExpectDifference(longer, frames);
    ExpectDifference(frames, FrameSequence());
    ExpectDifference(FrameSequence(), FrameSequence());
    ExpectDifference(frames, SequenceOf(150));
}

TEST(FrameSequence, CopiesDoNotSeeLaterEdits) {
    EditedSequence edited(99);
    std::vector<std::pair<FrameSequence, PlainList>> kept;
    for (int32 edit = 0; edit < 1000; ++edit) {
        edited.EditAtRandom();
        if (edit % 10 == 0) kept.emplace_back(edited.Sequence(), edited.List());
    }
    for (const auto& [sequence, list] : kept)
        ASSERT_TRUE(ListOf(sequence) == list);
}

TEST(FrameSequence, SharesAllFramesWithACopyButThoseAroundAnEdit) {
    const FrameSequence frames = SequenceOf(1000);
    const PlainList list = ListOf(frames);
    const auto edits = {
        +[](FrameSequence& f) { f.Replace(500, NewFrame()); },
        +[](FrameSequence& f) { f.Insert(500, NewFrame()); },
        +[](FrameSequence& f) { f.Remove(500); },
        +[](FrameSequence& f) { f.Insert(1000, NewFrame()); },
    };
    for (const auto edit : edits) {
        FrameSequence copy = frames;
        EXPECT_EQ(CountWithOwnersAbove(list, 2), 0);

        edit(copy);

        EXPECT_LE(CountWithOwnersAbove(list, 2), kMostFramesInALeaf);
    }
}

TEST(FrameSequence, KeepsEveryStateOfTenThousandAppendsInLittleMemory) {
    constexpr int32 kAppends = 10000;
    std::vector<FrameSequence> states;
    FrameSequence frames;
    for (int32 i = 0; i < kAppends; ++i) {
        frames.Insert(i, NewFrame());
        states.push_back(frames);
    }

    const PlainList list = ListOf(frames);
    EXPECT_EQ(CountWithOwnersAbove(list, kMostFramesInALeaf + 1), 0);
    for (int32 i = 0; i < kAppends; ++i) {
        const FrameSequence& state = states[static_cast<size_t>(i)];
        ASSERT_EQ(state.Size(), i + 1);
        ASSERT_EQ(state.At(i), list[static_cast<size_t>(i)]);
        ASSERT_EQ(state.At(0), list[0]);
        ASSERT_EQ(state.At(i + 1), nullptr);
    }
}

TEST(FrameSequence, EqualsOneOfEqualFrames) {
    const FrameSequence frames = SequenceOf(100);
    FrameSequence copy = frames;
    EXPECT_EQ(copy, frames);

    copy.Replace(70, std::make_shared<const Frame>(*frames.At(70)));
    EXPECT_EQ(copy, frames);

    copy.Replace(70, NewFrame());
    EXPECT_FALSE(copy == frames);
    copy = frames;
    copy.Remove(99);
    EXPECT_FALSE(copy == frames);
}

}  // namespace kirto::test
