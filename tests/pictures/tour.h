#pragma once

#include <QString>
#include <string>

#include "driving/driven_editor.h"
#include "moving_picture.h"

namespace kirto {

// A walk through the editor as a moving picture: an animation is opened, played, changed and
// exported, with a line below the window that says what happens. GUI thread.
class Tour {
  public:
    explicit Tour(DrivenEditor& editor) : editor_(editor) {}

    // animation: the path of a file. False where a window does not come, or the picture can't be
    // written.
    bool Make(const std::string& animation, const std::string& path);

  private:
    void Open(const std::string& animation);
    void Play();
    void Arrange();
    bool Fade();
    bool Export();
    // Shows the main window, and a window before it where there is one.
    void Take(double hundredths, QWidget* before = nullptr);

    DrivenEditor& editor_;
    MovingPicture picture_;
    QString says_;
};

}  // namespace kirto
