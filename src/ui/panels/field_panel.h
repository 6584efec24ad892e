#pragma once

#include <QGroupBox>
#include <vector>

#include "document/field_table.h"
#include "ui/controls/controls.h"
#include "ui/controls/panel_layout.h"
#include "ui/controls/shown_document.h"

namespace kirto {

// A panel of controls for fields of the document. A control sends its field's command to the
// window, which hands it back to PostEdit in its turn. GUI thread.
class FieldPanel : public QGroupBox {
  public:
    // Carries out the command of one of the panel's controls: checks what was typed, leaves the
    // control showing just what it found, and sends the edit with that value. Sends nothing and
    // returns false when no control of the panel has the command, or when there is no frame to
    // edit.
    bool PostEdit(uint32 command, const BMessenger& application);

    PanelLayout& Rows() { return *rows_; }
    // True when the panel is about the current frame.
    bool ShowsFrame() const;
    // Shows the document's state; a number that the user is typing is left alone.
    void UpdateDisplay() { Show(shown_.Current(), false); }
    // Shows what the settings give a new animation.
    void ResetDisplay();

  protected:
    // shown outlives the panel.
    FieldPanel(const char* name, const QString& title, const ShownDocument& shown,
               const BMessenger& window, QWidget* parent);

    // What a number counts. Pauses are in the unit of the settings.
    enum class Unit { kNone, kPixels, kPause };

    // These make the controls of the field that the command sets, with the names that the field
    // table gives it.

    // In a row of its own, behind the label; without one, behind the field's name. The box switches
    // it, if there is one.
    TextControl* AddNumber(uint32 command, Unit unit, const QString& tip, const QString& label = {},
                           QCheckBox* box = nullptr);
    // Behind the box that switches it.
    TextControl* AddNumber(uint32 command, Unit unit, const QString& tip, QCheckBox* box);
    // A line for what the pause is in milliseconds and frames per second.
    void AddPauseText();
    // Not placed yet. Without a label it is the field's name.
    QCheckBox* MakeSwitch(uint32 command, const QString& tip, const QString& label = {});
    // Not placed yet. Of the kinds of palette, of which the panel has one menu.
    QComboBox* MakePaletteMenu(const std::vector<MenuChoice>& kinds, const QString& tip);

    // end_edits: also those numbers that the user is typing.
    virtual void Show(const Animation& animation, bool end_edits);
    // The user chose a kind of palette. False when there is nothing to edit.
    virtual bool ChooseKind(uint32 command);

    const BMessenger& Window() const { return window_; }
    const ShownDocument& Shown() const { return shown_; }

  private:
    // Of the controls one.
    struct Row {
        const Field* field;
        TextControl* number;
        QCheckBox* box;
        bool is_switched;  // follows another box
    };

    static void ShowMixed(const Row& row);
    TextControl* MakeNumber(uint32 command, const QString& tip, QCheckBox* box);
    QLabel* MakeUnit(Unit unit);
    BMessage Checked(const Row& row) const;

    const ShownDocument& shown_;
    BMessenger window_;
    void ShowPause(const Animation& animation);

    PanelLayout* rows_;
    QLabel* pause_unit_ = nullptr;       // null if there is none
    QLabel* pause_text_ = nullptr;       // null if there is none
    QComboBox* palette_menu_ = nullptr;  // null if there is none
    std::vector<Row> fields_;
};

}  // namespace kirto
