#pragma once

#include "driving/driven_editor.h"
#include "picture_folder.h"

namespace kirto {

// Draws the main window in each state that changes how it looks: without a frame, with one, with
// some and with thousands, playing, with selections, mixed values and long names. GUI thread.
class StatePictures {
  public:
    StatePictures(DrivenEditor& editor, PictureFolder& folder) : editor_(editor), folder_(folder) {}

    // animation: the path of a file, with a folder; others are made in that folder.
    void DrawAll(const std::string& animation);

  private:
    // The window with both kinds of list, as name-thumbnails and name-list.
    void DrawBoth(const std::string& name);
    void DrawMixedValues();
    void DrawPlaying();
    void DrawLongNames(const std::string& animation);
    void DrawMenus();

    DrivenEditor& editor_;
    PictureFolder& folder_;
};

}  // namespace kirto
