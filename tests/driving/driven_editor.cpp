#include "driving/driven_editor.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <algorithm>
#include <cstdio>

#include "document/command_codes.h"
#include "kit/qt/ui_text.h"
#include "resources/resource_file_path.h"

namespace kirto {

namespace {

constexpr int kDeadline = 10000;  // milliseconds
constexpr int kSettle = 150;      // milliseconds

void WorkFor(int milliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds)
        QApplication::processEvents(QEventLoop::AllEvents, 10);
}

// title: English.
QWidget* WindowTitled(const QString& title) {
    const QString translated = UiText::tr(title.toUtf8());
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const QString shown = window->windowTitle();
        if (window->isVisible() && (shown == title || shown == translated)) return window;
    }
    return nullptr;
}

}  // namespace

DrivenEditor::DrivenEditor()
    : application_(prefs_, desktop_, roster_, entry_ref(ResourceFilePath())), loop_([this] {
          application_.CheckSaves();
          application_.Loop();
      }) {}

DrivenEditor::~DrivenEditor() {
    desktop_.CloseWindows();
    application_.Quit();
    loop_.join();
}

int32 DrivenEditor::Frames() {
    return application_.CurrentState()->animation->frames.Size();
}

void DrivenEditor::Send(uint32 command) {
    Main()->Messenger().SendMessage(command);
    Settle();
}

void DrivenEditor::StartNew() {
    Post(kResetDocument);
    WaitUntil([&] { return Frames() == 0; });
}

void DrivenEditor::Open(const std::string& path) {
    const std::string name = path.substr(path.rfind('/') + 1);
    BMessage open(kOpenFile);
    open.AddRef("refs", entry_ref(path));
    open.AddBool("reset", true);
    Post(open);
    WaitUntil([&] { return Main()->Shown().State().file_name == name; });
}

void DrivenEditor::Edit(const BMessage& edit) {
    Post(edit);
    Settle();
    Send(kUpdateAll);
}

void DrivenEditor::SelectFrame(int32 number) {
    BMessage select(kSelectFrame);
    select.AddInt32("number", number);
    Post(select);
    WaitUntil([&] { return Main()->Shown().State().animation->selected == number; });
}

void DrivenEditor::SelectFrames(const std::string& set) {
    BMessage select(kSelectFrames);
    select.AddString("frames", set);
    Post(select);
    Settle(2);
}

void DrivenEditor::WaitForSizes() {
    Settle(2);
    const auto* status = Main()->findChild<QWidget*>("StatusView");
    WaitUntil([status] {
        for (const auto* label : status->findChildren<QLabel*>())
            if (label->text().contains("file about")) return false;
        return true;
    });
}

void DrivenEditor::SetLength(int32 frames) {
    while (Frames() != frames) {
        const int32 before = Frames();
        const bool more = before < frames;
        const int32 first = more ? 0 : frames;
        const int32 last = more ? std::min(before, frames - before) - 1 : before - 1;
        SelectFrames(std::to_string(first) + "-" + std::to_string(last));
        Post(more ? kDuplicateFrames : kRemoveFrame);
        if (!WaitUntil([&] { return Frames() != before; })) return;
    }
    SelectFrame(0);
    Send(kUpdateAll);
}

QWidget* DrivenEditor::OpenWindow(uint32 command, const QString& title) {
    Main()->Messenger().SendMessage(command);
    WaitUntil([&] { return WindowTitled(title) != nullptr; });
    QWidget* window = WindowTitled(title);
    if (!window) std::fprintf(stderr, "no window \"%s\".\n", qPrintable(title));
    return window;
}

void DrivenEditor::Settle(int times) {
    WorkFor(times * kSettle);
}

bool DrivenEditor::WaitUntil(const std::function<bool()>& reached) {
    QElapsedTimer timer;
    timer.start();
    while (!reached() && timer.elapsed() < kDeadline)
        WorkFor(10);
    Settle();
    return reached();
}

}  // namespace kirto
