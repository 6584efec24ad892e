#include "ui/controls/recent_list.h"

#include <QDateTime>

#include "document/command_codes.h"

namespace kirto {

BMessage OpeningOf(const std::string& path) {
    BMessage command(kOpenFile);
    command.AddRef("refs", entry_ref(path));
    command.AddBool("panel", false);
    command.AddBool("ask", true);
    return command;
}

RecentList::RecentList(std::string folder, Tell tell)
    : stored_(std::move(folder)), tell_(std::move(tell)) {
    thread_.setMaxThreadCount(1);
    Do([] {});
}

RecentList::~RecentList() {
    thread_.waitForDone();
}

void RecentList::Watch(QObject* context, std::function<void()> changed) {
    watchers_.emplace_back(context, std::move(changed));
}

void RecentList::Clear() {
    Do([this] { stored_.Clear(); });
}

void RecentList::Remember(const std::string& path) {
    const int64 now = QDateTime::currentSecsSinceEpoch();
    Do([this, path, now] {
        stored_.Add({path, now});
        if (tell_) tell_(path);
    });
}

// Carries the task out on the other thread, and shows what is stored after that.
void RecentList::Do(std::function<void()> task) {
    thread_.start([this, task = std::move(task)] {
        task();
        QMetaObject::invokeMethod(
            this, [this, files = stored_.Read()] { Show(files); }, Qt::QueuedConnection);
    });
}

void RecentList::Show(std::vector<RecentFile> files) {
    if (files == files_) return;
    files_ = std::move(files);
    for (const auto& [context, changed] : watchers_) {
        if (context) changed();
    }
}

}  // namespace kirto
