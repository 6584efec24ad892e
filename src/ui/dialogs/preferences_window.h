#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QTabWidget>
#include <array>
#include <functional>
#include <map>
#include <string>

#include "resources/qt/ie_window.h"
#include "resources/qt/text_control.h"
#include "settings/prefs.h"
#include "ui/controls/editor.h"

// Lets the user change the settings. Its layout is the archive "PreferencesWindow"; it edits a copy
// of the settings, which "Save" sends to the application, for it to take them over and write them.
// A control that the layout lacks keeps its setting as it is. GUI thread; deletes itself when it is
// closed.
class PreferencesWindow : public IEWindow {
  public:
    // editor.resources must be there. current: the settings to start from. window_frame: where the
    // main window stands, asked for at "Save"; callable as long as this window exists.
    PreferencesWindow(const kirto::Editor& editor, const Prefs& current, QWidget* parent,
                      std::function<BRect()> window_frame);

    // Brings the tab of that view name to the front: "Global", "Palette", "Thumbnail", "Animation",
    // "Miscellaneous" or "Compatibility".
    void ShowTab(const char* name);
    // The setting "animation_faithful" was changed elsewhere: "Save" is not to change it back.
    void ShowFaithful(bool on);

    void MessageReceived(BMessage* message) override;

  private:
    // Settings that are one of several; each has a group of radio buttons with its values as ids.
    enum Choice {
        kPauseUnit,
        kMapping,
        kThumbnailHeight,
        kDisposal,
        kDithering,
        kMode,
        kChoiceCount
    };

    // Finds the views by their names.
    void RestorePointers();
    void RestoreChoices();
    // The color in front of the text that says it.
    void ShowSwatch();
    template <typename Control>
    Control* RestorePointer(const char* name);

    // The settings into the controls, and back.
    void ShowSettings();
    void TakeSettings();
    void ShowChoice(Choice choice, int32 value);
    int32 Matte() const;
    void ShowMatte();
    // The chosen value, or the argument otherwise when none is chosen.
    int32 Chosen(Choice choice, int32 otherwise) const;
    // A field that belongs to a box or radio button can be used while that is on.
    void EnableDependents();

    // Edits that were not checked yet are on their way to be so. False without any.
    bool CommitEdits();
    // Each checks the controls of its command and returns false for any other command.
    bool CheckNumber(uint32 command);
    bool CheckPath(uint32 command);
    bool CheckColors(uint32 command);
    // True when the path opens as a file, or else as a folder.
    static bool CheckIfExists(const std::string& path, bool file);
    void Save();

    int32 NumberIn(const char* field) const;
    kirto::TextControl& Field(const char* name) const { return *fields_.at(name); }
    bool IsOn(const char* box) const { return boxes_.at(box)->isChecked(); }

    Prefs prefs_;
    BMessenger application_;
    std::function<BRect()> window_frame_;
    // Owned by the window.
    QTabWidget* tabs_ = nullptr;
    std::map<std::string, kirto::TextControl*> fields_;
    std::map<std::string, QCheckBox*> boxes_;
    std::array<QButtonGroup*, kChoiceCount> choices_ = {};
};
