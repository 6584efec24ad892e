#include "ui/shell/window_state.h"

#include <QSplitter>
#include <filesystem>
#include <gtest/gtest.h>

#include "support/environment.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

class WindowState : public ::testing::Test {
  protected:
    WindowState() {
        for (QSplitter* splitter : {&stored, &restored}) {
            splitter->addWidget(new QWidget);
            splitter->addWidget(new QWidget);
            splitter->resize(600, 100);
            splitter->setSizes({300, 300});
        }
    }

    TemporaryFolder folder;
    ScopedEnvironment configuration{"XDG_CONFIG_HOME", folder.Path().c_str()};
    QSplitter stored;
    QSplitter restored;
};

TEST_F(WindowState, DividesASplitterAsItWasWhenStored) {
    stored.setSizes({400, 200});
    ASSERT_NE(stored.sizes(), restored.sizes());

    StoreSplitter(stored);
    RestoreSplitter(restored);

    EXPECT_EQ(restored.sizes(), stored.sizes());
}

TEST_F(WindowState, LeavesASplitterAsItIsWithoutAStoredOne) {
    const QList<int> before = restored.sizes();

    RestoreSplitter(restored);

    EXPECT_EQ(restored.sizes(), before);
}

TEST_F(WindowState, LeavesASplitterAsItIsWhenTheFileIsDamaged) {
    const std::string text = "[main]\nsplitter=@ByteArray(nonsense)\n";
    WriteBytes(folder.File("Kirto_windows.ini"), {text.begin(), text.end()});
    const QList<int> before = restored.sizes();

    RestoreSplitter(restored);

    EXPECT_EQ(restored.sizes(), before);
}

TEST_F(WindowState, KeepsWhetherThumbnailsHaveLabels) {
    EXPECT_TRUE(RestoreLabels());
    StoreLabels(false);
    EXPECT_FALSE(RestoreLabels());
}

TEST_F(WindowState, IsKeptBesideTheSettingsFile) {
    StoreSplitter(stored);

    EXPECT_TRUE(std::filesystem::exists(folder.File("Kirto_windows.ini")));
}

TEST_F(WindowState, CanNotBeKeptWhereNoFolderIsAndSaysNothing) {
    WriteBytes(folder.File("file"), {1});
    const ScopedEnvironment nowhere("XDG_CONFIG_HOME", folder.File("file").c_str());
    const QList<int> before = restored.sizes();

    StoreSplitter(stored);
    RestoreSplitter(restored);

    EXPECT_EQ(restored.sizes(), before);
}

}  // namespace

}  // namespace kirto::test
