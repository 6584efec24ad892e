#pragma once

#include <QDialog>
#include <memory>

#include "platform/messenger.h"
#include "platform/qt/gui_port.h"
#include "platform/types.h"
#include "platform/window.h"

class QComboBox;
class RTColorControl;

namespace kirto {
class TextControl;
}

// The window "Fade Effects", in which a fade is chosen: its kind, its number of frames and its
// colour. Goes on by itself once it is shown, beside its parent window, and deletes itself when it
// is closed. GUI thread.
class FadeWindow : public QDialog, public BWindow {
  public:
    // application: where the fade is carried out.
    FadeWindow(BMessenger application, QWidget* parent);
    ~FadeWindow() override;

    // The commands of the window's own controls.
    void MessageReceived(BMessage* message) override;
    // Asks the application for the fade, with the count as it stands.
    void Fade();
    // The end of the window, whichever way it is closed.
    void done(int result) override;

  protected:
    // The Enter key in the count field means "OK", unless the count is refused.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    FadeWindow(BMessenger application, QWidget* parent, std::shared_ptr<kirto::GuiPort> port);

    void MakeControls();
    void Arrange(QWidget* panel);
    int32 Count() const;
    // Puts 1 in the place of a count that is out of bounds, and tells the user; false then.
    bool CheckCount();

    BMessenger application_;
    std::shared_ptr<kirto::GuiPort> port_;
    QComboBox* mode_ = nullptr;
    kirto::TextControl* frame_count_ = nullptr;
    RTColorControl* color_ = nullptr;
    QWidget* preview_ = nullptr;
};
