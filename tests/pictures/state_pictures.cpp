#include "state_pictures.h"

#include <QMenu>
#include <QMenuBar>
#include <filesystem>

#include "document/command_codes.h"
#include "ui/controls/menu_names.h"

namespace kirto {

namespace {

constexpr int32 kSome = 30;
constexpr int32 kThousands = 3000;
constexpr int32 kMarkedFrame = 3;
// Hundredths of a second: a frame that is still shown when it has been drawn.
constexpr double kLongPause = 6000;
constexpr const char* kLongName =
    "A rather long name, as files have it that were sent to and fro between "
    "many people, each of whom added something to it, before this (final) version 2.gif";

}  // namespace

void StatePictures::DrawAll(const std::string& animation) {
    DrawBoth("none");
    DrawMenus();
    editor_.Open(animation);
    editor_.SetLength(1);
    DrawBoth("one");
    editor_.SetLength(kSome);
    editor_.SelectFrame(kMarkedFrame);
    DrawBoth("some");
    DrawMixedValues();
    DrawPlaying();
    editor_.SetLength(kThousands);
    editor_.SelectFrame(kThousands / 2);
    DrawBoth("thousands");
    DrawLongNames(animation);
}

void StatePictures::DrawBoth(const std::string& name) {
    editor_.WaitForSizes();
    folder_.Add(*editor_.Main(), name + "-thumbnails");
    editor_.Send(kToggleMode);
    DrivenEditor::Settle();
    folder_.Add(*editor_.Main(), name + "-list");
    editor_.Send(kToggleMode);
}

// Selected frames that differ in place, pause and palette.
void StatePictures::DrawMixedValues() {
    editor_.SelectFrame(kMarkedFrame + 1);
    BMessage pause(kFrameSetPauseLength);
    pause.AddDouble("value", kLongPause);
    editor_.Edit(pause);
    BMessage offset(kFrameSetXOffset);
    offset.AddInt32("value", kMarkedFrame);
    editor_.Edit(offset);
    editor_.SelectFrames("2-5,7");
    DrawBoth("mixed");
}

// Where the first frame stays for a minute.
void StatePictures::DrawPlaying() {
    editor_.SelectFrame(0);
    BMessage own(kFrameUsePause);
    own.AddBool("value", true);
    editor_.Edit(own);
    BMessage pause(kFrameSetPauseLength);
    pause.AddDouble("value", kLongPause);
    editor_.Edit(pause);
    DrivenEditor::Settle(2);
    editor_.Send(kShowPlayer);
    DrivenEditor::Settle(2);
    DrawBoth("player");
    editor_.Send(kPlay);
    DrivenEditor::Settle();
    folder_.Add(*editor_.Main(), "playing");
    editor_.Send(kPlay);
    editor_.Send(kShowPlayer);
}

void StatePictures::DrawLongNames(const std::string& animation) {
    const std::filesystem::path path = std::filesystem::path(animation).replace_filename(kLongName);
    std::filesystem::copy_file(animation, path, std::filesystem::copy_options::overwrite_existing);
    editor_.Open(path.string());
    DrawBoth("long-names");
    std::filesystem::remove(path);
}

void StatePictures::DrawMenus() {
    for (QAction* title : editor_.Main()->menuBar()->actions()) {
        QMenu* menu = title->menu();
        menu->popup(editor_.Main()->mapToGlobal(QPoint()));
        DrivenEditor::Settle();
        folder_.Add(*menu, "menu-" + EnglishNameOf(*title).toLower().toStdString());
        menu->close();
    }
}

}  // namespace kirto
