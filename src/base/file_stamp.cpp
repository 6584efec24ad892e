#include "base/file_stamp.h"

#include <sys/stat.h>

namespace kirto {

std::optional<FileStamp> FileStamp::Of(const std::string& path) {
    struct stat info {};
    if (stat(path.c_str(), &info) != 0) return std::nullopt;
    return FileStamp{info.st_dev, info.st_ino, info.st_size, info.st_mtim.tv_sec,
                     info.st_mtim.tv_nsec};
}

}  // namespace kirto
