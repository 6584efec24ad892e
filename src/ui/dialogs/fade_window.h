#pragma once

#include <QDialog>
#include <memory>

#include "base/types.h"
#include "kit/messenger.h"
#include "kit/qt/gui_port.h"
#include "kit/window.h"

class QComboBox;
class RTColorControl;

namespace kirto {
class FadeStrip;
class TextControl;
struct Animation;
}  // namespace kirto

// The window "Fade Effects", in which a fade is chosen: its kind, its number of frames and its
// color. Opens beside its parent window and deletes itself when it is closed. GUI thread.
class FadeWindow : public QDialog, public BWindow {
  public:
    // application: carries out the fade.
    FadeWindow(BMessenger application, QWidget* parent);
    ~FadeWindow() override;

    // Shows what the fade would make of the current frame. in_seconds: the unit of the pauses; else
    // hundredths.
    void ShowFadeOf(std::shared_ptr<const kirto::Animation> animation, bool in_seconds);
    // The commands of the window's own controls.
    void MessageReceived(BMessage* message) override;
    // Asks the application for the fade, with the count as it stands.
    void Fade();
    // Called whichever way the window is closed.
    void done(int result) override;

  protected:
    // The Enter key in the count field means "OK", unless the count is refused.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    FadeWindow(BMessenger application, QWidget* parent, std::shared_ptr<kirto::GuiPort> port);

    void MakeControls();
    void Arrange(QWidget* panel);
    int32 Count() const;
    // Replaces a count that is out of bounds by 1, tells the user and returns false.
    bool CheckCount();

    BMessenger application_;
    std::shared_ptr<kirto::GuiPort> port_;
    QComboBox* mode_ = nullptr;
    kirto::TextControl* frame_count_ = nullptr;
    RTColorControl* color_ = nullptr;
    kirto::FadeStrip* preview_ = nullptr;
};
