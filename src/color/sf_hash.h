#pragma once

#include "base/allocation.h"
#include "base/types.h"
#include "color/hash_item.h"

// A chained hash table of fixed size from 32-bit keys to items that it owns. The bucket of a key is
// key mod bucket_count; it never grows and never removes single items. Iteration is in bucket
// order, then in order of insertion, and callers rely on that order to break ties. Used by one
// thread.
class SFHash {
  public:
    // The bucket array could not be allocated, or no buckets were asked for: nothing can be kept.
    bool fail = false;
    int32 bucket_count = 0;
    int32 iter_bucket = 0;  // the cursor's bucket
    int32 iter_depth = 0;   // the cursor's position in that bucket's chain

    static constexpr int32 kDefaultBuckets = 4096;

    explicit SFHash(int32 buckets = kDefaultBuckets);
    ~SFHash();
    SFHash(const SFHash&) = delete;
    SFHash& operator=(const SFHash&) = delete;

    // Takes ownership and appends the item to its chain; equal keys are kept side by side. A table
    // that failed deletes the item at once.
    void AddItem(HashItem* item);
    // The first item added with the key, or null.
    HashItem* GetItem(uint32 key) const;
    int32 CountItems() const { return item_count_; }
    // Moves the cursor to the first bucket.
    void Rewind();
    // The item at the cursor, which then moves on; null past the last item, and the cursor is back
    // at the start.
    HashItem* NextItem();
    // Deletes every item; the cursor stays where it is.
    void Reset();

  private:
    // The head of a bucket's chain, and of the chain that the key belongs to.
    HashItem*& Bucket(int32 index) const { return buckets_[static_cast<size_t>(index)]; }
    HashItem*& Chain(uint32 key) const { return buckets_[key % static_cast<uint32>(bucket_count)]; }

    // The first bucket from index on that holds an item, or bucket_count.
    int32 UsedBucketFrom(int32 index) const;
    uint64& UsedBits(int32 bucket) const { return used_[bucket / 64]; }

    kirto::AllocatedArray<HashItem*> buckets_;
    // One bit per bucket that holds an item, after the buckets in the same block: most tables are
    // nearly empty, and walking all their buckets would cost more than filling them.
    uint64* used_ = nullptr;
    int32 item_count_ = 0;
};
