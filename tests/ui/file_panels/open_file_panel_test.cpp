#include "ui/file_panels/open_file_panel.h"

#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTest>
#include <filesystem>
#include <thread>

#include "document/command_codes.h"
#include "ui/file_panels/file_panel_fixture.h"
#include "ui/file_panels/image_filter.h"
#include "ui/file_panels/kirto_filter.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace fs = std::filesystem;

using OpenFilePanelTest = FilePanelTest;

TEST_F(OpenFilePanelTest, ShowsItselfOverItsParentAlone) {
    Show(FilePanelKind::kOpen);

    EXPECT_TRUE(Dialog()->isVisible());
    EXPECT_EQ(Dialog()->windowTitle(), "Open Animation");
    EXPECT_EQ(Dialog()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(Dialog()->parentWidget(), parent.get());
    EXPECT_EQ(Dialog()->fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(application->Transcript(), "");
}

TEST_F(OpenFilePanelTest, TakesTheTitleThatItIsGiven) {
    Make(FilePanelKind::kOpen);
    panel->SetTitle("Palette");
    panel->Show();
    EXPECT_EQ(Dialog()->windowTitle(), "Palette");
    panel->SetTitle("Open Animation");
    EXPECT_EQ(Dialog()->windowTitle(), "Open Animation");
}

TEST_F(OpenFilePanelTest, OffersAnimationsFoldersAndLinks) {
    AddFile("a.gif");
    AddFile("clip.GIF", "\x01\x02");
    AddFile("clip.Gif.txt");
    AddFile("movie.flc");
    AddFile("picture.png");
    AddFile("signed", "GIF89a");
    fs::create_directory(folder.File("folder"));
    fs::create_symlink("picture.png", folder.File("link"));

    Show(FilePanelKind::kOpen);

    EXPECT_EQ(Offered(6), "a.gif clip.GIF folder link movie.flc signed");
}

TEST_F(OpenFilePanelTest, SendsTheChosenFileAndThenThatItClosed) {
    AddFile("a.gif");
    Show(FilePanelKind::kOpen);

    Choose("a.gif");

    EXPECT_FALSE(Dialog()->isVisible());
    EXPECT_EQ(application->Transcript(), "aofp _CNC");
    EXPECT_EQ(Refs(Sent(0)), std::vector<std::string>{folder.File("a.gif")});
    EXPECT_TRUE(IsClosing(Sent(1)));
}

TEST_F(OpenFilePanelTest, OpensATypedFileWhateverItsType) {
    AddFile("notes.txt");
    Show(FilePanelKind::kOpen);

    Choose("notes.txt");

    EXPECT_EQ(application->Transcript(), "aofp _CNC");
    EXPECT_EQ(Refs(Sent(0)), std::vector<std::string>{folder.File("notes.txt")});
}

TEST_F(OpenFilePanelTest, SaysOnlyThatItClosedWhenItIsCancelled) {
    Show(FilePanelKind::kOpen);

    QTest::keyClick(Dialog(), Qt::Key_Escape);

    EXPECT_FALSE(Dialog()->isVisible());
    EXPECT_EQ(application->Transcript(), "_CNC");
    EXPECT_TRUE(IsClosing(Sent(0)));
}

TEST_F(OpenFilePanelTest, SaysThatItClosedWhenItsWindowIsClosed) {
    Show(FilePanelKind::kOpen);
    Dialog()->close();
    EXPECT_EQ(application->Transcript(), "_CNC");
}

TEST_F(OpenFilePanelTest, IsShownAgainInTheFolderWhereItWasLeft) {
    AddFile("a.gif");
    Show(FilePanelKind::kOpen);
    FileDialog* first = Dialog();
    Choose("a.gif");

    panel->Show();

    EXPECT_EQ(Dialog(), first);
    EXPECT_TRUE(Dialog()->isVisible());
    EXPECT_EQ(Dialog()->directory().absolutePath().toStdString(), folder.Path());
    EXPECT_EQ(NameField()->text(), "");
}

TEST_F(OpenFilePanelTest, KeepsWhatIsTypedWhenItIsBroughtToTheFront) {
    Show(FilePanelKind::kOpen);
    NameField()->setText("half a na");
    panel->Show();
    EXPECT_EQ(NameField()->text(), "half a na");
}

TEST_F(OpenFilePanelTest, OutlivesItsParentAndRemembersTheFolder) {
    Show(FilePanelKind::kOpen);
    Dialog()->reject();

    parent.reset();
    EXPECT_EQ(Dialog(), nullptr);
    panel->Show();

    ASSERT_NE(Dialog(), nullptr);
    EXPECT_EQ(Dialog()->directory().absolutePath().toStdString(), folder.Path());
}

TEST_F(OpenFilePanelTest, TakesItsDialogAlong) {
    Show(FilePanelKind::kOpen);
    const QPointer<FileDialog> dialog = Dialog();
    panel.reset();
    EXPECT_TRUE(dialog.isNull());
}

TEST_F(OpenFilePanelTest, IsMadeOnAnyThread) {
    std::thread([this] { Make(FilePanelKind::kOpen); }).join();
    EXPECT_EQ(Dialog(), nullptr);
    panel->Show();
    EXPECT_EQ(Dialog()->thread(), QThread::currentThread());
}

TEST_F(OpenFilePanelTest, LeavesNoChoiceOfTypes) {
    Show(FilePanelKind::kOpen);
    EXPECT_FALSE(Named<QWidget>(*Dialog(), "fileTypeCombo")->isVisible());
    EXPECT_FALSE(Named<QWidget>(*Dialog(), "fileTypeLabel")->isVisible());
}

TEST_F(OpenFilePanelTest, InsertsSeveralFiles) {
    AddFile("a.raw");
    AddFile("b.raw");
    Show(FilePanelKind::kInsert);
    EXPECT_EQ(Dialog()->fileMode(), QFileDialog::ExistingFiles);
    EXPECT_EQ(AcceptButton()->text().remove('&'), "Insert");

    Choose("\"a.raw\" \"b.raw\"");

    EXPECT_EQ(application->Transcript(), "aifp _CNC");
    EXPECT_EQ(Refs(Sent(0)),
              (std::vector<std::string>{folder.File("a.raw"), folder.File("b.raw")}));
    EXPECT_TRUE(IsClosing(Sent(1)));
}

TEST_F(OpenFilePanelTest, InsertsAllQuotedFilesAlsoThoseThatItDoesNotOffer) {
    fs::create_directory(folder.File("below"));
    AddFile("below/a.raw");
    AddFile("b.gif");
    OpenPanelSetup setup{"Insert", kInsertFiles, "Insert", true,
                         [] { return std::make_unique<KirtoFilter>(); }};
    panel = std::make_unique<OpenFilePanel>(setup, BMessenger(application), parent.get());
    panel->Show();
    Dialog()->setDirectory(QString::fromStdString(folder.Path()));
    ASSERT_EQ(Offered(2), "b.gif below");
    const std::string offered = folder.File("b.gif");
    const std::string other = folder.File("below/a.raw");

    Choose(QString::fromStdString("\"" + offered + "\" \"" + other + "\""));

    ASSERT_EQ(application->Transcript(), "aifp _CNC");
    EXPECT_EQ(Refs(Sent(0)), (std::vector<std::string>{offered, other}));
}

TEST_F(OpenFilePanelTest, InsertsFilesWhoseNamesHoldQuotes) {
    AddFile("a\"b.gif");
    AddFile("c.gif");
    OpenPanelSetup setup{"Insert", kInsertFiles, "Insert", true,
                         [] { return std::make_unique<KirtoFilter>(); }};
    panel = std::make_unique<OpenFilePanel>(setup, BMessenger(application), parent.get());
    panel->Show();
    Dialog()->setDirectory(QString::fromStdString(folder.Path()));
    ASSERT_EQ(Offered(2), "a\"b.gif c.gif");

    Named<QListView>(*Dialog(), "listView")->selectAll();
    AcceptButton()->click();

    ASSERT_EQ(application->Transcript(), "aifp _CNC");
    EXPECT_EQ(Refs(Sent(0)).size(), 2u);
}

TEST_F(OpenFilePanelTest, SurvivesKeysTypedBehindTheOneThatClosesIt) {
    AddFile("m.gif");
    AddFile("m.gifm.gif");
    // What is typed before, and the key; the next letter could be completed.
    for (const auto& [typed, closing] :
         {std::pair{"", Qt::Key_Escape}, std::pair{"m.gif", Qt::Key_Return}}) {
        Show(FilePanelKind::kOpen);
        ASSERT_EQ(Offered(2), "m.gif m.gifm.gif");
        ASSERT_TRUE(QTest::qWaitForWindowActive(Dialog()));
        NameField()->setFocus();
        NameField()->setText(typed);

        for (const Qt::Key key : {closing, Qt::Key_M, Qt::Key_M}) {
            QCoreApplication::postEvent(
                NameField(),
                new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_M ? "m" : ""));
        }
        EXPECT_TRUE(WaitFor([this] { return !Dialog()->isVisible(); }));
        QCoreApplication::processEvents();

        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    }
}

TEST_F(OpenFilePanelTest, CompletesNoNameOnceTheKeyboardHasLeftIt) {
    AddFile("m.gif");
    Show(FilePanelKind::kOpen);
    ASSERT_EQ(Offered(1), "m.gif");
    ASSERT_TRUE(QTest::qWaitForWindowActive(Dialog()));
    NameField()->setFocus();
    QCompleter* completer = NameField()->completer();
    QTest::keyClicks(NameField(), "m");
    ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() != nullptr; }));

    Dialog()->findChild<QComboBox*>("lookInCombo")->setFocus(Qt::ShortcutFocusReason);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    // Nor does it come back once the folder of what was typed has been read.
    EXPECT_EQ(completer->widget(), nullptr);

    NameField()->setFocus(Qt::ShortcutFocusReason);
    NameField()->clear();
    QTest::keyClicks(NameField(), "m");
    EXPECT_TRUE(WaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
}

TEST_F(OpenFilePanelTest, CompletesNamesAgainWhenItIsShownAgain) {
    AddFile("m.gif");
    Show(FilePanelKind::kOpen);
    ASSERT_EQ(Offered(1), "m.gif");
    Dialog()->reject();

    panel->Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Dialog()));
    QTest::keyClicks(NameField(), "m");

    EXPECT_TRUE(WaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
}

TEST_F(OpenFilePanelTest, OffersImagesToInsert) {
    AddFile("a.gif");
    AddFile("b.txt");
    AddFile("c.png");
    fs::create_directory(folder.File("folder"));
    struct PngRoster : FakeRoster {
        std::vector<translation_format> InputFormats(translator_id) const override {
            return {{1, "image/png", "PNG", {}}};
        }
    } png_roster;
    OpenPanelSetup setup{"Insert", 1, "Insert", true,
                         [&] { return std::make_unique<ImageFilter>(png_roster); }};
    panel = std::make_unique<OpenFilePanel>(setup, BMessenger(application), parent.get());
    panel->Show();
    Dialog()->setDirectory(QString::fromStdString(folder.Path()));

    EXPECT_EQ(Offered(2), "c.png folder");
}

}  // namespace kirto::test
