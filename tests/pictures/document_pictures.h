#pragma once

#include "driving/driven_editor.h"
#include "picture_folder.h"

namespace kirto {

// Draws what the documents show: one picture of each window, with an animation of some twenty
// frames, file names without folders beside it. GUI thread.
class DocumentPictures {
  public:
    DocumentPictures(DrivenEditor& editor, PictureFolder& folder)
        : editor_(editor), folder_(folder) {}

    // animation: the path of a file.
    void DrawAll(const std::string& animation);

  private:
    void DrawMain();
    void DrawDialog(uint32 command, const char* title, const char* name);
    void DrawFade();
    void DrawSheet();
    void DrawVideo();
    void DrawExport();
    void DrawText();
    void DrawSelection();
    void DrawPreferences();
    void DrawWork();
    void DrawEditMenu();
    void DrawSaveNotice();
    void DrawRecoveryOffer();
    void DrawDamage(const std::string& animation);
    void DrawMenu(int position, const char* name);

    DrivenEditor& editor_;
    PictureFolder& folder_;
};

}  // namespace kirto
