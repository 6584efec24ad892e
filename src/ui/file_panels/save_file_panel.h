#pragma once

#include <atomic>
#include <functional>
#include <map>

#include "kit/handler.h"
#include "kit/translator_roster.h"
#include "ui/file_panels/file_dialog_panel.h"

class QComboBox;
class QStandardItemModel;
class TranslatorMenuItem;

namespace kirto {
class TranslatorSettingsWindow;
}

// The panel in which a place to save to is chosen, and the format: animated GIF, or a sequence of
// images in a format of one of the translators. Its own controls' commands are handled at once, on
// the GUI thread.
class SaveFilePanel : public kirto::FileDialogPanel, public BHandler {
  public:
    // The roster outlives the panel. show_preferences: opens the preferences at the GIF settings.
    SaveFilePanel(BMessenger target, const BTranslatorRoster& roster, QPointer<QWidget> parent,
                  std::function<void()> show_preferences);
    ~SaveFilePanel() override;

    // The last choice in the format menu, unless the panel was cancelled after it.
    uint32 OutputFormat() const override { return output_format_; }
    void UseOutputFormat(uint32 format) override;
    void Show() override;

    void MessageReceived(BMessage* message) override;
    // Fills the format menu from the roster, "Animated GIF" marked.
    void BuildMenu();
    // The translator of the marked item; 0 for animated GIF and when none is marked.
    int32 GetOutputFormat() const;
    // Shows the settings of the chosen format, or why there are none.
    void TranslatorSettings();

  protected:
    void Prepare(kirto::FileDialog& dialog) override;
    BMessage CommandFor(const QStringList& files) const override;
    void Closed(bool chosen) override;

  private:
    void MakeControls(kirto::FileDialog& dialog);
    void AddTranslator(translator_id translator, QStandardItemModel& items);
    // The item's translator is an image format's; null and "Animated GIF" otherwise.
    const TranslatorMenuItem* MarkedItem() const;
    // Marks an item of the output format.
    void MarkOutputFormat();
    // The first item of the format; "Animated GIF" where there is none.
    int RowOf(uint32 format) const;
    // Uses the marked format for the message that a chosen place sends.
    void UseMarkedFormat();
    // The extension added to names without one, and that of the proposed name.
    void UseUsualExtension();
    void ProposeExtension(const QString& extension);
    void ShowSettings(int32 translator);
    // Asks before an existing file is replaced.
    bool MayWrite(const QString& path) const;

    const BTranslatorRoster& roster_;
    std::function<void()> show_preferences_;
    BMessage message_;  // what a choice of a place sends, without the place
    std::atomic<uint32> output_format_ = 0;
    std::atomic<uint32> saved_format_ = 0;  // that the document was last saved in
    std::map<int32, BMessage> settings_;    // by translator, where the user has changed them
    QPointer<QComboBox> format_;
    QPointer<kirto::TranslatorSettingsWindow> settings_window_;
};
