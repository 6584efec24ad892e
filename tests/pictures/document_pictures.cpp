#include "document_pictures.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTabWidget>
#include <filesystem>

#include "app/recovery/crash_recovery.h"
#include "document/command_codes.h"
#include "ui/dialogs/fade_strip.h"
#include "ui/export/export_dialog.h"
#include "ui/export/export_view.h"
#include "video_stand_in.h"

namespace kirto {

namespace {

constexpr int32 kCurrentFrame = 3;
constexpr int kEditMenu = 1;
constexpr int kAnimationMenu = 4;
constexpr int32 kThumbnailHeight = 96;
constexpr int kMenuOffset = 150;
constexpr int64 kShownMoment = 250;   // milliseconds from the start
constexpr int kRoundsOfReading = 10;  // of a few small pictures
constexpr const char* kSavedName = "notice.gif";
constexpr const char* kSheetName = "wheel-4x3.tga";

QMessageBox* Question() {
    DrivenEditor::WaitUntil([] { return QApplication::activeModalWidget() != nullptr; });
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

void AwaitAnswer() {
    DrivenEditor::WaitUntil([] { return QApplication::activeModalWidget() == nullptr; });
}

}  // namespace

void DocumentPictures::DrawAll(const std::string& animation) {
    editor_.StartNew();
    folder_.Add(*editor_.Main(), "empty");
    editor_.Main()->resize(900, 640);
    editor_.Open(animation);
    editor_.SelectFrame(kCurrentFrame);
    editor_.Main()->SetThumbnailHeight(kThumbnailHeight);
    DrivenEditor::Settle();
    DrawMain();
    DrawFade();
    DrawDialog(kShowColors, "Colors", "colors");
    DrawSelection();
    DrawDialog(kMenuCrop, "Crop", "crop");
    DrawDialog(kMenuResize, "Resize Animation", "resize");
    DrawText();
    DrawDialog(kMenuSetPause, "Set Pause", "set-pause");
    DrawSheet();
    DrawVideo();
    DrawExport();
    DrawDialog(kMenuSaveAs, "Save Animation", "save");
    DrawPreferences();
    DrawWork();
    DrawEditMenu();
    DrawSaveNotice();
    DrawRecoveryOffer();
    DrawDamage(animation);
}

void DocumentPictures::DrawMain() {
    folder_.Add(*editor_.Main(), "thumbnails");
    editor_.Send(kToggleMode);
    folder_.Add(*editor_.Main(), "framelist");
    editor_.Send(kToggleMode);
    editor_.Send(kShowPlayer);
    DrivenEditor::Settle();
    folder_.Add(*editor_.Main(), "player");
    editor_.Send(kShowPlayer);
}

void DocumentPictures::DrawDialog(uint32 command, const char* title, const char* name) {
    QWidget* window = editor_.OpenWindow(command, title);
    if (!window) return folder_.Miss();
    folder_.Add(*window, name);
    window->close();
    DrivenEditor::Settle();
}

// A fade that stands still.
void DocumentPictures::DrawFade() {
    QWidget* window = editor_.OpenWindow(kMenuFadeEffects, "Fade Effects");
    if (!window) return folder_.Miss();
    auto* strip = dynamic_cast<FadeStrip*>(window->findChild<QWidget*>("Preview"));
    strip->SetNow([] { return PlaybackClock::Instant(0); });
    DrivenEditor::WaitUntil([strip] { return strip->IsReady(); });
    folder_.Add(*window, "fade");
    window->close();
    DrivenEditor::Settle();
}

// The panel that cuts an image, with one of those that kirto-sample draws, if it is there.
void DocumentPictures::DrawSheet() {
    QWidget* window = editor_.OpenWindow(kMenuInsertTiled, "Insert Tiled Frame");
    if (!window) return folder_.Miss();
    window->findChild<QLineEdit*>("fileNameEdit")->setText(kSheetName);
    window->findChild<QLineEdit*>("Rows")->setText("3");
    window->findChild<QLineEdit*>("Columns")->setText("4");
    if (std::filesystem::exists(kSheetName)) {
        const auto* text = window->findChild<QLabel*>("SheetText");
        DrivenEditor::WaitUntil([text] { return text->text().contains("4 columns"); });
    }
    folder_.Add(*window, "insert-tiled");
    window->close();
    DrivenEditor::Settle();
}

// The dialog about a video that shows the animation.
void DocumentPictures::DrawVideo() {
    const VideoStandIn video(*editor_.Application().Current(), folder_.Path());
    BMessage question(kAskAboutVideo);
    question.AddRef("refs", entry_ref(folder_.Path() + "/wheel.mp4"));
    editor_.Main()->Messenger().SendMessage(question);
    QWidget* window = nullptr;
    DrivenEditor::WaitUntil([&] {
        window = editor_.Main()->findChild<QDialog*>("InsertVideo");
        const auto* buttons = window ? window->findChild<QDialogButtonBox*>() : nullptr;
        return buttons && buttons->button(QDialogButtonBox::Ok)->isEnabled();
    });
    if (!window) return folder_.Miss();
    window->findChild<QCheckBox*>("Play")->setChecked(false);
    window->findChild<QDoubleSpinBox*>("ToTime")->setValue(0.9);
    window->findChild<QDoubleSpinBox*>("FromTime")->setValue(0.2);
    window->findChild<QSpinBox*>("CropLeft")->setValue(10);
    window->findChild<QSpinBox*>("CropWidth")
        ->setValue(window->findChild<QSpinBox*>("CropWidth")->maximum() - 20);
    DrivenEditor::Settle(kRoundsOfReading);
    folder_.Add(*window, "video");
    window->close();
    DrivenEditor::Settle();
}

// An export in fewer colors, with the size of its file.
void DocumentPictures::DrawExport() {
    auto* dialog = dynamic_cast<ExportDialog*>(editor_.OpenWindow(kMenuExport, "Export"));
    if (!dialog) return folder_.Miss();
    dialog->findChild<QCheckBox*>("Play")->setChecked(false);
    dialog->findChild<QSpinBox*>("Colors")->setValue(12);
    DrivenEditor::WaitUntil([dialog] { return dialog->IsReady(); });
    dialog->findChild<ExportView*>("ExportView")->ShowTime(kShownMoment);
    DrivenEditor::Settle(kRoundsOfReading);
    folder_.Add(*dialog, "export");
    dialog->close();
    DrivenEditor::Settle();
}

void DocumentPictures::DrawText() {
    QWidget* window = editor_.OpenWindow(kMenuText, "Text");
    if (!window) return folder_.Miss();
    window->findChild<QLineEdit*>("Text")->setText("Look, it rolls!");
    folder_.Add(*window, "text");
    window->close();
    DrivenEditor::Settle();
}

// Several selected frames, and the menu that works on them.
void DocumentPictures::DrawSelection() {
    editor_.SelectFrames("2-5,7");
    folder_.Add(*editor_.Main(), "selection");
    DrawMenu(kAnimationMenu, "animation-menu");
    editor_.SelectFrame(kCurrentFrame);
}

void DocumentPictures::DrawPreferences() {
    QWidget* window = editor_.OpenWindow(kMenuPreferences, "Preferences");
    if (!window) return folder_.Miss();
    auto* tabs = window->findChild<QTabWidget*>();
    for (int i = 0; tabs && i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        DrivenEditor::Settle();
        folder_.Add(*window,
                    "preferences-" + tabs->widget(i)->objectName().toLower().toStdString());
    }
    window->close();
}

// The status line as it is while an animation is being loaded.
void DocumentPictures::DrawWork() {
    BMessage status(kStatusUpdate);
    status.AddString("text", "Status: loading frame 7...");
    editor_.Main()->Messenger().SendMessage(status);
    BMessage progress(kWorkProgress);
    progress.AddInt64("piece", 1);
    progress.AddInt64("done", 5);
    progress.AddInt64("total", 8);
    editor_.Main()->Messenger().SendMessage(progress);
    DrivenEditor::Settle();
    folder_.Add(*editor_.Main(), "progress");
    editor_.Send(kWorkProgress);
}

// The menu with an edit to undo and one to redo.
void DocumentPictures::DrawEditMenu() {
    for (const uint32 command : {kReverseFrames, kRemoveFrame, kUndo})
        editor_.Post(command);
    DrivenEditor::Settle();
    DrawMenu(kEditMenu, "edit-menu");
}

// What is said of a save that browsers show otherwise, here for lack of colors.
void DocumentPictures::DrawSaveNotice() {
    editor_.Post(kPaletteToGreyscale);
    BMessage local_palette(kFrameUsePalette);
    local_palette.AddBool("value", false);
    editor_.Post(local_palette);
    BMessage save(kSaveFile);
    save.AddInt64("translator_id", 0);
    save.AddRef("directory", entry_ref(folder_.Path()));
    save.AddString("name", kSavedName);
    editor_.Post(save);
    auto* notice = editor_.Main()->findChild<QWidget*>("NoticeBar");
    DrivenEditor::WaitUntil([notice] { return notice->isVisible(); });
    editor_.WaitForSizes();
    folder_.Add(*editor_.Main(), "notice");
    DrawDialog(kShowDifferences, "Differences", "differences");
    for (int i = 0; i < 2; ++i)
        editor_.Post(kUndo);
    DrivenEditor::Settle();
}

// The question about a document that another editor has left.
void DocumentPictures::DrawRecoveryOffer() {
    const std::string left = RecoveryStore::DefaultFolder();
    RecoveryStore(left).Write(*editor_.Application().CurrentState());
    CrashRecovery recovery(left, RecoveryWriter::kDelay);
    editor_.Application().UseRecovery(recovery);
    editor_.Post(kOfferRecovery);
    if (auto* question = Question()) {
        static const QRegularExpression kTime(R"(\d{4}-\d\d-\d\d \d\d:\d\d)");
        question->setText(question->text().replace(kTime, "2026-01-01 12:00"));
        folder_.Add(*question, "recovery-offer");
        question->buttons().front()->click();
    }
    AwaitAnswer();
}

// The alert about a file that browsers open.
void DocumentPictures::DrawDamage(const std::string& animation) {
    const std::string damaged = folder_.Path() + "/" + kSavedName;
    std::filesystem::copy_file(animation, damaged,
                               std::filesystem::copy_options::overwrite_existing);
    std::filesystem::resize_file(damaged, std::filesystem::file_size(damaged) - 1);
    BMessage open(kOpenFile);
    open.AddRef("refs", entry_ref(damaged));
    editor_.Post(open);
    if (auto* alert = Question()) {
        folder_.Add(*alert, "damaged");
        alert->buttons().back()->click();
    }
    AwaitAnswer();
    std::filesystem::remove(damaged);
}

void DocumentPictures::DrawMenu(int position, const char* name) {
    auto* menu = editor_.Main()->menuBar()->actions().at(position)->menu();
    menu->popup(editor_.Main()->mapToGlobal(QPoint(kMenuOffset, kMenuOffset)));
    DrivenEditor::Settle();
    folder_.Add(*menu, name);
    menu->close();
}

}  // namespace kirto
