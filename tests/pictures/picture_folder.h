#pragma once

#include <QWidget>
#include <map>
#include <string>

namespace kirto {

// Writes pictures of windows as PNG files into one folder, and keeps a fingerprint of each: its
// size and a checksum of each square of 64 x 64 pixels, so that what differs from approved pictures
// can be told, and where, without keeping those. GUI thread.
class PictureFolder {
  public:
    explicit PictureFolder(std::string folder) : folder_(std::move(folder)) {}

    const std::string& Path() const { return folder_; }
    // name: without ".png"; of each name one picture.
    void Add(QWidget& window, const std::string& name);
    // Counts a picture that could not be made as a failure; what happened was said.
    void Miss() { ++failures_; }
    int Failures() const { return failures_; }

    // A line a picture: its name, width, height, and the checksums, row by row. False where it
    // can't be written.
    bool WriteFingerprints(const std::string& path) const;
    // Says which pictures differ from those of the file, are new or are missing. Their number; -1
    // where the file can't be read.
    int CountDifferences(const std::string& path) const;

  private:
    const std::string folder_;
    std::map<std::string, std::string> fingerprints_;  // by name
    int failures_ = 0;
};

}  // namespace kirto
