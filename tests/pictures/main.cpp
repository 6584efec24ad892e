// kirto-pictures: draws the editor's windows into PNG files, for the documents and for looking at.
//   kirto-pictures FOLDER ANIMATION [dark] [large]
// dark: in dark colours; large: with a font of twice the size.
// Runs offscreen unless told otherwise; the toolkit's QT_SCALE_FACTOR gives sharper pictures.
#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPixmap>
#include <QStyleFactory>
#include <QTabWidget>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "app/kirto.h"
#include "app/recovery/crash_recovery.h"
#include "document/command_codes.h"
#include "kit/qt/qt_translator_roster.h"
#include "resources/resource_file_path.h"
#include "ui/shell/qt_desktop.h"

namespace {

constexpr int kDeadline = 20000;  // milliseconds
constexpr int kSettle = 150;      // milliseconds
constexpr int32 kCurrentFrame = 3;
constexpr int kEditMenu = 1;
constexpr int kAnimationMenu = 4;
constexpr int32 kThumbnailHeight = 96;
constexpr const char* kSavedName = "notice.gif";
constexpr const char* kSheetName = "wheel-4x3.tga";

void SettleFor(int milliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds)
        QApplication::processEvents(QEventLoop::AllEvents, 10);
}

bool WaitUntil(const std::function<bool()>& reached) {
    QElapsedTimer timer;
    timer.start();
    while (!reached() && timer.elapsed() < kDeadline)
        SettleFor(10);
    SettleFor(kSettle);
    return reached();
}

QWidget* WindowTitled(const QString& title) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowTitle() == title) return window;
    }
    return nullptr;
}

QPalette DarkPalette() {
    QPalette dark(QColor(49, 54, 59), QColor(42, 46, 50));
    dark.setColor(QPalette::Base, QColor(27, 30, 32));
    dark.setColor(QPalette::Highlight, QColor(61, 174, 233));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

// The editor on its animation, and what is drawn of it.
class Pictures {
  public:
    explicit Pictures(std::string folder)
        : folder_(std::move(folder)),
          application_(prefs_, desktop_, roster_, entry_ref(kirto::ResourceFilePath())),
          loop_([this] {
              application_.CheckSaves();
              application_.Loop();
          }) {}
    ~Pictures() {
        desktop_.CloseWindows();
        application_.Quit();
        loop_.join();
    }

    void DrawAll(const std::string& animation) {
        SettleFor(kSettle);
        Grab(*Main(), "empty");
        Main()->resize(900, 640);
        Open(animation);
        Grab(*Main(), "thumbnails");
        Send(kirto::kToggleMode);
        SettleFor(kSettle);
        Grab(*Main(), "framelist");
        Send(kirto::kToggleMode);
        Send(kirto::kShowPlayer);
        SettleFor(2 * kSettle);
        Grab(*Main(), "player");
        Send(kirto::kShowPlayer);
        SettleFor(kSettle);
        GrabDialog(kirto::kMenuFadeEffects, "Fade Effects", "fade");
        GrabSelection();
        GrabDialog(kirto::kMenuCrop, "Crop", "crop");
        GrabDialog(kirto::kMenuResize, "Resize Animation", "resize");
        GrabText();
        GrabDialog(kirto::kMenuSetPause, "Set Pause", "set-pause");
        GrabSheet();
        GrabDialog(kirto::kMenuSaveAs, "Save Animation", "save");
        GrabPreferences();
        GrabWork();
        GrabEditMenu();
        GrabSaveNotice();
        GrabRecoveryOffer();
        GrabDamage(animation);
    }

    int Failures() const { return failures_; }

  private:
    KirtoWindow* Main() { return desktop_.MainWindow(); }

    void Send(uint32 command) { Main()->Messenger().SendMessage(command); }

    void Open(const std::string& animation) {
        BMessage open(kirto::kOpenFile);
        open.AddRef("refs", entry_ref(animation));
        application_.PostMessage(open);
        WaitUntil([this] { return Main()->Shown().State().file_name != "untitled"; });
        BMessage select(kirto::kSelectFrame);
        select.AddInt32("number", kCurrentFrame);
        application_.PostMessage(select);
        Main()->SetThumbnailHeight(kThumbnailHeight);
        SettleFor(kSettle);
    }

    void Grab(QWidget& window, const std::string& name) {
        const QString path = QString::fromStdString(folder_ + "/" + name + ".png");
        if (window.grab().save(path)) return;
        std::fprintf(stderr, "kirto-pictures: %s can't be written.\n", qPrintable(path));
        ++failures_;
    }

    QWidget* OpenWindow(uint32 command, const QString& title) {
        Send(command);
        WaitUntil([&] { return WindowTitled(title) != nullptr; });
        QWidget* window = WindowTitled(title);
        if (window) return window;
        std::fprintf(stderr, "kirto-pictures: there is no window \"%s\".\n", qPrintable(title));
        ++failures_;
        return nullptr;
    }

    void GrabDialog(uint32 command, const QString& title, const std::string& name) {
        QWidget* window = OpenWindow(command, title);
        if (!window) return;
        Grab(*window, name);
        window->close();
        SettleFor(kSettle);
    }

    // The panel that cuts an image, with one of those that kirto-sample draws, if it is there.
    void GrabSheet() {
        QWidget* window = OpenWindow(kirto::kMenuInsertTiled, "Insert Tiled Frame");
        if (!window) return;
        window->findChild<QLineEdit*>("fileNameEdit")->setText(kSheetName);
        window->findChild<QLineEdit*>("Rows")->setText("3");
        window->findChild<QLineEdit*>("Columns")->setText("4");
        if (std::filesystem::exists(kSheetName)) {
            const auto* text = window->findChild<QLabel*>("SheetText");
            WaitUntil([text] { return text->text().contains("4 columns"); });
        }
        Grab(*window, "insert-tiled");
        window->close();
        SettleFor(kSettle);
    }

    // A text as it would be drawn.
    void GrabText() {
        QWidget* window = OpenWindow(kirto::kMenuText, "Text");
        if (!window) return;
        window->findChild<QLineEdit*>("Text")->setText("Look, it rolls!");
        Grab(*window, "text");
        window->close();
        SettleFor(kSettle);
    }

    // Several selected frames, and the menu that works on them.
    void GrabSelection() {
        BMessage select(kirto::kSelectFrames);
        select.AddString("frames", "2-5,7");
        application_.PostMessage(select);
        SettleFor(kSettle);
        Grab(*Main(), "selection");
        auto* menu = Main()->menuBar()->actions().at(kAnimationMenu)->menu();
        menu->popup(Main()->mapToGlobal(QPoint(kSettle, kSettle)));
        SettleFor(kSettle);
        Grab(*menu, "animation-menu");
        menu->close();
        BMessage select_one(kirto::kSelectFrame);
        select_one.AddInt32("number", kCurrentFrame);
        application_.PostMessage(select_one);
        SettleFor(kSettle);
    }

    void GrabPreferences() {
        QWidget* window = OpenWindow(kirto::kMenuPreferences, "Preferences");
        if (!window) return;
        auto* tabs = window->findChild<QTabWidget*>();
        for (int i = 0; tabs && i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            SettleFor(kSettle);
            Grab(*window, "preferences-" + tabs->tabText(i).toLower().toStdString());
        }
        window->close();
    }

    // The status line as it is while an animation is being loaded.
    void GrabWork() {
        BMessage status(kirto::kStatusUpdate);
        status.AddString("text", "Status: loading frame 7...");
        Main()->Messenger().SendMessage(status);
        BMessage progress(kirto::kWorkProgress);
        progress.AddInt64("piece", 1);
        progress.AddInt64("done", 5);
        progress.AddInt64("total", 8);
        Main()->Messenger().SendMessage(progress);
        SettleFor(kSettle);
        Grab(*Main(), "progress");
        Send(kirto::kWorkProgress);
        SettleFor(kSettle);
    }

    // The menu with an edit to undo and one to redo.
    void GrabEditMenu() {
        for (const uint32 command : {kirto::kReverseFrames, kirto::kRemoveFrame, kirto::kUndo})
            application_.PostMessage(command);
        SettleFor(kSettle);
        auto* menu = Main()->menuBar()->actions().at(kEditMenu)->menu();
        menu->popup(Main()->mapToGlobal(QPoint(kSettle, kSettle)));
        SettleFor(kSettle);
        Grab(*menu, "edit-menu");
        menu->close();
    }

    // What is said of a save that browsers show otherwise, here for lack of colors.
    void GrabSaveNotice() {
        application_.PostMessage(kirto::kPaletteToGreyscale);
        BMessage local_palette(kirto::kFrameUsePalette);
        local_palette.AddBool("value", false);
        application_.PostMessage(local_palette);
        BMessage save(kirto::kSaveFile);
        save.AddInt64("translator_id", 0);
        save.AddRef("directory", entry_ref(folder_));
        save.AddString("name", kSavedName);
        application_.PostMessage(save);
        auto* notice = Main()->findChild<QWidget*>("NoticeBar");
        WaitUntil([notice] { return notice->isVisible(); });
        Grab(*Main(), "notice");
        GrabDialog(kirto::kShowDifferences, "Differences", "differences");
        for (int i = 0; i < 2; ++i)
            application_.PostMessage(kirto::kUndo);
        SettleFor(kSettle);
    }

    // The alert about a file that browsers open.
    void GrabDamage(const std::string& animation) {
        const std::string damaged = folder_ + "/" + kSavedName;
        std::filesystem::copy_file(animation, damaged,
                                   std::filesystem::copy_options::overwrite_existing);
        std::filesystem::resize_file(damaged, std::filesystem::file_size(damaged) - 1);
        BMessage open(kirto::kOpenFile);
        open.AddRef("refs", entry_ref(damaged));
        application_.PostMessage(open);
        WaitUntil([] { return QApplication::activeModalWidget() != nullptr; });
        if (auto* alert = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            Grab(*alert, "damaged");
            alert->buttons().back()->click();
        }
        WaitUntil([] { return QApplication::activeModalWidget() == nullptr; });
        std::filesystem::remove(damaged);
    }

    // The question about a document that another editor has left.
    void GrabRecoveryOffer() {
        const std::string left = kirto::RecoveryStore::DefaultFolder();
        kirto::RecoveryStore(left).Write(*application_.CurrentState());
        kirto::CrashRecovery recovery(left, kirto::RecoveryWriter::kDelay);
        application_.UseRecovery(recovery);
        application_.PostMessage(kirto::kOfferRecovery);
        WaitUntil([] { return QApplication::activeModalWidget() != nullptr; });
        if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            Grab(*question, "recovery-offer");
            question->buttons().front()->click();
        }
        WaitUntil([] { return QApplication::activeModalWidget() == nullptr; });
    }

    const std::string folder_;
    int failures_ = 0;
    Prefs prefs_{Prefs::BuiltIn{}};
    kirto::QtTranslatorRoster roster_;
    kirto::QtDesktop desktop_{roster_};
    Kirto application_;
    std::thread loop_;
};

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen").toLocal8Bit());
    QApplication application(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: kirto-pictures FOLDER ANIMATION [dark] [large]\n");
        return 2;
    }
    for (const std::string& wish : std::vector<std::string>(argv + 3, argv + argc)) {
        if (wish == "dark") {
            QApplication::setStyle(QStyleFactory::create("Fusion"));
            QApplication::setPalette(DarkPalette());
        } else if (wish == "large") {
            QFont font = QApplication::font();
            font.setPointSizeF(2 * font.pointSizeF());
            QApplication::setFont(font);
        }
    }
    Pictures pictures(argv[1]);
    pictures.DrawAll(argv[2]);
    return pictures.Failures() == 0 ? 0 : 1;
}
