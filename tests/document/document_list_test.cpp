#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "document/document_checks.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

// A document and a plain list of names on which every edit is carried out as well.
class EditedList {
  public:
    int32 Count() const { return static_cast<int32>(names_.size()); }

    void InsertAt(int32 index, const std::string& name) {
        const bool fits = index >= 0 && index <= Count();
        ASSERT_EQ(Insert(document_, name, index), fits);
        if (!fits) return;
        if (Count() == 0) selected_ = 0;
        names_.insert(names_.begin() + index, name);
    }
    void Remove() {
        document_.RemoveFrame();
        if (names_.empty()) return;
        names_.erase(names_.begin() + selected_);
        selected_ = std::min(selected_, Count() - 1);
        modified_ = true;
    }
    void Move(bool up) {
        document_.MoveFrame(up);
        const int32 target = up ? selected_ - 1 : selected_ + 1;
        if (names_.empty() || target < 0 || target >= Count()) return;
        std::iter_swap(names_.begin() + selected_, names_.begin() + target);
        selected_ = target;
        modified_ = true;
    }
    void Reverse() {
        document_.ReverseFrames();
        std::reverse(names_.begin(), names_.end());
    }
    void Select(int32 index) {
        const bool changes = index >= 0 && index < Count() && index != selected_;
        ASSERT_EQ(document_.Select(index), changes);
        if (changes) selected_ = index;
    }
    void Reset() {
        document_.Reset();
        names_.clear();
        selected_ = -1;
        modified_ = false;
    }
    // The document is as the list says.
    void ExpectEqual() const {
        ASSERT_EQ(Names(document_), names_);
        ASSERT_EQ(document_.Selected(), selected_);
        ASSERT_EQ(document_.Modified(), modified_);
        ExpectConsistent(document_);
    }

  private:
    DocumentFixture fixture_;
    AnimationDocument& document_ = fixture_.document;
    NameList names_;
    int32 selected_ = -1;
    bool modified_ = false;
};

}  // namespace

TEST(AnimationDocument, KeepsItsListInOrderThroughTwentyThousandRandomEdits) {
    EditedList list;
    std::mt19937 random(20240817);
    const auto below = [&random](int32 bound) {
        return static_cast<int32>(random() % static_cast<uint32>(bound));
    };
    for (int32 edit = 0; edit < 20000; ++edit) {
        const int32 choice = below(1000);
        if (choice < 350) {
            list.InsertAt(below(list.Count() + 3) - 1, "frame" + std::to_string(edit));
        } else if (choice < 600) {
            list.Remove();
        } else if (choice < 750) {
            list.Move(choice % 2 == 0);
        } else if (choice < 850) {
            list.Reverse();
        } else if (choice < 995) {
            list.Select(below(list.Count() + 4) - 2);
        } else {
            list.Reset();
        }
        list.ExpectEqual();
        ASSERT_FALSE(testing::Test::HasFailure()) << "after edit " << edit;
    }
}

}  // namespace kirto::test
