#pragma once

#include <memory>
#include <string>

namespace kirto {

// Holds a lock file for as long as it lives: nobody else, in this process or another, has a lock of
// the same path meanwhile. The system gives the lock back when the process ends, however it ends.
class FileLock {
  public:
    // Makes the file where it is missing, for the user only. Null when somebody else holds the lock
    // and when the file can't be made or locked. Never waits.
    static std::unique_ptr<FileLock> TryTake(const std::string& path);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    const std::string& Path() const { return path_; }
    // Removes the file; the lock is held until the end all the same.
    void RemoveFile();

  private:
    FileLock(std::string path, int descriptor);

    const std::string path_;
    const int descriptor_;
};

}  // namespace kirto
