#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <thread>

#include "app/kirto.h"
#include "kit/qt/qt_translator_roster.h"
#include "settings/prefs.h"
#include "ui/shell/qt_desktop.h"

namespace kirto {

// The whole editor with the built-in settings, driven by messages, as its windows would send them.
// GUI thread.
class DrivenEditor {
  public:
    DrivenEditor();
    ~DrivenEditor();
    DrivenEditor(const DrivenEditor&) = delete;
    DrivenEditor& operator=(const DrivenEditor&) = delete;

    KirtoWindow* Main() { return desktop_.MainWindow(); }
    Kirto& Application() { return application_; }
    int32 Frames();

    // To the main window and to the application.
    void Send(uint32 command);
    void Post(const BMessage& message) { application_.PostMessage(message); }
    void Post(uint32 command) { application_.PostMessage(command); }

    // An edit of which the application does not tell the windows, as it comes from one of them.
    void Edit(const BMessage& edit);
    // Each waits until the windows show it.
    void StartNew();
    void Open(const std::string& path);
    void SelectFrame(int32 number);
    void SelectFrames(const std::string& set);  // as ParseFrameSet has it
    // Repeats the frames, or removes the last ones, until there are so many. There is one at least.
    void SetLength(int32 frames);
    // Until the status line tells the exact size of the file, if it has room for it.
    void WaitForSizes();

    // The window with the English title that the command opens; null, and said so, where none
    // comes.
    QWidget* OpenWindow(uint32 command, const QString& title);

    // Lets the windows work.
    static void Settle(int times = 1);
    // False where that takes longer than it may.
    static bool WaitUntil(const std::function<bool()>& reached);

  private:
    Prefs prefs_{Prefs::BuiltIn{}};
    QtTranslatorRoster roster_;
    QtDesktop desktop_{roster_};
    Kirto application_;
    std::thread loop_;
};

}  // namespace kirto
