#include "ui/file_panels/insert_tiled_file_panel.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <thread>

#include "ui/file_panels/file_panel_fixture.h"
#include "ui/widget_tools.h"

namespace kirto::test {

struct InsertTiledFilePanelTest : FilePanelTest {
    QLineEdit* Field(const char* name) const { return Named<QLineEdit>(*Dialog(), name); }
    QRadioButton* Order(const char* name) const { return Named<QRadioButton>(*Dialog(), name); }
    void Type(const char* field, const QString& text) const {
        Field(field)->selectAll();
        QTest::keyClicks(Field(field), text);
    }
};

TEST_F(InsertTiledFilePanelTest, ShowsItsControls) {
    Show(FilePanelKind::kInsertTiled);

    EXPECT_EQ(Dialog()->windowTitle(), "Insert Tiled Frame");
    EXPECT_EQ(Dialog()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(Dialog()->fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(AcceptButton()->text().remove('&'), "Insert");
    EXPECT_EQ(Field("Rows")->text(), "3");
    EXPECT_EQ(Field("Columns")->text(), "3");
    EXPECT_EQ(Field("Rows")->accessibleName(), "Rows:");
    EXPECT_EQ(Field("Columns")->accessibleName(), "Columns:");
    EXPECT_EQ(Order("RowByRow")->text(), "Row by row");
    EXPECT_EQ(Order("ColumnByColumn")->text(), "Column by column");
    EXPECT_TRUE(Order("RowByRow")->isChecked());
    EXPECT_FALSE(Order("ColumnByColumn")->isChecked());
}

TEST_F(InsertTiledFilePanelTest, KnowsItsFieldsBeforeItIsShown) {
    Make(FilePanelKind::kInsertTiled);
    EXPECT_EQ(panel->RowsText(), "3");
    EXPECT_EQ(panel->ColumnsText(), "3");
    EXPECT_FALSE(panel->ColumnByColumn());
}

TEST_F(InsertTiledFilePanelTest, TellsItsFieldsToAnyThread) {
    Show(FilePanelKind::kInsertTiled);
    Type("Rows", "4");
    Type("Columns", "12");
    Order("ColumnByColumn")->click();

    std::string fields;
    std::thread([&] {
        fields = panel->RowsText() + " " + panel->ColumnsText();
        fields += panel->ColumnByColumn() ? " columns" : " rows";
    }).join();

    EXPECT_EQ(fields, "4 12 columns");
    Order("RowByRow")->click();
    EXPECT_FALSE(panel->ColumnByColumn());
}

TEST_F(InsertTiledFilePanelTest, TakesNothingButDigits) {
    Show(FilePanelKind::kInsertTiled);
    for (const char* name : {"Rows", "Columns"}) {
        for (int character = 0; character < 256; ++character) {
            Field(name)->clear();
            Field(name)->insert(QChar(character));
            const bool digit = character >= '0' && character <= '9';
            EXPECT_EQ(Field(name)->text().size(), digit ? 1 : 0) << name << ' ' << character;
        }
    }
}

TEST_F(InsertTiledFilePanelTest, LimitsTheLengthOfItsNumbers) {
    Show(FilePanelKind::kInsertTiled);
    Type("Rows", "123456789");
    EXPECT_EQ(panel->RowsText(), "12345");
}

TEST_F(InsertTiledFilePanelTest, SendsTheChosenFileAndThenThatItClosed) {
    AddFile("a.raw");
    Show(FilePanelKind::kInsertTiled);

    Choose("a.raw");

    EXPECT_EQ(application->Transcript(), "aitp _CNC");
    EXPECT_EQ(Refs(Sent(0)), std::vector<std::string>{folder.File("a.raw")});
    EXPECT_TRUE(IsClosing(Sent(1)));
}

TEST_F(InsertTiledFilePanelTest, SendsWhatElseSaysHowItIsCut) {
    AddFile("a.raw");
    Show(FilePanelKind::kInsertTiled);
    Type("TileWidth", "64");
    Type("TileHeight", "48");
    Type("Spacing", "2");
    Named<QCheckBox>(*Dialog(), "SkipEmpty")->click();

    Choose("a.raw");

    int32 number = 0;
    bool skip = false;
    EXPECT_EQ(Sent(0).FindInt32("tile_width", &number), B_OK);
    EXPECT_EQ(number, 64);
    EXPECT_EQ(Sent(0).FindInt32("tile_height", &number), B_OK);
    EXPECT_EQ(number, 48);
    EXPECT_EQ(Sent(0).FindInt32("spacing", &number), B_OK);
    EXPECT_EQ(number, 2);
    EXPECT_FALSE(Sent(0).HasField("margin"));
    EXPECT_EQ(Sent(0).FindBool("skip_empty", &skip), B_OK);
    EXPECT_TRUE(skip);
}

TEST_F(InsertTiledFilePanelTest, TakesAWholeGridTypedIntoOneField) {
    Show(FilePanelKind::kInsertTiled);
    EXPECT_TRUE(QTest::qWaitForWindowActive(Dialog()));
    Field("TileWidth")->setFocus(Qt::TabFocusReason);
    for (const char* key : {"6", "4", "x", "4", "8", "+", "2"})
        QTest::keyClicks(Dialog()->focusWidget(), key);

    EXPECT_EQ(Field("TileWidth")->text(), "64");
    EXPECT_EQ(Field("TileHeight")->text(), "48");
    EXPECT_EQ(Field("Spacing")->text(), "2");
}

TEST_F(InsertTiledFilePanelTest, TakesTilesForSquaresUntilTheirHeightIsGiven) {
    Show(FilePanelKind::kInsertTiled);
    Type("TileWidth", "64");
    EXPECT_EQ(Field("TileHeight")->text(), "64");
    Type("TileHeight", "48");
    Type("TileWidth", "32");
    EXPECT_EQ(Field("TileHeight")->text(), "48");
}

TEST_F(InsertTiledFilePanelTest, ShowsHowTheChosenFileIsCut) {
    const std::vector<uint8> sheet = RawPicture(*PictureOf(6, 4, std::vector<uint32>(24, 0)));
    WriteBytes(folder.File("a.raw"), sheet);
    Show(FilePanelKind::kInsertTiled);
    const auto* text = Named<QLabel>(*Dialog(), "SheetText");
    EXPECT_EQ(text->text(), "");
    const auto shows = [text](const char* sentence) {
        return WaitFor([=] { return text->text() == sentence; });
    };

    EXPECT_TRUE(QTest::qWaitForWindowActive(Dialog()));
    NameField()->setFocus();
    NameField()->setText("a.raw");
    EXPECT_TRUE(shows("6 × 4 pixels: 3 rows and 3 columns of 2 × 1 pixels."));
    Type("TileWidth", "2");
    EXPECT_TRUE(shows("6 × 4 pixels: 2 rows and 3 columns of 2 × 2 pixels."));
    Type("Spacing", "1");
    EXPECT_TRUE(shows("6 × 4 pixels: 1 row and 2 columns of 2 × 2 pixels."));
    NameField()->setText("a.raw6");
    EXPECT_TRUE(shows(""));
    NameField()->setText("a.raw");
    EXPECT_TRUE(shows("6 × 4 pixels: 1 row and 2 columns of 2 × 2 pixels."));
    NameField()->setText("/a.raw6");
    EXPECT_TRUE(shows(""));
    NameField()->setText("a.raw");
    EXPECT_TRUE(shows("6 × 4 pixels: 1 row and 2 columns of 2 × 2 pixels."));
    NameField()->setText("");
    EXPECT_EQ(text->text(), "");
}

TEST_F(InsertTiledFilePanelTest, KeepsItsFieldsWhenItsParentGoes) {
    Show(FilePanelKind::kInsertTiled);
    Type("Rows", "7");
    Order("ColumnByColumn")->click();
    parent.reset();

    panel->Show();

    EXPECT_EQ(Field("Rows")->text(), "7");
    EXPECT_EQ(Field("Columns")->text(), "3");
    EXPECT_TRUE(Order("ColumnByColumn")->isChecked());
}

}  // namespace kirto::test
