#include "formats/fli/fli_input.h"

#include <algorithm>

namespace kirto {

namespace {

// What a read costs beyond its bytes. Together with the factor it leaves every file that is read
// once below its allowance: the smallest chunk, 6 bytes in one read, may cost 96 and costs 38; the
// smallest record that makes a frame, 22 bytes, may cost 352 and costs 286.
constexpr int64 kReadCost = 32;
constexpr int64 kWorkPerByte = 16;
// For small files whose sizes are a little wrong.
constexpr int64 kSlack = int64{64} << 10;
constexpr int64 kLargestFile = int64{1} << 56;

}  // namespace

FliInput::FliInput(BFile& file, Work& work)
    : input_(file, work), work_left_(kSlack + kWorkPerByte * std::min(file.Size(), kLargestFile)) {}

bool FliInput::Read(std::span<uint8> buffer) {
    const int64 size = static_cast<int64>(buffer.size());
    return Spend(kReadCost + size) && input_.Read(buffer.data(), buffer.size());
}

bool FliInput::ReadBlock(int64 size, std::span<const uint8>* block) {
    *block = {};
    if (size == 0) return true;
    if (size < 0 || size > input_.Size() - input_.Position()) return false;
    const size_t count = static_cast<size_t>(size);
    if (count > capacity_) {
        block_ = AllocateArray<uint8>(count);
        capacity_ = block_ ? count : 0;
        ran_out_of_memory_ = ran_out_of_memory_ || !block_;
    }
    if (!block_ || !Read({block_.get(), count})) return false;
    *block = {block_.get(), count};
    return true;
}

bool FliInput::Skip(int64 distance) {
    return input_.Skip(distance);
}

bool FliInput::StartRecord() {
    if (input_.Position() <= furthest_record_) return false;
    furthest_record_ = input_.Position();
    return true;
}

bool FliInput::Spend(int64 work) {
    work_left_ -= work;
    return work_left_ >= 0;
}

}  // namespace kirto
