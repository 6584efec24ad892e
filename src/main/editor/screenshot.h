#pragma once

#include <string>

#include "kit/handler.h"

class Kirto;
class KirtoWindow;

namespace kirto {

// Writes a picture of the main window once the application has done what it was told at the start,
// and then asks it to quit. Made on the GUI thread before the application's loop runs; lives in the
// application's looper.
class Screenshot : public BHandler {
  public:
    // path: where the picture goes; empty for no picture, and then nothing happens at all. *status
    // becomes 1 when the picture can't be written.
    Screenshot(Kirto& application, KirtoWindow& window, const std::string& path, int* status);

    void MessageReceived(BMessage* message) override;

  private:
    void Write();

    Kirto& application_;
    KirtoWindow& window_;
    const std::string path_;
    int* status_;
    int rounds_ = 0;  // the application thread's
};

}  // namespace kirto
