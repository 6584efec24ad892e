#include <QAction>
#include <QMenuBar>

#include "ui/shell/kirto_window_fixture.h"

namespace kirto::test {

namespace {

// The menu's shortcuts, wherever the keyboard is.
class KirtoWindowShortcuts : public KirtoWindowFixture {
  protected:
    KirtoWindowShortcuts() {
        for (int32 i = 0; i < 3; ++i) {
            const FrameHandle frame = AddFrame();
            frame->use_pause = true;
            frame->local_palette = true;
        }
        EditOf(document)->use_pause = true;
        EditOf(document)->use_loop = true;
        PaletteEditOf(document)->use_transparent = true;
        MakeStep();
        MakeStep();
        document.Undo();
        Open();
        for (QAction* menu : window->menuBar()->actions()) {
            for (QAction* item : menu->menu()->actions()) {
                if (!item->shortcut().isEmpty()) items.push_back(item);
            }
        }
    }

    // An edit that can be undone.
    void MakeStep() {
        document.BeginStep();
        document.ReverseFrames();
        document.EndStep("Reverse All");
    }
    // Whatever can have the keyboard now.
    std::vector<QWidget*> Controls() const {
        std::vector<QWidget*> controls;
        for (QWidget* widget : window->findChildren<QWidget*>()) {
            const bool takes_keys = widget->isVisible() && widget->isEnabled() &&
                                    (widget->focusPolicy() & Qt::TabFocus) != 0;
            if (takes_keys) controls.push_back(widget);
        }
        return controls;
    }
    // The label of the item that is chosen by the shortcut of this one while the control has the
    // keyboard; empty for none.
    QString ChosenBy(const QAction& shortcut, QWidget& control) const {
        QString chosen;
        std::vector<QMetaObject::Connection> connections;
        for (QAction* item : items) {
            connections.push_back(QObject::connect(item, &QAction::triggered,
                                                   [&chosen, item] { chosen += item->text(); }));
        }
        const QKeyCombination keys = shortcut.shortcut()[0];
        QTest::keyClick(&control, keys.key(), keys.keyboardModifiers());
        for (const QMetaObject::Connection& connection : connections)
            QObject::disconnect(connection);
        return chosen;
    }

    // The key means something else in a field.
    static bool IsOfText(const QKeySequence& key) {
        return QStringList{"Ctrl+A", "Ctrl+X", "Ctrl+C", "Ctrl+V"}.contains(key.toString());
    }

    std::vector<QAction*> items;
};

TEST_F(KirtoWindowShortcuts, ChooseTheirItemsWhateverControlHasTheKeyboard) {
    ASSERT_EQ(items.size(), 29u);
    size_t fields = 0;
    for (QWidget* control : Controls()) {
        auto* field = dynamic_cast<TextControl*>(control);
        if (field) ++fields;
        for (const QAction* item : items) {
            control->setFocus();
            const bool works_on_text = field && IsOfText(item->shortcut());
            EXPECT_EQ(ChosenBy(*item, *control), works_on_text ? QString() : item->text())
                << control->objectName().toStdString() << ' '
                << item->shortcut().toString().toStdString();
        }
    }
    EXPECT_EQ(fields, 9u);
}

TEST_F(KirtoWindowShortcuts, LeaveTheTextOfTheFieldsAloneEvenWhereTheirItemsAreDisabled) {
    for (QAction* item : items)
        item->setEnabled(false);
    for (TextControl* field : window->findChildren<TextControl*>()) {
        field->setFocus();
        field->SetText("12");
        for (const QAction* item : items) {
            if (IsOfText(item->shortcut())) continue;
            EXPECT_EQ(ChosenBy(*item, *field), "");
            EXPECT_EQ(field->text(), "12") << item->text().toStdString();
        }
    }
}

TEST_F(KirtoWindowShortcuts, OfTheClipboardAndForAllWorkOnTheTextOfAField) {
    TextControl& field = Find<TextControl>("Width");
    field.setFocus();
    field.SetText("12");

    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(field.selectedText(), "12");
    QTest::keyClick(&field, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(field.text(), "");
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.text(), "12");
    EXPECT_EQ(Posted(), "");
}

TEST_F(KirtoWindowShortcuts, RedoWithTheSecondKeysToo) {
    TextControl& field = Find<TextControl>("Width");
    field.setFocus();

    QTest::keyClick(&field, Qt::Key_Y, Qt::ControlModifier);
    HandleEvents();

    EXPECT_EQ(Posted(), CodeText(kRedo));
}

TEST_F(KirtoWindowShortcuts, PostWhatWasTypedBeforeTheirCommand) {
    TextControl& offset = Find<TextControl>("LocalView", "XOffset");
    Type(offset, "5");

    QTest::keyClick(&offset, Qt::Key_U, Qt::ControlModifier);
    HandleEvents();

    EXPECT_EQ(offset.text(), "5");
    EXPECT_EQ(Posted(), "lvxo awfu");
}

}  // namespace

}  // namespace kirto::test
