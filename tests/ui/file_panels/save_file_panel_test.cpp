#include "ui/file_panels/save_file_panel.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>
#include <filesystem>
#include <thread>

#include "document/command_codes.h"
#include "ui/file_panels/file_panel_fixture.h"
#include "ui/file_panels/translator_settings_window.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace fs = std::filesystem;

namespace {

constexpr const char* kReplaceGif =
    "WARNING [] A file named \"movie.gif\" already exists. Do you want to replace it? | Cancel | "
    "Replace";

}  // namespace

struct SaveFilePanelTest : FilePanelTest {
    SaveFilePanel& Panel() const { return static_cast<SaveFilePanel&>(*panel); }
    QComboBox* Format() const { return Named<QComboBox>(*Dialog(), "FormatMenuField"); }
    QStringList Formats() const {
        QStringList items;
        for (int i = 0; i < Format()->count(); ++i)
            items.append(Format()->itemText(i));
        return items;
    }
    // Chooses the item as a user does.
    void ChooseFormat(const QString& item) const {
        const int index = Format()->findText(item);
        ASSERT_GE(index, 0);
        Format()->setCurrentIndex(index);
        emit Format()->activated(index);
    }
    void PressSettings() const {
        QTest::mouseClick(Named<QPushButton>(*Dialog(), "Settings"), Qt::LeftButton);
    }
    TranslatorSettingsWindow* SettingsWindow() const {
        for (auto* window : Dialog()->findChildren<QDialog*>()) {
            auto* settings = dynamic_cast<TranslatorSettingsWindow*>(window);
            if (settings && settings->isVisible()) return settings;
        }
        return nullptr;
    }
    // "FORMAT DIRECTORY NAME" of the message.
    static std::string PlaceIn(const BMessage& message) {
        int64 format = -1;
        entry_ref directory;
        std::string name;
        message.FindInt64("translator_id", &format);
        message.FindRef("directory", &directory);
        message.FindString("name", &name);
        return std::to_string(format) + " " + directory.path + " " + name;
    }
};

TEST_F(SaveFilePanelTest, ShowsItsControls) {
    Show(FilePanelKind::kSave);

    EXPECT_EQ(Dialog()->windowTitle(), "Save Animation");
    EXPECT_EQ(Dialog()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(Panel().Name(), "SaveFilePanel");
    EXPECT_EQ(Format()->accessibleName(), "Format:");
    EXPECT_EQ(Named<QPushButton>(*Dialog(), "Settings")->text(), "Settings...");
}

TEST_F(SaveFilePanelTest, OffersAnimatedGifAndASequenceOfEachFormatThatIsNoBitmap) {
    Show(FilePanelKind::kSave);

    EXPECT_EQ(Formats(),
              (QStringList{"Animated GIF", "", "Raw picture sequence", "PNG image sequence",
                           "One sequence", "Two sequence", "Gone sequence"}));
    EXPECT_EQ(Format()->currentText(), "Animated GIF");
    EXPECT_EQ(Format()->itemData(1, Qt::AccessibleDescriptionRole), "separator");
}

TEST_F(SaveFilePanelTest, HoldsOnlyAnimatedGifWithoutTranslators) {
    roster.no_translators = true;
    Show(FilePanelKind::kSave);
    EXPECT_EQ(Formats(), QStringList{"Animated GIF"});
}

TEST_F(SaveFilePanelTest, WritesAnimatedGifUntilAnotherFormatIsChosen) {
    Make(FilePanelKind::kSave);
    EXPECT_EQ(panel->OutputFormat(), 0u);
    EXPECT_EQ(Panel().GetOutputFormat(), 0);
    panel->Show();
    EXPECT_EQ(Panel().GetOutputFormat(), 0);
}

TEST_F(SaveFilePanelTest, ProposesANameReadyToBeTypedOver) {
    Make(FilePanelKind::kSave);
    panel->ProposeName("my.walk.gif");
    panel->Show();

    EXPECT_EQ(NameField()->text(), "my.walk.gif");
    EXPECT_EQ(NameField()->selectedText(), "my.walk.gif");
}

TEST_F(SaveFilePanelTest, ProposesTheExtensionOfTheFormatInPlaceOfThatOfAnAnimation) {
    Make(FilePanelKind::kSave);
    panel->ProposeName("walk.FLI");
    panel->Show();
    EXPECT_EQ(NameField()->text(), "walk.gif");

    ChooseFormat("PNG image sequence");
    EXPECT_EQ(NameField()->text(), "walk.png");
    ChooseFormat("Animated GIF");
    EXPECT_EQ(NameField()->text(), "walk.gif");
}

TEST_F(SaveFilePanelTest, LeavesANameThatWasTypedAndAnEndThatIsNoExtensionAlone) {
    Make(FilePanelKind::kSave);
    panel->ProposeName("walk v1.2");
    panel->Show();
    ChooseFormat("PNG image sequence");
    EXPECT_EQ(NameField()->text(), "walk v1.2");

    NameField()->setText("run.gif");
    ChooseFormat("Animated GIF");
    ChooseFormat("PNG image sequence");
    EXPECT_EQ(NameField()->text(), "run.gif");
}

TEST_F(SaveFilePanelTest, TellsTheChosenFormatToAnyThread) {
    Show(FilePanelKind::kSave);
    ChooseFormat("Two sequence");

    uint32 format = 0;
    std::thread([&] { format = panel->OutputFormat(); }).join();

    EXPECT_EQ(format, WriterRoster::kTwoFormats);
    EXPECT_EQ(Panel().GetOutputFormat(), 4);
    ChooseFormat("Animated GIF");
    EXPECT_EQ(panel->OutputFormat(), 0u);
}

TEST_F(SaveFilePanelTest, CountsNoMarkedFormatAsAnimatedGif) {
    Show(FilePanelKind::kSave);
    Format()->setCurrentIndex(-1);
    EXPECT_EQ(Panel().GetOutputFormat(), 0);
}

TEST_F(SaveFilePanelTest, SendsThePlaceAndTheFormatAndThenThatItClosed) {
    Show(FilePanelKind::kSave);

    Choose("movie.gif");

    EXPECT_FALSE(Dialog()->isVisible());
    EXPECT_EQ(application->Transcript(), "asfp _CNC");
    EXPECT_EQ(PlaceIn(Sent(0)), "0 " + folder.Path() + " movie.gif");
    EXPECT_TRUE(IsClosing(Sent(1)));
    EXPECT_TRUE(alerts.Lines().empty());
}

TEST_F(SaveFilePanelTest, SendsTheTranslatorOfASequence) {
    Show(FilePanelKind::kSave);
    ChooseFormat("PNG image sequence");

    Choose("movie.png");

    EXPECT_EQ(PlaceIn(Sent(0)), "3 " + folder.Path() + " movie.png");
}

TEST_F(SaveFilePanelTest, OpensInTheFolderItIsTold) {
    Make(FilePanelKind::kSave);
    panel->SetDirectory(folder.Path());
    panel->Show();
    EXPECT_EQ(Dialog()->directory().absolutePath().toStdString(), folder.Path());
    Dialog()->reject();
    fs::create_directory(folder.File("below"));

    panel->SetDirectory(folder.File("below"));
    panel->Show();

    EXPECT_EQ(Dialog()->directory().absolutePath().toStdString(), folder.File("below"));
}

TEST_F(SaveFilePanelTest, StaysInItsFolderWhenTheOneItIsToldIsGone) {
    Show(FilePanelKind::kSave);
    panel->SetDirectory(folder.File("gone"));
    EXPECT_EQ(Dialog()->directory().absolutePath().toStdString(), folder.Path());
}

TEST_F(SaveFilePanelTest, SaysOnlyThatItClosedWhenItIsCancelled) {
    Show(FilePanelKind::kSave);
    QTest::keyClick(Dialog(), Qt::Key_Escape);
    EXPECT_EQ(application->Transcript(), "_CNC");
    EXPECT_TRUE(IsClosing(Sent(0)));
}

TEST_F(SaveFilePanelTest, ForgetsAFormatWhenItIsCancelled) {
    Show(FilePanelKind::kSave);
    ChooseFormat("PNG image sequence");

    QTest::keyClick(Dialog(), Qt::Key_Escape);

    EXPECT_EQ(panel->OutputFormat(), 0u);
    panel->Show();
    EXPECT_EQ(Format()->currentText(), "Animated GIF");
    application->TakeTranscript();
    Choose("movie");
    EXPECT_EQ(PlaceIn(Sent(0)), "0 " + folder.Path() + " movie.gif");
}

TEST_F(SaveFilePanelTest, KeepsTheFormatThatWasSavedInWhenALaterChoiceIsCancelled) {
    Show(FilePanelKind::kSave);
    ChooseFormat("PNG image sequence");
    Choose("movie.png");
    panel->Show();
    EXPECT_EQ(Format()->currentText(), "PNG image sequence");
    ChooseFormat("Animated GIF");

    QTest::keyClick(Dialog(), Qt::Key_Escape);

    EXPECT_EQ(panel->OutputFormat(), WriterRoster::kPng);
    panel->Show();
    EXPECT_EQ(Format()->currentText(), "PNG image sequence");
}

TEST_F(SaveFilePanelTest, ForgetsTheFormatOfTheDocumentThatIsGone) {
    Show(FilePanelKind::kSave);
    ChooseFormat("PNG image sequence");
    Choose("movie.png");

    std::thread([&] { panel->UseOutputFormat(0); }).join();

    EXPECT_EQ(panel->OutputFormat(), 0u);
    panel->Show();
    EXPECT_EQ(Format()->currentText(), "Animated GIF");
    application->TakeTranscript();
    Choose("film");
    EXPECT_EQ(PlaceIn(Sent(0)), "0 " + folder.Path() + " film.gif");
}

TEST_F(SaveFilePanelTest, KeepsWhichOfATranslatorsFormatsIsMarked) {
    Show(FilePanelKind::kSave);
    ChooseFormat("Two sequence");
    Choose("movie");

    panel->Show();

    EXPECT_EQ(Format()->currentText(), "Two sequence");
}

TEST_F(SaveFilePanelTest, GivesANameWithoutExtensionTheFormatsUsualOne) {
    for (const auto& [format, name] :
         std::vector<std::pair<QString, std::string>>{{"Animated GIF", "movie.gif"},
                                                      {"PNG image sequence", "movie.png"},
                                                      {"One sequence", "movie.one"},
                                                      {"Two sequence", "movie"}}) {
        Show(FilePanelKind::kSave);
        ChooseFormat(format);
        Choose("movie");
        EXPECT_TRUE(PlaceIn(Sent(0)).ends_with(" " + name)) << PlaceIn(Sent(0));
        application->TakeTranscript();
    }
}

TEST_F(SaveFilePanelTest, KeepsANameWithAnyExtensionAsItIsTyped) {
    for (const char* name : {"movie.tiff", "movie.", "a.b"}) {
        Show(FilePanelKind::kSave);
        Choose(name);
        EXPECT_EQ(PlaceIn(Sent(0)), "0 " + folder.Path() + " " + name);
        application->TakeTranscript();
    }
}

TEST_F(SaveFilePanelTest, SavesWhereAWholePathPoints) {
    fs::create_directory(folder.File("sub"));
    Show(FilePanelKind::kSave);
    Choose(QString::fromStdString(folder.File("sub/movie.gif")));
    EXPECT_EQ(PlaceIn(Sent(0)), "0 " + folder.File("sub") + " movie.gif");
}

TEST_F(SaveFilePanelTest, EntersAFolderInsteadOfSavingToIt) {
    fs::create_directory(folder.File("sub"));
    Show(FilePanelKind::kSave);
    Choose("sub");
    EXPECT_TRUE(Dialog()->isVisible());
    EXPECT_EQ(Dialog()->directory().absolutePath().toStdString(), folder.File("sub"));
    EXPECT_EQ(application->Transcript(), "");
}

TEST_F(SaveFilePanelTest, AsksBeforeItReplacesAFile) {
    AddFile("movie.gif");
    Show(FilePanelKind::kSave);

    Choose("movie");

    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kReplaceGif});
    EXPECT_EQ(application->Transcript(), "asfp _CNC");
}

TEST_F(SaveFilePanelTest, StaysOpenWhenAFileIsNotToBeReplaced) {
    const AlertRecorder refusing({0});
    AddFile("movie.gif");
    Show(FilePanelKind::kSave);

    Choose("movie.gif");

    EXPECT_EQ(refusing.Lines(), std::vector<std::string>{kReplaceGif});
    EXPECT_TRUE(Dialog()->isVisible());
    EXPECT_EQ(NameField()->text(), "movie.gif");
    EXPECT_EQ(application->Transcript(), "");
}

TEST_F(SaveFilePanelTest, AsksBeforeItReplacesTheFirstFileOfASequence) {
    AddFile("movie0000.b.png");
    Show(FilePanelKind::kSave);
    ChooseFormat("PNG image sequence");

    Choose("movie.b.png");

    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{
                                  "WARNING [] A file named \"movie0000.b.png\" already exists. Do "
                                  "you want to replace the files of this sequence? | Cancel | "
                                  "Replace"});
    EXPECT_EQ(PlaceIn(Sent(0)), "3 " + folder.Path() + " movie.b.png");
}

TEST_F(SaveFilePanelTest, DoesNotAskForAFileThatASequenceLeavesAlone) {
    AddFile("movie.png");
    Show(FilePanelKind::kSave);
    ChooseFormat("PNG image sequence");
    Choose("movie.png");
    EXPECT_TRUE(alerts.Lines().empty());
    EXPECT_EQ(application->Transcript(), "asfp _CNC");
}

TEST_F(SaveFilePanelTest, ShowsTheNameThatItIsGiven) {
    Make(FilePanelKind::kSave);
    panel->SetSaveText("first.gif");
    panel->Show();
    EXPECT_EQ(NameField()->text(), "first.gif");
    panel->SetSaveText("");
    EXPECT_EQ(NameField()->text(), "");
}

TEST_F(SaveFilePanelTest, KeepsTheFormatWhenItsParentGoes) {
    Show(FilePanelKind::kSave);
    ChooseFormat("PNG image sequence");
    parent.reset();

    panel->Show();
    Dialog()->setDirectory(QString::fromStdString(folder.Path()));
    EXPECT_EQ(Format()->currentText(), "PNG image sequence");
    Choose("movie");

    EXPECT_EQ(PlaceIn(Sent(0)), "3 " + folder.Path() + " movie.png");
}

TEST_F(SaveFilePanelTest, ShowsThePreferencesForTheSettingsOfAnimatedGif) {
    Show(FilePanelKind::kSave);
    PressSettings();
    EXPECT_EQ(preferences_shown, 1);
    EXPECT_EQ(SettingsWindow(), nullptr);
}

TEST_F(SaveFilePanelTest, ShowsTheSettingsOfTheChosenTranslator) {
    Show(FilePanelKind::kSave);
    ChooseFormat("PNG image sequence");
    PressSettings();

    ASSERT_NE(SettingsWindow(), nullptr);
    EXPECT_EQ(SettingsWindow()->windowTitle(), "Translator Settings");
    EXPECT_EQ(SettingsWindow()->parentWidget(), Dialog());
    EXPECT_EQ(Named<QSpinBox>(*SettingsWindow(), "compression")->value(), 6);
    EXPECT_EQ(preferences_shown, 0);
    EXPECT_TRUE(alerts.Lines().empty());
}

TEST_F(SaveFilePanelTest, SendsChangedSettingsAndShowsThemAgain) {
    Show(FilePanelKind::kSave);
    ChooseFormat("PNG image sequence");
    PressSettings();

    Named<QSpinBox>(*SettingsWindow(), "compression")->setValue(9);

    EXPECT_EQ(application->Transcript(), "atst");
    int32 translator = 0;
    BMessage settings;
    EXPECT_EQ(Sent(0).FindInt32("translator", &translator), B_OK);
    EXPECT_EQ(Sent(0).FindMessage("settings", &settings), B_OK);
    EXPECT_EQ(translator, 3);
    BMessage expected;
    expected.AddInt32("compression", 9);
    EXPECT_EQ(settings, expected);

    PressSettings();
    EXPECT_EQ(Named<QSpinBox>(*SettingsWindow(), "compression")->value(), 9);
}

TEST_F(SaveFilePanelTest, SaysWhenATranslatorHasNoSettings) {
    Show(FilePanelKind::kSave);
    ChooseFormat("One sequence");
    PressSettings();
    EXPECT_EQ(SettingsWindow(), nullptr);
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{"WARNING [] General error | OK"});
}

TEST_F(SaveFilePanelTest, SaysWhenATranslatorIsGone) {
    Show(FilePanelKind::kSave);
    ChooseFormat("Gone sequence");
    PressSettings();
    EXPECT_EQ(alerts.Lines(),
              std::vector<std::string>{"WARNING [] No translator for this format | OK"});
}

TEST_F(SaveFilePanelTest, LeavesOtherCommandsAlone) {
    Show(FilePanelKind::kSave);
    BMessage other(kPreview);
    Panel().MessageReceived(&other);
    EXPECT_EQ(application->Transcript(), "");
}

}  // namespace kirto::test
