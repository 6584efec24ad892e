// The GUI thread answers at any time, whatever the application is busy with.
#include <QMenuBar>
#include <QScrollBar>
#include <QTest>
#include <future>
#include <gtest/gtest.h>

#include "app/kirto.h"
#include "document/command_codes.h"
#include "document/document_scope.h"
#include "resources/qt/text_control.h"
#include "support/environment.h"
#include "support/fake_roster.h"
#include "support/test_support.h"
#include "ui/shell/qt_desktop.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

// Keeps the application's thread busy inside an edit of the document until it is let go. A window
// that waited for the document would never let it go; then the edit gives up after a long time.
class LongEdit : public BHandler {
  public:
    explicit LongEdit(AnimationDocument& document) : BHandler("LongEdit"), document_(document) {}

    void MessageReceived(BMessage*) override {
        const WriterScope writer(document_);
        begun_.set_value();
        const auto answer = release_.get_future().wait_for(std::chrono::seconds(60));
        was_released_.set_value(answer == std::future_status::ready);
    }
    void AwaitBeginning() { begun_.get_future().wait(); }
    void Release() { release_.set_value(); }
    bool WasReleased() { return was_released_.get_future().get(); }

  private:
    AnimationDocument& document_;
    std::promise<void> begun_;
    std::promise<void> release_;
    std::promise<bool> was_released_;
};

// In the mode of the parameter: 0 thumbnails, 1 frame list.
class Responsiveness : public ::testing::TestWithParam<int32> {
  protected:
    Responsiveness() {
        prefs.misc_preferredmode = GetParam();
        app = std::make_unique<Kirto>(prefs, desktop, roster);
        for (int32 i = 0; i < 20; ++i)
            AppendFrame(*app, PictureOf(1, 1, {0xFF000000}), "frame");
        edit = std::make_unique<LongEdit>(*app);
        app->AddHandler(edit.get());
        Window().UpdateDisplay();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
    }
    ~Responsiveness() override {
        desktop.CloseWindows();
        app->Quit();
    }

    KirtoWindow& Window() { return *desktop.MainWindow(); }
    static void HandleEvents() {
        for (int turn = 0; turn < 5; ++turn)
            QCoreApplication::processEvents();
    }
    // Every command of the window that neither asks a question nor ends it.
    void DoAllCommands() {
        for (const uint32 code :
             {kUpdateAll, kUpdateFrames, kUpdateFramesNoStatus, kEditDone, kStatusUpdate,
              kThumbnailFirstHalf, kThumbnailCurrentFull, kToggleMode, kMenuSave, kResume,
              kMoveFrameUp, kReverseFrames, kSetWidth, kPaletteToSystem, kToggleMode}) {
            BMessage command(code);
            Window().MessageReceived(&command);
            HandleEvents();
        }
    }
    void UseControls() {
        auto* width = Named<TextControl>(Window(), "Width");
        width->setFocus();
        width->selectAll();
        QTest::keyClicks(width, "77");
        QTest::keyClick(width, Qt::Key_Return);
        QWidget* frames =
            Named<QWidget>(Window(), Window().ShowsFrameList() ? "FrameList" : "ThumbDrawingView");
        frames->setFocus();
        QTest::keyClick(frames, Qt::Key_End);
        QTest::mouseClick(frames, Qt::LeftButton, {}, {10, 10});
        Window().resize(Window().width() + 100, Window().height() + 10);
        Window().grab();
        HandleEvents();
    }

    TemporaryFolder folder;
    ScopedEnvironment configuration{"XDG_CONFIG_HOME", folder.Path().c_str()};
    Prefs prefs{Prefs::BuiltIn{}};
    FakeRoster roster;
    QtDesktop desktop{roster};
    std::unique_ptr<Kirto> app;
    std::unique_ptr<LongEdit> edit;
};

TEST_P(Responsiveness, TheWindowIsUsedToTheFullWhileTheDocumentIsBeingEdited) {
    app->Run();
    app->PostMessage(BMessage(), *edit);
    edit->AwaitBeginning();

    DoAllCommands();
    UseControls();
    edit->Release();

    EXPECT_TRUE(edit->WasReleased()) << "The window waited for the document.";
    EXPECT_TRUE(WaitFor([&] { return Window().Shown().Current().width == 77; }))
        << "What was done meanwhile is carried out afterwards.";
}

INSTANTIATE_TEST_SUITE_P(InBothModes, Responsiveness, ::testing::Values(0, 1));

}  // namespace

}  // namespace kirto::test
