// Which command of the main window is handled by which of its methods.
#include <algorithm>

#include "document/command_codes.h"
#include "ui/panels/field_panel.h"
#include "ui/shell/kirto_window.h"

// One row of the command table.
struct KirtoWindow::Command {
    uint32 code;
    Handler handle;
};

const KirtoWindow::Command* KirtoWindow::CommandFor(uint32 code) {
    static constexpr Command kCommands[] = {
        {kirto::kUpdateAll, &KirtoWindow::UpdateAll},
        {kirto::kUpdateFrames, &KirtoWindow::UpdateFrames},
        {kirto::kUpdateFramesNoStatus, &KirtoWindow::UpdateFramesNoStatus},
        {kirto::kEditDone, &KirtoWindow::UpdateAll},
        {kirto::kResume, &KirtoWindow::Resume},
        {kirto::kAbandonPending, &KirtoWindow::AbandonPending},
        {kirto::kStatusUpdate, &KirtoWindow::ShowStatus},
        {kirto::kWorkProgress, &KirtoWindow::ShowWork},
        {kirto::kStopWork, &KirtoWindow::StopWork},
        {kirto::kAskAboutVideo, &KirtoWindow::AskAboutVideo},
        {kirto::kQuitWhenDone, &KirtoWindow::CloseWhenDone},
        {kirto::kShowNotice, &KirtoWindow::Notice},
        {kirto::kHideNotice, &KirtoWindow::Notice},
        {kirto::kCloseNotice, &KirtoWindow::Notice},
        {kirto::kShowDifferences, &KirtoWindow::Notice},
        {kirto::kUndoOpening, &KirtoWindow::Forward},
        {kirto::kSaveFaithfully, &KirtoWindow::Forward},
        {kirto::kScaleLargerFrames, &KirtoWindow::Forward},
        {kirto::kCropLargerFrames, &KirtoWindow::Forward},
        {kirto::kMenuNew, &KirtoWindow::New},
        {kirto::kMenuOpen, &KirtoWindow::Open},
        {kirto::kMenuSave, &KirtoWindow::Save},
        {kirto::kMenuSaveAs, &KirtoWindow::SaveAs},
        {B_ABOUT_REQUESTED, &KirtoWindow::About},
        {B_QUIT_REQUESTED, &KirtoWindow::RequestQuit},
        {kirto::kPreview, &KirtoWindow::Preview},
        {kirto::kToggleMode, &KirtoWindow::ToggleMode},
        {kirto::kShowPlayer, &KirtoWindow::TogglePlayer},
        {kirto::kPlay, &KirtoWindow::Play},
        {kirto::kShowLabels, &KirtoWindow::ToggleLabels},
        {kirto::kShowColors, &KirtoWindow::ShowColors},
        {kirto::kMenuPreferences, &KirtoWindow::OpenPreferences},
        {kirto::kMenuInsert, &KirtoWindow::Insert},
        {kirto::kMenuInsertTiled, &KirtoWindow::InsertTiled},
        {kirto::kMenuFadeEffects, &KirtoWindow::FadeEffects},
        {kirto::kMenuInsertAnimation, &KirtoWindow::InsertAnimation},
        {kirto::kMenuCut, &KirtoWindow::UseClipboard},
        {kirto::kMenuCopy, &KirtoWindow::UseClipboard},
        {kirto::kMenuPaste, &KirtoWindow::UseClipboard},
        {kirto::kMenuExport, &KirtoWindow::Export},
        {kirto::kMenuExportSheet, &KirtoWindow::ExportSheet},
        {kirto::kMenuSelectAll, &KirtoWindow::ChooseFrames},
        {kirto::kMenuSelectNone, &KirtoWindow::ChooseFrames},
        {kirto::kMenuInvertSelection, &KirtoWindow::ChooseFrames},
        {kirto::kMenuSelectEvery, &KirtoWindow::ChooseFrames},
        {kirto::kMenuSelectRange, &KirtoWindow::ChooseFrames},
        {kirto::kMenuGoToFrame, &KirtoWindow::ChooseFrames},
        {kirto::kMenuSetPause, &KirtoWindow::ChooseFrames},
        {kirto::kMenuDropEvery, &KirtoWindow::ChooseFrames},
        {kirto::kMenuRemoveDuplicates, &KirtoWindow::ChooseFrames},
        {kirto::kMenuMoveTo, &KirtoWindow::ChooseFrames},
        {kirto::kMenuResize, &KirtoWindow::ChooseFrames},
        {kirto::kMenuCrop, &KirtoWindow::ChooseFrames},
        {kirto::kMenuCanvasSize, &KirtoWindow::ChooseFrames},
        {kirto::kMenuRotateRight, &KirtoWindow::ChooseFrames},
        {kirto::kMenuRotateLeft, &KirtoWindow::ChooseFrames},
        {kirto::kMenuFlipAcross, &KirtoWindow::ChooseFrames},
        {kirto::kMenuFlipDown, &KirtoWindow::ChooseFrames},
        {kirto::kMenuFitFrames, &KirtoWindow::ChooseFrames},
        {kirto::kMenuAdjustColors, &KirtoWindow::ChooseFrames},
        {kirto::kMenuOpacity, &KirtoWindow::ChooseFrames},
        {kirto::kMenuOverlay, &KirtoWindow::ChooseFrames},
        {kirto::kMenuText, &KirtoWindow::ChooseFrames},
        {kirto::kMenuMakeTransparent, &KirtoWindow::ChooseFrames},
        {kirto::kRemoveFrame, &KirtoWindow::Forward},
        {kirto::kMoveFrameUp, &KirtoWindow::Forward},
        {kirto::kMoveFrameDown, &KirtoWindow::Forward},
        {kirto::kReverseFrames, &KirtoWindow::Forward},
        {kirto::kUndo, &KirtoWindow::Forward},
        {kirto::kRedo, &KirtoWindow::Forward},
        {B_SIMPLE_DATA, &KirtoWindow::Forward},
        {kirto::kStoreSettings, &KirtoWindow::Forward},
        {kirto::kPaletteToFile, &KirtoWindow::PaletteFromFile},
        {kirto::kFramePaletteToFile, &KirtoWindow::PaletteFromFile},
        {kirto::kThumbnailMode, &KirtoWindow::ChooseMode},
        {kirto::kFrameListMode, &KirtoWindow::ChooseMode},
        {kirto::kThumbnailSlider, &KirtoWindow::SlideThumbnails},
        {kirto::kThumbnailFirstHalf, &KirtoWindow::PresetThumbnails},
        {kirto::kThumbnailCurrentHalf, &KirtoWindow::PresetThumbnails},
        {kirto::kThumbnailFirstFull, &KirtoWindow::PresetThumbnails},
        {kirto::kThumbnailCurrentFull, &KirtoWindow::PresetThumbnails},
        {kirto::kThumbnailFit, &KirtoWindow::PresetThumbnails},
        {kirto::kThumbnailPreset, &KirtoWindow::PresetThumbnails},
        {kirto::kFrameListSelection, &KirtoWindow::SelectInList},
        {kirto::kSelectFrame, &KirtoWindow::Forward},
        {kirto::kSelectFrames, &KirtoWindow::Forward},
        {kirto::kMoveFramesTo, &KirtoWindow::Forward},
        {kirto::kCopyFramesTo, &KirtoWindow::Forward},
        {kirto::kSetPauses, &KirtoWindow::Forward},
        {kirto::kDuplicateFrames, &KirtoWindow::Forward},
        {kirto::kForwardAndBack, &KirtoWindow::Forward},
        {kirto::kStartAtCurrent, &KirtoWindow::Forward},
        {kirto::kPasteFrames, &KirtoWindow::Forward},
        {kirto::kOpenFile, &KirtoWindow::Forward},
    };
    for (const Command& command : kCommands) {
        if (command.code == code) return &command;
    }
    return nullptr;
}

void KirtoWindow::MessageReceived(BMessage* message) {
    if (const Command* command = CommandFor(message->what)) {
        (this->*command->handle)(message);
    } else if (!PostEdit(message->what)) {
        BWindow::MessageReceived(message);
    }
}

// In the panel that has its control.
bool KirtoWindow::PostEdit(uint32 command) {
    return std::any_of(panels_.begin(), panels_.end(), [=, this](kirto::FieldPanel* panel) {
        return panel->PostEdit(command, editor_.application);
    });
}
