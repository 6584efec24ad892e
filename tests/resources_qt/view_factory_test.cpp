#include "resources/qt/view_factory.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <gtest/gtest.h>

#include "resources/qt/bottom_view.h"
#include "resources/qt/text_control.h"
#include "resources/window_layout.h"
#include "support/window_resources.h"

namespace kirto::test {

namespace {

// The views of a layout's text in a parent 200 wide, shown at its natural size.
struct Views {
    explicit Views(const std::string& views) {
        const TemporaryFolder folder;
        const std::string text =
            "class = 'BWindow'\nname = 'w'\ntitle = 't'\n"
            "frame = [0, 0, 200, 100]\nviews = [" +
            views + "]\n";
        WriteBytes(folder.File("layout"), {text.begin(), text.end()});
        ViewFactory(BMessenger(port)).MakeChildren(ArchiveOfLayout(folder.File("layout")), parent);
        parent.show();
    }
    template <typename Widget>
    Widget* Find(const char* name) {
        auto* widget = dynamic_cast<Widget*>(parent.findChild<QWidget*>(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    // In the parent's coordinates.
    QRect PlaceOf(const char* name) {
        const auto* widget = Find<QWidget>(name);
        return {widget->mapTo(&parent, QPoint(0, 0)), widget->size()};
    }

    std::shared_ptr<PortRecorder> port = std::make_shared<PortRecorder>();
    QWidget parent;
};

std::string View(const std::string& class_name, const std::string& name, const std::string& frame,
                 const std::string& rest = "") {
    return "{class = '" + class_name + "', name = '" + name + "', frame = [" + frame + "]" + rest +
           "},\n";
}

}  // namespace

TEST(ViewFactory, MakesAWidgetOfEachClass) {
    Views views(View("BCheckBox", "box", "10, 10, 90, 20", ", label = 'A box'") +
                View("BRadioButton", "radio", "10, 30, 90, 40", ", label = 'A choice'") +
                View("BTextControl", "field", "10, 50, 90, 60", ", label = 'A number:'") +
                View("BStringView", "text", "10, 70, 90, 80", ", label = 'A text'") +
                View("BButton", "button", "10, 90, 90, 100", ", label = 'A button'") +
                View("BBox", "frame", "10, 110, 90, 120", ", label = 'A frame'") +
                View("BottomView", "bottom", "10, 130, 90, 140"));

    EXPECT_EQ(views.Find<QCheckBox>("box")->text(), "A box");
    EXPECT_EQ(views.Find<QRadioButton>("radio")->text(), "A choice");
    EXPECT_EQ(views.Find<TextControl>("field")->text(), "");
    EXPECT_EQ(views.Find<QLabel>("text")->text(), "A text");
    EXPECT_EQ(views.Find<QPushButton>("button")->text(), "A button");
    EXPECT_EQ(views.Find<QGroupBox>("frame")->title(), "A frame");
    EXPECT_NE(views.Find<BottomView>("bottom"), nullptr);
}

TEST(ViewFactory, AClassThatIsNotKnownBecomesAPlainViewWithItsChildren) {
    Views views(View("BColorControl", "strange", "10, 10, 90, 90",
                     ", views = [" + View("BButton", "inside", "1, 1, 9, 9") + "]"));

    EXPECT_EQ(views.Find<QWidget>("inside")->parentWidget(), views.Find<QWidget>("strange"));
}

TEST(ViewFactory, ControlsSendTheirMessageWhenTheUserChangesThem) {
    Views views(View("BCheckBox", "box", "10, 10, 90, 20", ", message = 'chck'") +
                View("BButton", "button", "10, 30, 90, 40", ", message = 'push'") +
                View("BTextControl", "field", "10, 50, 90, 60", ", message = 'text'"));

    views.Find<QCheckBox>("box")->setChecked(true);
    EXPECT_EQ(views.port->TakeTranscript(), "");
    views.Find<QCheckBox>("box")->click();
    views.Find<QPushButton>("button")->click();
    auto* field = views.Find<TextControl>("field");
    field->setText("12");
    field->setModified(true);
    field->Commit();

    EXPECT_EQ(views.port->TakeTranscript(), "chck push text");
}

TEST(ViewFactory, ControlsWithoutMessageSendNothing) {
    Views views(View("BButton", "button", "10, 30, 90, 40") +
                View("BTextControl", "field", "10, 50, 90, 60"));

    views.Find<QPushButton>("button")->click();
    auto* field = views.Find<TextControl>("field");
    field->setModified(true);
    field->Commit();

    EXPECT_EQ(views.port->TakeTranscript(), "");
}

TEST(ViewFactory, LabelsAreTakenLiterally) {
    Views views(View("BButton", "button", "10, 10, 90, 20", ", label = 'Cut & <b>Paste</b>'") +
                View("BStringView", "text", "10, 30, 90, 40", ", label = '<b>bold</b> & so'"));

    EXPECT_EQ(views.Find<QPushButton>("button")->text(), "Cut && <b>Paste</b>");
    EXPECT_TRUE(views.Find<QPushButton>("button")->shortcut().isEmpty());
    EXPECT_EQ(views.Find<QLabel>("text")->textFormat(), Qt::PlainText);
}

TEST(ViewFactory, AccessibleNamesAreTheLabels) {
    Views views(View("BCheckBox", "box", "10, 10, 90, 20", ", label = 'Use a pause:'") +
                View("BTextControl", "pause", "100, 10, 190, 20") +
                View("BTextControl", "width", "10, 30, 90, 40", ", label = 'Width:'") +
                View("BRadioButton", "radio", "10, 50, 90, 60", ", label = 'A && B'"));

    EXPECT_EQ(views.Find<QWidget>("box")->accessibleName(), "Use a pause:");
    EXPECT_EQ(views.Find<QWidget>("pause")->accessibleName(), "Use a pause:");
    EXPECT_EQ(views.Find<QWidget>("width")->accessibleName(), "Width:");
    EXPECT_EQ(views.Find<QWidget>("radio")->accessibleName(), "A && B");
}

TEST(ViewFactory, RadioButtonsInOneParentExcludeEachOther) {
    Views views(View("BBox", "first", "10, 10, 90, 40",
                     ", views = [" + View("BRadioButton", "a", "1, 1, 9, 9") +
                         View("BRadioButton", "b", "1, 11, 9, 19") + "]") +
                View("BRadioButton", "c", "10, 50, 90, 60"));

    views.Find<QRadioButton>("a")->click();
    views.Find<QRadioButton>("c")->click();
    EXPECT_TRUE(views.Find<QRadioButton>("a")->isChecked());
    views.Find<QRadioButton>("b")->click();
    EXPECT_FALSE(views.Find<QRadioButton>("a")->isChecked());
}

TEST(ViewFactory, ATabViewShowsOneOfItsViewsUnderATabOfItsName) {
    Views views(View("BTabView", "tabs", "0, 0, 200, 100",
                     ", views = [" + View("BView", "container", "0, 20, 200, 80") + "], tabs = [" +
                         View("BView", "First & only", "0, 0, 200, 80") +
                         View("BView", "Second", "0, 0, 200, 80") + "]"));

    auto* tabs = views.Find<QTabWidget>("tabs");
    ASSERT_EQ(tabs->count(), 2);
    EXPECT_EQ(tabs->tabText(0), "First && only");
    EXPECT_EQ(tabs->widget(1), views.Find<QWidget>("Second"));
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_EQ(views.Find<QStackedWidget>("container")->parentWidget(), tabs);
}

TEST(ViewFactory, ATabWithoutLabelIsCalledLikeItsView) {
    BMessage page;
    page.AddString("class", "BView");
    page.AddString("_name", "Page");
    BMessage tabs;
    tabs.AddString("class", "BTabView");
    tabs.AddMessage("_view_list", page);
    BMessage archive;
    archive.AddMessage("_views", tabs);
    QWidget parent;

    ViewFactory(BMessenger()).MakeChildren(archive, parent);

    EXPECT_EQ(parent.findChild<QTabWidget*>()->tabText(0), "Page");
}

TEST(ViewFactory, FramesDecideRowsAndTheirOrder) {
    Views views(View("BButton", "below", "10, 50, 90, 70") +
                View("BButton", "right", "100, 10, 190, 30") +
                View("BButton", "left", "10, 10, 90, 30"));

    EXPECT_LT(views.PlaceOf("left").right(), views.PlaceOf("right").left());
    EXPECT_EQ(views.PlaceOf("left").top(), views.PlaceOf("right").top());
    EXPECT_GT(views.PlaceOf("below").top(), views.PlaceOf("left").bottom());
    EXPECT_EQ(views.PlaceOf("below").left(), views.PlaceOf("left").left());
}

TEST(ViewFactory, FieldsOfOneBoxStandInOneColumn) {
    Views views(View("BTextControl", "width", "10, 10, 90, 30", ", label = 'Width:'") +
                View("BCheckBox", "pause", "10, 34, 60, 50", ", label = 'A rather long label:'") +
                View("BTextControl", "length", "64, 34, 90, 50"));

    EXPECT_EQ(views.PlaceOf("width").left(), views.PlaceOf("length").left());
    EXPECT_EQ(views.PlaceOf("width").width(), views.PlaceOf("length").width());
    EXPECT_GT(views.PlaceOf("length").left(), views.PlaceOf("pause").right());
}

TEST(ViewFactory, FieldsHaveRoomForAnyNumber) {
    Views views(View("BTextControl", "width", "10, 10, 90, 30"));

    const auto* field = views.Find<QLineEdit>("width");
    EXPECT_GT(field->width(), field->fontMetrics().horizontalAdvance("-2147483648"));
}

TEST(ViewFactory, AFieldThatReachesTheRightMarginGrowsWithItsParent) {
    Views views(View("BTextControl", "path", "10, 10, 190, 30", ", label = 'Path:'"));
    const int before = views.PlaceOf("path").width();

    views.parent.resize(views.parent.width() + 100, views.parent.height());
    views.parent.layout()->activate();

    EXPECT_EQ(views.PlaceOf("path").width(), before + 100);
}

TEST(ViewFactory, RowsBeginWhereTheyAreDrawnToBegin) {
    Views views(View("BStringView", "title", "10, 10, 190, 20", ", label = 'Use:'") +
                View("BRadioButton", "choice", "22, 22, 190, 32", ", label = 'This'") +
                View("BRadioButton", "with", "22, 34, 100, 44", ", label = 'That:'") +
                View("BTextControl", "field", "110, 34, 150, 44") +
                View("BButton", "end", "150, 70, 190, 80", ", label = 'End'") +
                View("BTextControl", "last", "150, 90, 190, 100", ", label = 'Last:'"));

    const int indent = views.parent.fontMetrics().height();
    EXPECT_EQ(views.PlaceOf("choice").left(), views.PlaceOf("title").left() + indent);
    EXPECT_EQ(views.PlaceOf("with").left(), views.PlaceOf("choice").left());
    EXPECT_EQ(views.PlaceOf("end").right(), views.PlaceOf("title").right());
    EXPECT_EQ(views.PlaceOf("last").right(), views.PlaceOf("title").right());
}

TEST(ViewFactory, ARowDrawnApartStaysApart) {
    Views views(View("BButton", "first", "10, 10, 90, 30") +
                View("BButton", "second", "10, 34, 90, 54") +
                View("BButton", "third", "10, 70, 90, 90"));

    EXPECT_GT(views.PlaceOf("third").top() - views.PlaceOf("second").bottom(),
              views.PlaceOf("second").top() - views.PlaceOf("first").bottom());
}

TEST(ViewFactory, SpareRoomStaysBelow) {
    Views views(View("BBox", "box", "10, 10, 190, 60", ", label = 'Box'"));
    const int before = views.PlaceOf("box").height();

    views.parent.resize(views.parent.width(), views.parent.height() + 100);
    views.parent.layout()->activate();

    EXPECT_EQ(views.PlaceOf("box").height(), before);
}

TEST(ViewFactory, TheBottomViewDrawsALineAboveItsButtons) {
    Views views(View("BottomView", "bottom", "0, 60, 200, 100",
                     ", views = [" + View("BButton", "Save", "110, 8, 190, 32") + "]"));

    const QImage picture = views.Find<BottomView>("bottom")->grab().toImage();
    const QRgb panel = picture.pixel(2, 6);
    EXPECT_NE(picture.pixel(2, 0), panel);
    EXPECT_EQ(picture.pixel(picture.width() - 2, 0), picture.pixel(2, 0));
}

}  // namespace kirto::test
