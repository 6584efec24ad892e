#pragma once

#include <QObject>
#include <QPointer>
#include <QThreadPool>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "app/recent_files.h"
#include "kit/message.h"

namespace kirto {

// The command that opens the file in the document's place; the application asks whether changes may
// go.
BMessage OpeningOf(const std::string& path);

// The animations that were opened or saved last, as the windows show them. A thread of its own
// reads and writes the lists, one after the other. GUI thread, but for Remember().
class RecentList : public QObject {
  public:
    // Receives the path of each file that is remembered, on the other thread: for the lists that
    // are not ours.
    using Tell = std::function<void(const std::string& path)>;

    // folder: of our own list.
    explicit RecentList(std::string folder, Tell tell = {});
    ~RecentList() override;

    // The latest first.
    const std::vector<RecentFile>& Files() const { return files_; }
    // Calls the function whenever there are others, as long as the context lives.
    void Watch(QObject* context, std::function<void()> changed);
    void Clear();

    // The file was opened or saved. Any thread.
    void Remember(const std::string& path);

  private:
    void Do(std::function<void()> task);
    void Show(std::vector<RecentFile> files);

    RecentFiles stored_;  // the other thread's
    const Tell tell_;
    std::vector<RecentFile> files_;
    std::vector<std::pair<QPointer<QObject>, std::function<void()>>> watchers_;
    QThreadPool thread_;
};

}  // namespace kirto
