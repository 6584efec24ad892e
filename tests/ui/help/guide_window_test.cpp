#include "ui/help/guide_window.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <gtest/gtest.h>

#include "support/source_folder.h"
#include "support/test_support.h"
#include "ui/help/guide_page.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

class GuideWindowTest : public ::testing::Test {
  protected:
    void Open(const QString& folder) {
        window = new GuideWindow(folder, &parent);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    }
    void OpenGuide() { Open(QString::fromStdString((SourceFolder() / "docs/guide").string())); }
    GuidePage& Page() const { return *Named<GuidePage>(*window, "GuidePage"); }
    QPushButton& Button(const char* name) const { return *Named<QPushButton>(*window, name); }
    QLabel& Note() const { return *Named<QLabel>(*window, "GuideNote"); }
    QString Heading() const { return Page().document()->begin().text(); }
    void Find(const QString& text) const {
        auto* field = Named<QLineEdit>(*window, "Find");
        field->setText(text);
        QTest::keyClick(field, Qt::Key_Return);
    }

    QWidget parent;
    QPointer<GuideWindow> window;
};

TEST_F(GuideWindowTest, OpensWithTheContents) {
    OpenGuide();

    EXPECT_EQ(Heading(), "A tour of Kirto");
    EXPECT_FALSE(Button("Back").isEnabled());
    EXPECT_FALSE(Button("Forward").isEnabled());
}

TEST_F(GuideWindowTest, GoesBackAndForwardAndToTheContents) {
    OpenGuide();
    Page().setSource(QUrl("playing.md"));
    EXPECT_EQ(Heading(), "See it move");

    Button("Back").click();
    EXPECT_EQ(Heading(), "A tour of Kirto");
    Button("Forward").click();
    EXPECT_EQ(Heading(), "See it move");
    Button("Contents").click();
    EXPECT_EQ(Heading(), "A tour of Kirto");
}

TEST_F(GuideWindowTest, FindsATextAndSaysWhereThereIsNone) {
    OpenGuide();

    Find("Undoing");
    EXPECT_EQ(Page().textCursor().selectedText(), "Undoing");
    EXPECT_FALSE(Note().isVisible());
    Find("no such text");
    EXPECT_EQ(Note().text(), "\"no such text\" is not on this page.");
    EXPECT_TRUE(Note().isVisible());
}

TEST_F(GuideWindowTest, TellsOfAPageThatIsNotInstalled) {
    OpenGuide();

    Page().setSource(QUrl("gone.md"));

    EXPECT_EQ(Note().text(), "The page \"gone.md\" is not part of the installed guide.");
    EXPECT_TRUE(Note().isVisible());
}

TEST_F(GuideWindowTest, SaysThatThereIsNoGuide) {
    Open({});

    EXPECT_EQ(Heading(), "The guide is not installed with this program.");
    EXPECT_FALSE(Button("Contents").isEnabled());
}

TEST_F(GuideWindowTest, ClosesWithEscape) {
    OpenGuide();

    QTest::keyClick(&Page(), Qt::Key_Escape);

    EXPECT_TRUE(WaitFor([this] { return window.isNull(); }));
}

TEST_F(GuideWindowTest, IsOpenedOnlyOnce) {
    ShowGuide(&parent);
    ShowGuide(&parent);

    EXPECT_EQ(parent.findChildren<QWidget*>("GuideWindow", Qt::FindDirectChildrenOnly).size(), 1);
}

}  // namespace

}  // namespace kirto::test
