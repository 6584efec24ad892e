#include "ui/panels/notice_bar.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include "ui/panels/view_fixture.h"

namespace kirto::test {

namespace {

class NoticeBarTest : public ViewFixture {
  protected:
    static BMessage Notice(const std::string& text,
                           const std::vector<std::pair<const char*, uint32>>& buttons) {
        BMessage notice(kShowNotice);
        notice.AddString("text", text);
        for (const auto& [label, command] : buttons) {
            notice.AddString("button", label);
            notice.AddInt32("command", static_cast<int32>(command));
        }
        return notice;
    }
    static BMessage SaveNotice() {
        return Notice("Something differs.",
                      {{"Save Faithfully", kSaveFaithfully}, {"Close", kCloseNotice}});
    }

    NoticeBar bar{window};
};

}  // namespace

TEST_F(NoticeBarTest, IsHiddenUntilThereIsSomethingToSay) {
    EXPECT_TRUE(bar.isHidden());

    bar.ShowNotice(SaveNotice());
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.text->text(), "Something differs.");

    bar.HideNotice();
    EXPECT_TRUE(bar.isHidden());
    EXPECT_TRUE(bar.buttons.empty());
}

TEST_F(NoticeBarTest, ItsButtonsSendTheirCommands) {
    bar.ShowNotice(SaveNotice());

    ASSERT_EQ(bar.buttons.size(), 2U);
    EXPECT_EQ(bar.buttons[0]->text(), "Save Faithfully");
    EXPECT_EQ(CommandOf(*bar.buttons[0]), "asvf");
    EXPECT_EQ(bar.buttons[1]->text(), "Close");
    EXPECT_EQ(CommandOf(*bar.buttons[1]), "wntc");
}

TEST_F(NoticeBarTest, ANewNoticeTakesThePlaceOfTheOneBefore) {
    bar.ShowNotice(SaveNotice());

    bar.ShowNotice(Notice("Opened.", {{"Undo", kUndoOpening}}));

    EXPECT_EQ(bar.text->text(), "Opened.");
    ASSERT_EQ(bar.buttons.size(), 1U);
    EXPECT_EQ(CommandOf(*bar.buttons[0]), "auop");
}

TEST_F(NoticeBarTest, TellsScreenReadersWhatItSays) {
    bar.ShowNotice(SaveNotice());

    EXPECT_EQ(bar.accessibleName(), "Notice");
    EXPECT_EQ(bar.accessibleDescription(), "Something differs.");
    EXPECT_EQ(bar.buttons[0]->accessibleName(), "Save Faithfully");
}

TEST_F(NoticeBarTest, TextIsNoMarkup) {
    bar.ShowNotice(Notice("<b>bold</b>", {}));

    EXPECT_EQ(bar.text->textFormat(), Qt::PlainText);
}

TEST_F(NoticeBarTest, TakesTheKeyboardFromNobodyButIsReachedByIt) {
    QWidget surroundings;
    auto* layout = new QVBoxLayout(&surroundings);
    auto* field = new QLineEdit;
    auto* below = new NoticeBar(window);
    layout->addWidget(field);
    layout->addWidget(below);
    surroundings.show();
    field->setFocus();

    below->ShowNotice(SaveNotice());
    EXPECT_EQ(surroundings.focusWidget(), field);
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_EQ(surroundings.focusWidget(), below->buttons[0]);
    QTest::keyClick(below->buttons[0], Qt::Key_Space);
    EXPECT_EQ(port->TakeTranscript(), "asvf");
}

TEST_F(NoticeBarTest, LongTextsAreBrokenIntoLines) {
    bar.ShowNotice(Notice(std::string(300, 'x') + " " + std::string(20, 'y'), {}));
    bar.ShowNotice(Notice("28 of 56 frames will show trails; 14 % of the pixels lost their color",
                          {{"Close", kCloseNotice}}));

    bar.resize(220, bar.heightForWidth(220));
    EXPECT_GT(bar.heightForWidth(220), bar.heightForWidth(2000));
}

TEST_F(NoticeBarTest, StandsOutInLightAndInDarkColors) {
    for (const QColor window_color : {QColor(239, 240, 241), QColor(49, 54, 59)}) {
        QPalette colors(window_color);
        colors.setColor(QPalette::Highlight, QColor(61, 174, 233));
        bar.setPalette(colors);
        bar.ShowNotice(SaveNotice());
        bar.resize(400, 40);
        const QColor drawn = bar.grab().toImage().pixelColor(2, 20);

        EXPECT_NE(drawn, window_color);
        // Readable: the text is light where the window is dark.
        const int text = colors.color(QPalette::WindowText).lightness();
        EXPECT_GT(std::abs(text - drawn.lightness()), 100);
    }
}

}  // namespace kirto::test
