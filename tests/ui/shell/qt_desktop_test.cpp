#include "ui/shell/qt_desktop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

#include "app/kirto.h"
#include "document/command_codes.h"
#include "resources/qt/text_control.h"
#include "support/environment.h"
#include "support/fake_roster.h"
#include "support/gif_builder.h"
#include "support/test_support.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

namespace fs = std::filesystem;

// The editor as it runs: the application on its own thread, its windows on this one.
class QtDesktopTest : public ::testing::Test {
  protected:
    QtDesktopTest() {
        prefs.misc_tempfilelocation = folder.Path();
        app = std::make_unique<Kirto>(prefs, desktop, roster);
    }
    ~QtDesktopTest() override {
        desktop.CloseWindows();
        app.reset();
    }

    KirtoWindow& Window() { return *desktop.MainWindow(); }
    QString TitleText() { return Window().windowTitle(); }
    // A GIF of that many frames of 2 x 1 pixels.
    std::string WriteGif(const std::string& name, int32 frames) const {
        GifBuilder gif(2, 1, {0x000000, 0xFF0000, 0x00FF00, 0x0000FF});
        for (int32 i = 0; i < frames; ++i) {
            GifBuilder::Image image;
            image.width = 2;
            image.indices = {static_cast<uint8>(i % 4), 0};
            image.min_code_size = 2;
            gif.Control(0, 10).Add(image);
        }
        WriteBytes(folder.File(name), gif.Trailer());
        return folder.File(name);
    }
    void OpenFile(const std::string& path) {
        BMessage refs(B_REFS_RECEIVED);
        refs.AddRef("refs", entry_ref(path));
        app->PostMessage(refs);
    }
    static QMessageBox* Alert() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* box = qobject_cast<QMessageBox*>(widget);
            if (box && box->isVisible()) return box;
        }
        return nullptr;
    }

    TemporaryFolder folder;
    ScopedEnvironment configuration{"XDG_CONFIG_HOME", folder.Path().c_str()};
    Prefs prefs{Prefs::BuiltIn{}};
    FakeRoster roster;
    QtDesktop desktop{roster};
    std::unique_ptr<Kirto> app;
};

TEST_F(QtDesktopTest, ShowsTheMainWindow) {
    ASSERT_NE(desktop.MainWindow(), nullptr);
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(TitleText(), "Kirto - untitled");
    EXPECT_EQ(app->window, Window().Messenger());
}

TEST_F(QtDesktopTest, EndsItsWindowsBeforeTheApplicationTheyShow) {
    desktop.CloseWindows();

    EXPECT_EQ(desktop.MainWindow(), nullptr);
    EXPECT_FALSE(app->window.IsValid());
}

TEST_F(QtDesktopTest, KnowsTheMainScreen) {
    const QRect screen = QGuiApplication::primaryScreen()->geometry();

    const BRect frame = desktop.ScreenFrame();

    EXPECT_EQ(frame.PixelWidth(), screen.width());
    EXPECT_EQ(frame.PixelHeight(), screen.height());
    EXPECT_EQ(frame.left, static_cast<float>(screen.left()));
    EXPECT_EQ(frame.top, static_cast<float>(screen.top()));
}

TEST_F(QtDesktopTest, MakesEveryPanel) {
    for (const FilePanelKind kind : {FilePanelKind::kOpen, FilePanelKind::kInsert,
                                     FilePanelKind::kInsertTiled, FilePanelKind::kSave}) {
        EXPECT_NE(desktop.MakeFilePanel(kind, BMessenger(*app)), nullptr);
    }
}

TEST_F(QtDesktopTest, KnowsTheTypesOfFiles) {
    EXPECT_EQ(desktop.MimeTypeOf(WriteGif("a.gif", 1)), "image/gif");
}

TEST_F(QtDesktopTest, ShowsFilesInTheBrowser) {
    const std::string script = "#!/bin/sh\ntouch '" + folder.File("shown") + "'\n";
    WriteBytes(folder.File("browser"), {script.begin(), script.end()});
    fs::permissions(folder.File("browser"), fs::perms::owner_all);
    const ScopedEnvironment browser("BROWSER", folder.File("browser").c_str());
    const AlertRecorder alerts;

    desktop.OpenInBrowser("/some/file.gif");

    EXPECT_TRUE(WaitFor([&] { return fs::exists(folder.File("shown")); }));
    EXPECT_TRUE(alerts.Lines().empty());
}

TEST_F(QtDesktopTest, TellsTheUserWhenNoProgramShowsThePreview) {
    const ScopedEnvironment browser("BROWSER", nullptr);
    const ScopedEnvironment nothing("PATH", folder.Path().c_str());

    desktop.OpenInBrowser("/some/file.gif");

    const auto* notice = Named<QLabel>(Window(), "Notice");
    EXPECT_TRUE(WaitFor([notice] { return notice->isVisible(); }));
    EXPECT_EQ(notice->text(), "The preview was written, but no program to show it was found.");
    EXPECT_EQ(Alert(), nullptr);
}

TEST_F(QtDesktopTest, SaysWhatWasToldBeforeThereWasAWindow) {
    desktop.CloseWindows();
    app.reset();
    QtDesktop next(roster);
    TellQuietly("Something was damaged.");
    app = std::make_unique<Kirto>(prefs, next, roster);

    const auto* notice = Named<QLabel>(*next.MainWindow(), "Notice");
    EXPECT_TRUE(WaitFor([notice] { return notice->isVisible(); }));
    EXPECT_EQ(notice->text(), "Something was damaged.");
    Named<QAbstractButton>(*next.MainWindow(), "NoticeClose")->click();
    EXPECT_TRUE(WaitFor([notice] { return !notice->isVisible(); }));
    next.CloseWindows();
    app.reset();
}

TEST_F(QtDesktopTest, OpensAnAnimationAndShowsIt) {
    app->Run();

    OpenFile(WriteGif("some.gif", 3));

    EXPECT_TRUE(WaitFor([&] { return TitleText() == "Kirto - some.gif"; }));
    EXPECT_EQ(Window().Shown().FrameCount(), 3);
    EXPECT_EQ(Named<QLabel>(Window(), "Status")->text(), "Status: 3 frame(s), unmodified");
}

TEST_F(QtDesktopTest, ShowsAlertsOfTheApplicationsThread) {
    WriteBytes(folder.File("bad.gif"), {'G', 'I', 'F'});
    app->Run();

    OpenFile(folder.File("bad.gif"));

    ASSERT_TRUE(WaitFor([] { return Alert() != nullptr; }));
    EXPECT_EQ(Alert()->parentWidget(), desktop.MainWindow());
    Alert()->buttons().first()->click();
}

TEST_F(QtDesktopTest, EditsTravelToTheDocumentAndBack) {
    app->Run();
    OpenFile(WriteGif("some.gif", 3));
    ASSERT_TRUE(WaitFor([&] { return TitleText() == "Kirto - some.gif"; }));

    auto* width = Named<TextControl>(Window(), "Width");
    width->setText("77");
    width->setModified(true);
    width->Commit();

    auto* status = Named<QLabel>(Window(), "Status");
    EXPECT_TRUE(WaitFor([&] { return status->text() == "Status: 3 frame(s), modified"; }));
    EXPECT_EQ(Window().Shown().Current().width, 77);
}

TEST_F(QtDesktopTest, FollowsTheSelectionInTheList) {
    prefs.misc_preferredmode = 1;
    app->Run();
    OpenFile(WriteGif("some.gif", 3));
    ASSERT_TRUE(WaitFor([&] { return TitleText() == "Kirto - some.gif"; }));

    Named<QListWidget>(Window(), "FrameList")->setCurrentRow(2);

    auto* name = Named<QLabel>(Window(), "FrameName");
    EXPECT_TRUE(WaitFor([&] { return name->text() == "frame0002"; }));
}

TEST_F(QtDesktopTest, AbandonsTheCommandThatWaitsForASave) {
    // The application's thread does not run: nothing is saved before the window forgets it.
    WriteGif("some.gif", 1);
    AppendFrame(*app, PictureOf(1, 1, {0xFF000001}), "frame");
    app->AnimationDocument::SetFile({}, "some.gif");
    app->SetModified(true);
    {
        const AlertRecorder save({2});
        BMessage quit(B_QUIT_REQUESTED);
        Window().UpdateDisplay();
        Window().MessageReceived(&quit);
    }
    ASSERT_EQ(Window().PendingCommand(), uint32{B_QUIT_REQUESTED});

    desktop.AbandonPendingCommand();

    EXPECT_TRUE(WaitFor([&] { return Window().PendingCommand() == 0; }));
}

TEST_F(QtDesktopTest, TellsNobodyAnythingOnceTheWindowsAreGone) {
    prefs.palette_mapping = kPaletteFromFile;
    prefs.palette_filename = folder.File("missing.gif");
    bool told = false;
    QObject context;
    QTimer::singleShot(0, &context, [&told] {
        told = true;
        if (QMessageBox* box = Alert()) box->close();
    });

    // The application's last reset looks for the palette once more.
    desktop.CloseWindows();
    app.reset();

    EXPECT_FALSE(told);
}

TEST_F(QtDesktopTest, QuitsTheApplicationWhenTheWindowIsClosedAndStoresTheSettings) {
    std::atomic<bool> ended = false;
    std::thread loop([&] {
        app->Loop();
        ended = true;
    });

    Window().close();

    EXPECT_TRUE(WaitFor([&] { return ended.load(); }));
    loop.join();
    const Prefs stored;
    EXPECT_EQ(stored.misc_windowdimensions, Window().ScreenPlace());
    EXPECT_EQ(stored.misc_tempfilelocation, folder.Path());
}

}  // namespace

}  // namespace kirto::test
