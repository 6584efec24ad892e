#pragma once

#include <QCache>
#include <QHash>
#include <QImage>
#include <memory>

#include "base/types.h"
#include "picture/picture.h"

namespace kirto {

// Pictures scaled to the sizes in which they were shown last, in bounded memory. Pictures are
// told apart by identity; the cache does not keep them alive. GUI thread.
class ThumbnailCache {
  public:
    static constexpr int64 kMaxBytes = int64{128} << 20;

    explicit ThumbnailCache(int64 max_bytes = kMaxBytes);

    // The picture at size, in pixels of the device, if it is here; else null.
    QImage Find(const std::shared_ptr<const Picture>& picture, QSize size) const;
    // The same, scaled smoothly if need be. Null if the picture has no rows, and when memory is
    // short.
    QImage Scaled(const std::shared_ptr<const Picture>& picture, QSize size);

  private:
    struct Key {
        const Picture* picture;
        QSize size;

        friend bool operator==(const Key&, const Key&) = default;
        friend size_t qHash(const Key& key, size_t seed) {
            return qHashMulti(seed, key.picture, key.size.width(), key.size.height());
        }
    };
    struct Entry {
        std::weak_ptr<const Picture> picture;  // another picture may later have its address
        QImage image;
    };

    QCache<Key, Entry> entries_;  // costs are bytes
};

}  // namespace kirto
