#pragma once

#include <QElapsedTimer>
#include <QFileDialog>
#include <QObject>
#include <array>
#include <functional>
#include <mutex>
#include <random>
#include <string>
#include <vector>

#include "driving/driven_editor.h"

namespace kirto {

// Does to the editor's windows what somebody does who knows nothing and stops at nothing: keys
// without pauses, clicks, drags, drops, wheels, other sizes, fonts and colors, in dialogs and menus
// as well. The same actions for the same seed, as far as the editor's threads let them be. It
// leaves alone what ends the program, and takes from file dialogs only the files it was given. GUI
// thread.
class Monkey : public QObject {
  public:
    struct Wait {
        double milliseconds = 0;
        std::string action;  // that the windows did not answer for so long
    };

    // files: absolute paths of what may be opened, inserted and dropped.
    Monkey(DrivenEditor& editor, std::vector<std::string> files, uint32 seed);

    // Runs the event loop until so many actions are done.
    void Act(int64 actions);

    // Any thread: what it does now, as a text.
    std::string Doing() const;
    // The longest waits, the longest first.
    std::vector<Wait> LongestWaits() const { return waits_; }
    int64 Done() const { return done_; }

  private:
    using Action = void (Monkey::*)();

    void Plan();
    void DoNext();
    void Say(const std::string& action);
    void TakeTime();
    uint32 Below(uint32 bound) { return static_cast<uint32>(random_() % bound); }
    QWidget* Window();
    QWidget* Somewhere();
    QPoint PointOn(const QWidget& widget);

    void PressKey();
    void TypeText();
    void Click();
    void Drag();
    void Turn();
    void Drop();
    void Resize();
    void Dress();
    void SendCommand();
    void ChooseMenuItem();
    bool AnswerFileDialog(QFileDialog* dialog);

    DrivenEditor& editor_;
    const std::vector<std::string> files_;
    std::mt19937 random_;
    int64 done_ = 0;
    int64 wanted_ = 0;
    QElapsedTimer since_;  // the last action began
    std::vector<Wait> waits_;
    mutable std::mutex mutex_;
    std::string doing_;  // guarded by it
};

}  // namespace kirto
