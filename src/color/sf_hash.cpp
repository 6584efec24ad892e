#include "color/sf_hash.h"

#include <bit>

SFHash::SFHash(int32 buckets) : bucket_count(buckets) {
    static_assert(sizeof(HashItem*) == sizeof(uint64));
    if (buckets > 0) {
        const size_t count = static_cast<size_t>(buckets);
        buckets_ = kirto::AllocateArray<HashItem*>(count + (count + 63) / 64);
    }
    fail = !buckets_;
    if (!fail) used_ = reinterpret_cast<uint64*>(buckets_.get() + buckets);
}

SFHash::~SFHash() {
    Reset();
}

void SFHash::AddItem(HashItem* item) {
    if (!buckets_) {
        delete item;
        return;
    }
    item->next = nullptr;
    HashItem** link = &Chain(item->key);
    while (*link)
        link = &(*link)->next;
    *link = item;
    const int32 bucket = static_cast<int32>(item->key % static_cast<uint32>(bucket_count));
    UsedBits(bucket) |= uint64{1} << (bucket % 64);
    ++item_count_;
}

HashItem* SFHash::GetItem(uint32 key) const {
    if (!buckets_) return nullptr;
    HashItem* item = Chain(key);
    while (item && item->key != key)
        item = item->next;
    return item;
}

int32 SFHash::UsedBucketFrom(int32 index) const {
    while (index < bucket_count) {
        const uint64 bits = UsedBits(index) >> (index % 64);
        if (bits != 0) return index + std::countr_zero(bits);
        index += 64 - index % 64;
    }
    return bucket_count;
}

void SFHash::Rewind() {
    iter_bucket = 0;
    iter_depth = 0;
}

HashItem* SFHash::NextItem() {
    if (buckets_ && iter_depth == 0) iter_bucket = UsedBucketFrom(iter_bucket);
    if (!buckets_ || iter_bucket >= bucket_count) {
        Rewind();
        return nullptr;
    }
    HashItem* item = Bucket(iter_bucket);
    for (int32 depth = 0; item && depth < iter_depth; ++depth)
        item = item->next;
    if (item && item->next) {
        ++iter_depth;
    } else {
        ++iter_bucket;
        iter_depth = 0;
    }
    // A chain that a reset has cut off under the cursor.
    return item ? item : NextItem();
}

void SFHash::Reset() {
    if (!buckets_) return;
    for (int32 bucket = UsedBucketFrom(0); bucket < bucket_count;
         bucket = UsedBucketFrom(bucket + 1)) {
        HashItem* item = Bucket(bucket);
        Bucket(bucket) = nullptr;
        UsedBits(bucket) &= ~(uint64{1} << (bucket % 64));
        while (item) {
            HashItem* next = item->next;
            delete item;
            item = next;
        }
    }
    item_count_ = 0;
}
