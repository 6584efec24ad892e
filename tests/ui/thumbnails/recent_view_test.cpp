#include "ui/thumbnails/recent_view.h"

#include <QTest>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "support/fake_roster.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

class RecentViewTest : public ::testing::Test {
  protected:
    RecentViewTest() {
        WriteBytes(red_, RawPicture(*PictureOf(2, 2, std::vector<uint32>(4, 0xFFFF0000))));
        RecentFiles files(folder_.Path());
        files.Add({folder_.File("gone.raw"), 86400});
        files.Add({red_, 2 * 86400});
    }

    // With a view that has shown what there is.
    void Open() {
        list_ = std::make_unique<RecentList>(folder_.Path());
        view_ = std::make_unique<RecentView>(*list_, roster_, BMessenger(application_));
        view_->resize(400, 200);
        view_->show();
        ASSERT_TRUE(QTest::qWaitFor([this] { return view_->count() == 2; }));
    }
    std::string LastOpened() const {
        const std::vector<BMessage> messages = application_->Messages();
        entry_ref ref;
        if (messages.empty() || messages.back().what != kOpenFile) return {};
        messages.back().FindRef("refs", &ref);
        return ref.path;
    }

    TemporaryFolder folder_;
    FakeRoster roster_;
    std::shared_ptr<PortRecorder> application_ = std::make_shared<PortRecorder>();
    const std::string red_ = folder_.File("red.raw");
    std::unique_ptr<RecentList> list_;
    std::unique_ptr<RecentView> view_;
};

TEST_F(RecentViewTest, ShowsNamesAndDatesTheLatestFirst) {
    Open();
    EXPECT_TRUE(view_->item(0)->text().startsWith("red.raw\n"));
    EXPECT_TRUE(view_->item(0)->text().endsWith(
        QLocale().toString(QDate(1970, 1, 3), QLocale::ShortFormat)));
    EXPECT_TRUE(view_->item(1)->text().startsWith("gone.raw\n"));
    EXPECT_TRUE(view_->item(0)->data(Qt::AccessibleTextRole).toString().contains(" in "));
}

TEST_F(RecentViewTest, ShowsThePicture) {
    Open();
    const auto middle = [this] {
        return view_->item(0)->icon().pixmap(96, 72).toImage().pixelColor(47, 35);
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return middle() == QColor(Qt::red); }));
}

TEST_F(RecentViewTest, DoesNotOfferFilesThatAreGone) {
    Open();
    EXPECT_TRUE(QTest::qWaitFor([this] { return view_->item(1)->flags() == Qt::NoItemFlags; }));
    EXPECT_TRUE(view_->item(1)->toolTip().contains("not there"));
    EXPECT_NE(view_->item(0)->flags(), Qt::NoItemFlags);
}

TEST_F(RecentViewTest, OpensByKeyboard) {
    Open();
    view_->setCurrentRow(0);
    QTest::keyClick(view_.get(), Qt::Key_Return);

    EXPECT_EQ(LastOpened(), red_);
}

TEST_F(RecentViewTest, FollowsTheList) {
    Open();
    list_->Remember("/new.gif");
    EXPECT_TRUE(QTest::qWaitFor([this] { return view_->count() == 3; }));
    EXPECT_TRUE(view_->item(0)->text().startsWith("new.gif"));

    list_->Clear();
    EXPECT_TRUE(QTest::qWaitFor([this] { return view_->count() == 0; }));
}

}  // namespace

}  // namespace kirto::test
