#pragma once

#include <QImage>
#include <QObject>
#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "app/video_preview.h"
#include "ui/controls/latest_work.h"

namespace kirto {

// The small pictures that show a video, read on a thread of their own. GUI thread.
class VideoPictures : public QObject {
  public:
    // All called on the GUI thread, as long as this lives.
    struct Receivers {
        std::function<void(const PreviewedVideo& video)> begin;  // first
        std::function<void()> grown;                             // there is one picture more
        std::function<void(const QString& reason)> failed;       // there are none
    };

    VideoPictures(const std::string& path, Receivers receivers);

    // That of the moment; the last one where it has not been read yet. Null before the first.
    QImage At(double seconds) const;
    // Pictures a second; 0 before the first.
    double Rate() const { return rate_; }
    bool Empty() const { return pictures_.empty(); }

  private:
    void Read(const std::string& path, const std::atomic<bool>& stop);
    // Calls it on the GUI thread.
    void Post(std::function<void()> call);

    const Receivers receivers_;
    double rate_ = 0;
    std::vector<QImage> pictures_;
    LatestWork work_;  // destroyed first
};

}  // namespace kirto
