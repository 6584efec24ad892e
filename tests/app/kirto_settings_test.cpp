#include <atomic>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

#include "app/kirto.h"
#include "app/kirto_fixture.h"
#include "document/document_scope.h"

namespace kirto::test {

namespace {

// The settings file lies in a folder of the test's own.
class KirtoSettings : public KirtoFixture {
  protected:
    static BMessage Store(const Prefs& settings) {
        BMessage message(kStoreSettings);
        settings.AddTo(&message);
        return message;
    }

    ScopedEnvironment configuration_{"XDG_CONFIG_HOME", folder_.Path().c_str()};
};

TEST_F(KirtoSettings, AreTakenOverWrittenAndShown) {
    Start();
    Prefs changed = prefs_;
    changed.global_width = 77;
    changed.misc_windowdimensions = BRect(1, 2, 3, 4);

    EXPECT_EQ(Do(Store(changed)), "auda");

    EXPECT_EQ(prefs_.global_width, 77);
    const Prefs read;
    EXPECT_FALSE(read.failed);
    EXPECT_EQ(read.global_width, 77);
    EXPECT_EQ(read.misc_windowdimensions, BRect(1, 2, 3, 4));
}

TEST_F(KirtoSettings, LeaveTheDocumentAsItIs) {
    Start();
    Prefs changed = prefs_;
    changed.global_width = 77;
    const int32 width = app_->Current()->width;

    Do(Store(changed));

    EXPECT_EQ(app_->Current()->width, width);
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoSettings, AreWrittenWithTheWindowsPlaceAlone) {
    prefs_.misc_windowdimensions = BRect(1, 2, 3, 4);
    prefs_.global_width = 78;
    Start();
    BMessage message(kStoreSettings);
    message.AddRect("window_frame", BRect(10, 20, 700, 500));

    EXPECT_EQ(Do(message), "auda");

    const Prefs read;
    EXPECT_EQ(read.global_width, 78);
    EXPECT_EQ(read.misc_windowdimensions, BRect(10, 20, 700, 500));
}

TEST_F(KirtoSettings, ThatCanNotBeWrittenAreUsedAllTheSame) {
    // A file stands where the folder of the settings would be.
    Write("file", {1});
    const ScopedEnvironment nowhere("XDG_CONFIG_HOME", File("file").c_str());
    Start();
    Prefs changed = prefs_;
    changed.global_width = 77;
    const DebugRecorder debug;

    Do(Store(changed));

    EXPECT_EQ(prefs_.global_width, 77);
    EXPECT_TRUE(prefs_.failed);
    EXPECT_EQ(debug.Text(), "Prefs::PutInt() - WriteAttr on global_width died\n");
}

TEST_F(KirtoSettings, OfAnImageWriterAreKeptForTheNextSave) {
    Start();
    Append({"one"});
    BMessage quality;
    quality.AddInt32("quality", 80);
    BMessage message(kTranslatorSettings);
    message.AddInt32("translator", static_cast<int32>(FakeRoster::kRaw));
    message.AddMessage("settings", quality);

    EXPECT_EQ(Do(message), "");
    Do(SaveTo(folder_.Path(), "frame.raw", FakeRoster::kRaw));

    EXPECT_EQ(roster_.written_settings, quality);
    EXPECT_TRUE(std::filesystem::exists(File("frame0000.raw")));
}

TEST_F(KirtoSettings, OfAnImageWriterNeedBothFields) {
    Start();
    BMessage without_settings(kTranslatorSettings);
    without_settings.AddInt32("translator", 1);
    BMessage without_translator(kTranslatorSettings);
    without_translator.AddMessage("settings", BMessage());

    EXPECT_EQ(Do(without_settings), "");
    EXPECT_EQ(Do(without_translator), "");

    EXPECT_TRUE(app_->translator_settings.empty());
}

#ifndef NDEBUG
TEST_F(KirtoSettings, AreTakenOverOnlyWhereNoReaderIsInside) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    Make();
    BMessage store = Store(prefs_);
    const ReaderScope reader(*app_);

    // On one thread, so that waiting for the reader is the mistake that is looked for.
    EXPECT_DEATH(app_->MessageReceived(&store), "t_scopes_held == 0");
}
#endif

TEST_F(KirtoSettings, PanelsAskedForByTwoThreadsAtOnceAreMadeOnce) {
    Start();
    for (const FilePanelKind kind : {FilePanelKind::kOpen, FilePanelKind::kInsert,
                                     FilePanelKind::kInsertTiled, FilePanelKind::kSave}) {
        std::atomic<int32> ready = 0;
        FilePanel* panels[2] = {};
        std::vector<std::thread> threads;
        for (FilePanel*& panel : panels) {
            threads.emplace_back([&, this] {
                ++ready;
                while (ready < 2) {
                }
                panel = app_->GetPanel(kind);
            });
        }
        for (std::thread& thread : threads)
            thread.join();

        EXPECT_NE(panels[0], nullptr);
        EXPECT_EQ(panels[0], panels[1]);
        EXPECT_EQ(TakeLines().size(), 1u);
    }
}

}  // namespace

}  // namespace kirto::test
