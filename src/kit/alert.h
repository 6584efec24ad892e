#pragma once

#include <string>
#include <vector>

#include "base/core_text.h"
#include "base/types.h"

enum alert_type : int32 {
    B_INFO_ALERT = 1,
    B_IDEA_ALERT,
    B_WARNING_ALERT,
    B_STOP_ALERT,
};

class BAlert;

namespace kirto {

// Shows alerts to whoever sits in front of the program: a dialog, a line on standard error, or a
// test's script. Called from any thread.
class AlertPresenter {
  public:
    virtual ~AlertPresenter() = default;
    // Shows the alert and returns the index of the button chosen, from the left. Blocks the caller
    // until there is an answer.
    virtual int32 Present(const BAlert& alert) = 0;
    // Says that something has failed where nothing is asked: by an alert, unless the presenter has
    // a way that interrupts nobody.
    virtual void Tell(const std::string& text);
};

// Installs the presenter (not owned; null for none) and returns the one before, which may be
// destroyed once no alert of its is up. Without a presenter an alert is answered with its last
// button. Callable from any thread.
AlertPresenter* InstallAlertPresenter(AlertPresenter* presenter);

}  // namespace kirto

// A modal question or notice of one to three buttons.
class BAlert {
  public:
    // Buttons from the left; empty second and third texts mean there is none.
    BAlert(std::string title, std::string text, std::string button0, std::string button1 = {},
           std::string button2 = {}, alert_type type = B_WARNING_ALERT);

    // The button that Enter chooses, by its index; the last one unless this is called.
    void SetDefaultButton(int32 button) { default_button_ = button; }
    int32 DefaultButton() const { return default_button_; }

    // Shows the alert through the installed presenter and returns the chosen button's index.
    int32 Go();

    const std::string& Title() const { return title_; }
    const std::string& Text() const { return text_; }
    const std::vector<std::string>& Buttons() const { return buttons_; }
    alert_type Type() const { return type_; }

  private:
    std::string title_;
    std::string text_;
    std::vector<std::string> buttons_;
    alert_type type_;
    int32 default_button_ = 0;
};

namespace kirto {

// Shows a warning alert without a title and with the one button "OK".
void Warn(const std::string& text);

// Says the same without waiting for anybody to read it, where the presenter can.
void TellQuietly(const std::string& text);

inline constexpr const char* kOutOfMemory = CoreText::Later("Out of memory.");

// Warn(kOutOfMemory). Where memory is too short even for that, nothing happens.
void WarnOutOfMemory() noexcept;

}  // namespace kirto
