#include <QPushButton>
#include <QSplitter>

#include "support/environment.h"
#include "support/port_watcher.h"
#include "ui/dialogs/fade_window.h"
#include "ui/shell/kirto_window_fixture.h"

namespace kirto::test {

namespace {

const Lines kQuestion = {"WARNING [] Do you want to save your changes? | Cancel | Discard | Save"};
constexpr int32 kCancel = 0;
constexpr int32 kDiscard = 1;
constexpr int32 kSave = 2;

// Commands that would lose changes: New, Open, Quit.
class KirtoWindowClosing : public KirtoWindowFixture {
  protected:
    void OpenModified(const std::string& file_name = "some.gif") {
        AddFrame();
        document.SetModified(true);
        document.SetFile({}, file_name);
        Open();
    }
    // Lets the command ask its question, and gives that answer.
    void Do(uint32 code, int32 answer) {
        const AlertRecorder alerts({answer});
        KirtoWindowFixture::Do(code);
        EXPECT_EQ(alerts.Lines(), kQuestion) << CodeText(code);
    }
    // Lets the command go on without a question.
    void DoUnasked(uint32 code) {
        const AlertRecorder alerts;
        KirtoWindowFixture::Do(code);
        EXPECT_EQ(alerts.Lines(), Lines{}) << CodeText(code);
    }

    ScopedEnvironment configuration{"XDG_CONFIG_HOME", folder.Path().c_str()};
};

constexpr uint32 kAllCommands[] = {kMenuNew, kMenuOpen, B_QUIT_REQUESTED};

TEST_F(KirtoWindowClosing, NewResetsTheDocumentAndShowsAnEmptyOne) {
    AddFrame();
    document.SetFile({}, "some.gif");
    prefs.global_width = 77;
    Open();
    KirtoWindowFixture::Do(kUpdateAll);
    EXPECT_EQ(window->windowTitle(), "Kirto - some.gif");

    DoUnasked(kMenuNew);

    EXPECT_EQ(Posted(), "arst");
    EXPECT_EQ(window->windowTitle(), "Kirto - untitled");
    EXPECT_EQ(Find<TextControl>("Width").text(), "77");
    EXPECT_EQ(Find<QLabel>("FrameName").text(), "None");
    EXPECT_EQ(StatusText(), "Status: 0 frame(s), unmodified");
    EXPECT_EQ(window->Shown().FrameCount(), 0);
}

TEST_F(KirtoWindowClosing, OpenShowsTheOpenPanel) {
    Open();

    DoUnasked(kMenuOpen);

    EXPECT_EQ(panels.TakeLines(), (Lines{"open title=Open Animation", "open shown"}));
    EXPECT_EQ(Posted(), "");
}

TEST_F(KirtoWindowClosing, QuitStoresTheSettingsWithTheWindowsPlaceAndAsksTheApplication) {
    Open();

    DoUnasked(B_QUIT_REQUESTED);

    const std::vector<BMessage> messages = application->Messages();
    ASSERT_EQ(application->Transcript(), "asts _QRQ");
    BRect place;
    EXPECT_EQ(messages[0].FindRect("window_frame", &place), B_OK);
    EXPECT_EQ(place, window->ScreenPlace());
    EXPECT_FALSE(window->isVisible());
}

TEST_F(KirtoWindowClosing, ClosingTheWindowIsQuitting) {
    Open();

    EXPECT_TRUE(window->close());

    EXPECT_EQ(Posted(), "asts _QRQ");
}

TEST_F(KirtoWindowClosing, AsksTheApplicationOnce) {
    Open();

    window->close();
    window->close();

    EXPECT_EQ(Posted(), "asts _QRQ");
}

TEST_F(KirtoWindowClosing, AsksNothingWithoutFramesHoweverModified) {
    document.SetModified(true);
    Open();

    for (const uint32 code : kAllCommands)
        DoUnasked(code);

    EXPECT_EQ(Posted(), "arst asts _QRQ");
}

TEST_F(KirtoWindowClosing, AsksNothingForAnUnmodifiedDocument) {
    AddFrame();
    Open();

    DoUnasked(kMenuNew);
    CarryOutEdits();
    DoUnasked(kMenuOpen);
    DoUnasked(B_QUIT_REQUESTED);

    EXPECT_EQ(Posted(), "asts _QRQ");
}

TEST_F(KirtoWindowClosing, CancelDropsTheCommand) {
    OpenModified();

    for (const uint32 code : kAllCommands) {
        Do(code, kCancel);
        EXPECT_EQ(window->PendingCommand(), 0u);
    }

    EXPECT_EQ(Posted(), "");
    EXPECT_EQ(panels.TakeLines(), Lines{});
    EXPECT_TRUE(window->isVisible());
}

TEST_F(KirtoWindowClosing, DiscardCarriesTheCommandOut) {
    OpenModified();

    Do(kMenuOpen, kDiscard);
    EXPECT_EQ(panels.TakeLines(), (Lines{"open title=Open Animation", "open shown"}));
    Do(kMenuNew, kDiscard);
    EXPECT_EQ(Posted(), "arst");
    Do(B_QUIT_REQUESTED, kDiscard);
    EXPECT_EQ(Posted(), "asts _QRQ");

    EXPECT_EQ(window->PendingCommand(), 0u);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(KirtoWindowClosing, SaveSavesToTheFileAndKeepsTheCommandForLater) {
    OpenModified();

    for (const uint32 code : kAllCommands) {
        Do(code, kSave);
        EXPECT_EQ(Posted(), "asav");
        EXPECT_EQ(window->PendingCommand(), code);
        EXPECT_TRUE(window->isVisible());
    }
    EXPECT_EQ(panels.TakeLines(), Lines{});
}

TEST_F(KirtoWindowClosing, SaveShowsTheSavePanelForAnUntitledDocument) {
    OpenModified("untitled");

    Do(B_QUIT_REQUESTED, kSave);

    EXPECT_EQ(Posted(), "");
    EXPECT_EQ(panels.TakeLines(), (Lines{"save text=", "save shown"}));
    EXPECT_EQ(window->PendingCommand(), uint32{B_QUIT_REQUESTED});
    EXPECT_TRUE(window->isVisible());
}

TEST_F(KirtoWindowClosing, AFinishedSaveCarriesQuittingOut) {
    OpenModified("untitled");
    Do(B_QUIT_REQUESTED, kSave);
    document.SetModified(false);

    DoUnasked(kResume);

    EXPECT_EQ(Posted(), "asts _QRQ");
    EXPECT_EQ(window->PendingCommand(), 0u);
}

TEST_F(KirtoWindowClosing, AFinishedSaveCarriesNewOut) {
    OpenModified();
    Do(kMenuNew, kSave);
    Posted();
    document.SetModified(false);

    DoUnasked(kResume);

    EXPECT_EQ(Posted(), "arst");
    EXPECT_EQ(window->windowTitle(), "Kirto - untitled");
    EXPECT_EQ(window->PendingCommand(), 0u);
}

TEST_F(KirtoWindowClosing, AFinishedSaveAsksForTheNewDocumentBeforeItShowsOne) {
    Lines shown;
    const auto watcher = std::make_shared<PortWatcher>([&](uint32 code) {
        if (code == kResetDocument) shown.push_back(window->windowTitle().toStdString());
    });
    commands = BMessenger(std::make_shared<CommandPort>(document, watcher));
    OpenModified();
    KirtoWindowFixture::Do(kUpdateAll);
    Do(kMenuNew, kSave);
    document.SetModified(false);
    document.changes_waiting = 0;

    DoUnasked(kResume);

    EXPECT_EQ(shown, Lines{"Kirto - some.gif"});
    EXPECT_EQ(window->windowTitle(), "Kirto - untitled");
}

TEST_F(KirtoWindowClosing, AFinishedSaveCarriesOpenOut) {
    OpenModified();
    Do(kMenuOpen, kSave);
    document.SetModified(false);

    DoUnasked(kResume);

    EXPECT_EQ(panels.TakeLines(), (Lines{"open title=Open Animation", "open shown"}));
    EXPECT_EQ(window->PendingCommand(), 0u);
}

TEST_F(KirtoWindowClosing, AFinishedSaveThatNothingWaitsForDoesNothing) {
    OpenModified();
    document.SetModified(false);

    DoUnasked(kResume);

    EXPECT_EQ(Posted(), "");
    EXPECT_EQ(panels.TakeLines(), Lines{});
    EXPECT_TRUE(window->isVisible());
}

TEST_F(KirtoWindowClosing, AFailedSaveDropsTheCommandAndKeepsTheChanges) {
    OpenModified();
    for (const uint32 code : kAllCommands) {
        Do(code, kSave);
        Posted();

        DoUnasked(kResume);

        EXPECT_EQ(Posted(), "") << CodeText(code);
        EXPECT_EQ(panels.TakeLines(), Lines{});
        EXPECT_EQ(window->PendingCommand(), 0u);
        EXPECT_EQ(window->Shown().FrameCount(), 1);
        EXPECT_TRUE(window->isVisible());
    }
}

TEST_F(KirtoWindowClosing, AnEditMadeDuringTheSaveKeepsTheCommandFromLosingIt) {
    OpenModified();
    Do(B_QUIT_REQUESTED, kSave);
    KirtoWindowFixture::Do(kReverseFrames);
    Posted();
    document.SetModified(false);

    DoUnasked(kResume);

    EXPECT_EQ(Posted(), "");
    EXPECT_TRUE(window->isVisible());
}

TEST_F(KirtoWindowClosing, AClosedSavePanelDropsTheCommand) {
    OpenModified("untitled");
    Do(B_QUIT_REQUESTED, kSave);

    KirtoWindowFixture::Do(kAbandonPending);
    EXPECT_EQ(window->PendingCommand(), 0u);
    document.SetModified(false);
    DoUnasked(kResume);

    EXPECT_EQ(Posted(), "");
    EXPECT_TRUE(window->isVisible());
}

TEST_F(KirtoWindowClosing, ALaterAnswerReplacesTheCommandThatWaits) {
    OpenModified();
    Do(B_QUIT_REQUESTED, kSave);
    Do(kMenuNew, kCancel);
    EXPECT_EQ(window->PendingCommand(), 0u);

    Do(B_QUIT_REQUESTED, kSave);
    Do(kMenuNew, kSave);
    EXPECT_EQ(window->PendingCommand(), kMenuNew);
    document.SetModified(false);
    DoUnasked(kMenuOpen);
    EXPECT_EQ(window->PendingCommand(), 0u);
}

TEST_F(KirtoWindowClosing, CountsAnEditOnItsWayToTheApplicationAsAChange) {
    AddFrame();
    document.SetFile({}, "some.gif");
    Open();
    KirtoWindowFixture::Do(kMoveFrameUp);

    Do(B_QUIT_REQUESTED, kCancel);
    CarryOutEdits();
    DoUnasked(B_QUIT_REQUESTED);

    EXPECT_EQ(Posted(), "asts _QRQ");
}

TEST_F(KirtoWindowClosing, CountsAFadeOnItsWayToTheApplicationAsAChange) {
    AddFrame();
    document.SetFile({}, "some.gif");
    Open();
    KirtoWindowFixture::Do(kMenuFadeEffects);
    Named<QPushButton>(*window->findChild<FadeWindow*>(), "OK")->click();
    HandleEvents();

    for (const uint32 code : kAllCommands)
        Do(code, kCancel);

    EXPECT_EQ(Posted(), "fwtr");
}

TEST_F(KirtoWindowClosing, CountsFramesOnTheirWayIntoAnEmptyAnimationAsChanges) {
    Open();
    for (const uint32 code : {kInsertFiles, kInsertTiledFile, kOpenFile, uint32{B_SIMPLE_DATA},
                              uint32{B_REFS_RECEIVED}}) {
        commands.SendMessage(code);

        Do(kMenuNew, kCancel);

        CarryOutEdits();
    }
    DoUnasked(kMenuNew);
}

TEST_F(KirtoWindowClosing, CountsNoEditOnItsWayToAnEmptyAnimationAsAChange) {
    Open();
    KirtoWindowFixture::Do(kReverseFrames);

    DoUnasked(B_QUIT_REQUESTED);

    EXPECT_EQ(Posted(), "awfv asts _QRQ");
}

TEST_F(KirtoWindowClosing, SendsTheEditThatIsBeingTypedBeforeTheQuestion) {
    AddFrame();
    document.SetFile({}, "some.gif");
    Open();
    Type(Find<TextControl>("Width"), "12");
    const AlertRecorder alerts({kCancel});

    EXPECT_FALSE(window->close());
    HandleEvents();

    EXPECT_EQ(Posted(), "gvwd");
    EXPECT_EQ(alerts.Lines(), kQuestion);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(KirtoWindowClosing, AsksTheQuestionWhileTheApplicationChangesTheDocument) {
    OpenModified();
    document.WriterEnter();

    Do(B_QUIT_REQUESTED, kCancel);

    document.WriterExit();
    EXPECT_EQ(Posted(), "");
}

TEST_F(KirtoWindowClosing, RemembersHowItWasDivided) {
    prefs.misc_savewindowdimensions = true;
    Open();
    auto& splitter = Find<QSplitter>("");
    splitter.setSizes({300, 500});
    const QList<int> sizes = splitter.sizes();
    DoUnasked(B_QUIT_REQUESTED);

    Open();

    EXPECT_EQ(Find<QSplitter>("").sizes(), sizes);
}

TEST_F(KirtoWindowClosing, DuringWorkStopsItAndClosesOnceTheApplicationHasAnswered) {
    OpenModified();
    document.work.Begin();

    DoUnasked(B_QUIT_REQUESTED);

    EXPECT_TRUE(document.work.StopRequested());
    EXPECT_EQ(Posted(), "awqd");
    EXPECT_TRUE(window->isVisible());

    document.work.End();
    Do(kQuitWhenDone, kDiscard);
    EXPECT_EQ(Posted(), "asts _QRQ");
    EXPECT_FALSE(window->isVisible());
}

TEST_F(KirtoWindowClosing, StopsAnInsertionThatHasNotBegunYet) {
    Open();
    document.insertions_waiting = 1;

    DoUnasked(B_QUIT_REQUESTED);

    EXPECT_TRUE(document.StopRequested());
    EXPECT_EQ(Posted(), "awqd");
}

}  // namespace

}  // namespace kirto::test
