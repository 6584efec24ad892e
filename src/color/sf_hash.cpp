#include "color/sf_hash.h"

SFHash::SFHash(int32 buckets) : bucket_count(buckets) {
    if (buckets > 0) buckets_ = kirto::AllocateArray<HashItem*>(static_cast<size_t>(buckets));
    fail = !buckets_;
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
}

HashItem* SFHash::GetItem(uint32 key) const {
    if (!buckets_) return nullptr;
    HashItem* item = Chain(key);
    while (item && item->key != key)
        item = item->next;
    return item;
}

int32 SFHash::CountItems() const {
    if (!buckets_) return 0;
    int32 count = 0;
    for (int32 bucket = 0; bucket < bucket_count; ++bucket) {
        for (const HashItem* item = Bucket(bucket); item; item = item->next)
            ++count;
    }
    return count;
}

void SFHash::Rewind() {
    iter_bucket = 0;
    iter_depth = 0;
}

HashItem* SFHash::NextItem() {
    while (buckets_ && iter_bucket < bucket_count) {
        HashItem* item = Bucket(iter_bucket);
        for (int32 depth = 0; item && depth < iter_depth; ++depth)
            item = item->next;
        if (item && item->next) {
            ++iter_depth;
            return item;
        }
        ++iter_bucket;
        iter_depth = 0;
        if (item) return item;
    }
    Rewind();
    return nullptr;
}

void SFHash::Reset() {
    if (!buckets_) return;
    for (int32 bucket = 0; bucket < bucket_count; ++bucket) {
        HashItem* item = Bucket(bucket);
        Bucket(bucket) = nullptr;
        while (item) {
            HashItem* next = item->next;
            delete item;
            item = next;
        }
    }
}
