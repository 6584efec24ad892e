#include "ui/shortcuts/key_field.h"

#include <QTest>
#include <gtest/gtest.h>

namespace kirto::test {

namespace {

class KeyFieldTest : public ::testing::Test {
  protected:
    KeyFieldTest() {
        field.WhenHit([this](const QKeySequence& key) { hit.append(key.toString()); });
    }

    KeyField field{nullptr};
    QStringList hit;
};

TEST_F(KeyFieldTest, ShowsAndTellsTheKeyWithCtrlAndTheLike) {
    QTest::keyClick(&field, Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);

    EXPECT_EQ(hit, QStringList{"Ctrl+Shift+K"});
    EXPECT_EQ(field.text(), "Ctrl+Shift+K");
}

TEST_F(KeyFieldTest, WaitsForAKeyBesidesCtrl) {
    QTest::keyClick(&field, Qt::Key_Control, Qt::ControlModifier);

    EXPECT_TRUE(hit.isEmpty());
}

TEST_F(KeyFieldTest, CountsShiftOnlyWhereTheCharacterDoesNotNeedIt) {
    QTest::keyClick(&field, Qt::Key_Exclam, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(&field, Qt::Key_F5, Qt::ShiftModifier);

    EXPECT_EQ(hit, (QStringList{"Ctrl+!", "Shift+F5"}));
}

TEST_F(KeyFieldTest, TakesBackspaceAndDeleteForNoKey) {
    field.ShowKey(QKeySequence("Ctrl+K"));

    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(field.text(), "");
    QTest::keyClick(&field, Qt::Key_Delete);

    EXPECT_EQ(hit, (QStringList{"", ""}));
}

TEST_F(KeyFieldTest, LeavesTheKeysThatLeadElsewhereAlone) {
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Escape})
        QTest::keyClick(&field, key);

    EXPECT_TRUE(hit.isEmpty());
}

}  // namespace

}  // namespace kirto::test
