#include "ui/help/guide_page.h"

#include <QImage>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <gtest/gtest.h>

#include "support/source_folder.h"
#include "support/test_support.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

class GuidePageTest : public ::testing::Test {
  protected:
    GuidePageTest() {
        Write("first.md", "# First\n\n[on](second.md#the-third-way-out) [gone](gone.md)\n");
        std::string second = "# Second\n\n![wide](wide.png)\n";
        for (int line = 0; line < 100; ++line)
            second += "\nText\n";
        Write("second.md", second + "\n## The third way, out\n\nEnd\n");
        QImage wide(2000, 100, QImage::Format_RGB32);
        wide.fill(Qt::red);
        EXPECT_TRUE(wide.save(QString::fromStdString(folder.File("wide.png"))));
        page.resize(400, 300);
        page.WhenMissing([this](const QString& path) { missing = path.toStdString(); });
        page.show();
        page.setSource(Url("first.md"));
    }

    void Write(const std::string& name, const std::string& text) {
        WriteBytes(folder.File(name), {text.begin(), text.end()});
    }
    QUrl Url(const char* name) const {
        return QUrl::fromLocalFile(QString::fromStdString(folder.File(name)));
    }
    // The width of the first picture, in pixels.
    int PictureWidth() {
        const QVariant image =
            page.document()->resource(QTextDocument::ImageResource, Url("wide.png"));
        return image.value<QImage>().width();
    }

    TemporaryFolder folder;
    GuidePage page{nullptr};
    std::string missing;
};

TEST_F(GuidePageTest, ShowsMarkdownWithHeadings) {
    EXPECT_EQ(page.document()->begin().text(), "First");
    EXPECT_EQ(page.document()->begin().blockFormat().headingLevel(), 1);
}

TEST_F(GuidePageTest, FollowsALinkToAHeading) {
    page.setSource(QUrl("second.md#the-third-way-out"));
    QCoreApplication::processEvents();

    EXPECT_EQ(page.document()->begin().text(), "Second");
    EXPECT_EQ(page.textCursor().block().text(), "The third way, out");
    EXPECT_GT(page.verticalScrollBar()->value(), 0);
}

TEST_F(GuidePageTest, GoesBackToThePageBefore) {
    page.setSource(QUrl("second.md"));
    ASSERT_TRUE(page.isBackwardAvailable());

    page.backward();

    EXPECT_EQ(page.document()->begin().text(), "First");
    EXPECT_EQ(missing, "");
}

TEST_F(GuidePageTest, StaysWhereItIsAndTellsOfAPageThatIsNotThere) {
    page.setSource(QUrl("gone.md"));

    EXPECT_EQ(missing, folder.File("gone.md"));
    EXPECT_EQ(page.document()->begin().text(), "First");
}

TEST_F(GuidePageTest, MakesPicturesNoWiderThanThePageAlsoWhenItBecomesNarrower) {
    page.setSource(QUrl("second.md"));
    QCoreApplication::processEvents();
    EXPECT_GT(PictureWidth(), 0);
    EXPECT_LE(PictureWidth(), page.viewport()->width());

    page.resize(250, 300);
    QCoreApplication::processEvents();
    EXPECT_GT(PictureWidth(), 0);
    EXPECT_LE(PictureWidth(), page.viewport()->width());
}

TEST_F(GuidePageTest, FindsEveryPictureOfTheGuideItself) {
    const auto guide = SourceFolder() / "docs/guide";
    for (const auto& file : std::filesystem::directory_iterator(guide)) {
        page.setSource(QUrl::fromLocalFile(QString::fromStdString(file.path().string())));
        for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextImageFormat format = part.fragment().charFormat().toImageFormat();
                if (!format.isValid()) continue;
                const QVariant image =
                    page.loadResource(QTextDocument::ImageResource, QUrl(format.name()));
                EXPECT_FALSE(image.value<QImage>().isNull()) << format.name().toStdString();
            }
        }
    }
    EXPECT_EQ(missing, "");
}

}  // namespace

}  // namespace kirto::test
