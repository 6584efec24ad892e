// The main window over the application as it runs: what the user does, and what the document is
// afterwards.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QTest>
#include <gtest/gtest.h>

#include "app/kirto.h"
#include "resources/qt/text_control.h"
#include "support/environment.h"
#include "support/fake_roster.h"
#include "support/test_support.h"
#include "ui/shell/qt_desktop.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

class KirtoWindowDocument : public ::testing::Test {
  protected:
    KirtoWindowDocument() {
        prefs.misc_tempfilelocation = folder.Path();
        app = std::make_unique<Kirto>(prefs, desktop, roster);
        for (const char* name : {"a", "b", "c"})
            AppendFrame(*app, PictureOf(2, 1, {0xFF123456, 0xFF654321}), name);
        app->Select(1);
        app->SetModified(false);
        Window().UpdateDisplay();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
        app->Run();
    }
    ~KirtoWindowDocument() override {
        desktop.CloseWindows();
        app->Quit();
    }

    KirtoWindow& Window() { return *desktop.MainWindow(); }
    template <typename Control>
    Control& Find(const char* panel, const char* name) {
        return *Named<Control>(*Named<QWidget>(Window(), panel), name);
    }
    // Types over the field's text, as yet unconfirmed.
    void Type(const char* panel, const char* field, const QString& text) {
        auto& control = Find<TextControl>(panel, field);
        // A box that was ticked before enables it.
        EXPECT_TRUE(WaitFor([&] { return control.isEnabled(); })) << field;
        control.setFocus();
        control.selectAll();
        QTest::keyClicks(&control, text);
    }
    void Enter(const char* panel, const char* field, const QString& text) {
        Type(panel, field, text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    void Choose(const char* label) {
        for (const QAction* menu : Window().menuBar()->actions()) {
            for (QAction* item : menu->menu()->actions()) {
                if (item->text().remove('&') == label) return item->trigger();
            }
        }
        ADD_FAILURE() << "no " << label;
    }
    void Press(int key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
    // True once the item can be chosen.
    bool CanChoose(const char* label) {
        return WaitFor([&] {
            const auto* item = Window().menuBar()->findChild<QAction*>(label);
            return item->isEnabled();
        });
    }
    // True once the status line reads so.
    bool StatusBecomes(const QString& text) {
        return WaitFor([&] { return Named<QLabel>(Window(), "Status")->text() == text; });
    }
    // True once the document is as the condition says.
    bool Becomes(const std::function<bool(const Kirto&)>& condition) {
        return WaitFor([&] { return condition(*app); });
    }
    // True once the frames stand in this order, the current one in brackets.
    bool FramesBecome(const std::string& names) {
        std::string now;
        const bool same = Becomes([&](const Kirto& document) {
            now.clear();
            const auto animation = document.Current();
            for (const FramePointer& frame : animation->frames) {
                const bool current = frame == animation->CurrentFrame();
                now += current ? "[" + frame->name + "]" : frame->name;
            }
            return now == names;
        });
        EXPECT_EQ(now, names);
        return same;
    }

    TemporaryFolder folder;
    ScopedEnvironment configuration{"XDG_CONFIG_HOME", folder.Path().c_str()};
    Prefs prefs{Prefs::BuiltIn{}};
    FakeRoster roster;
    QtDesktop desktop{roster};
    std::unique_ptr<Kirto> app;
};

TEST_F(KirtoWindowDocument, TakesTheAnimationsNumbers) {
    Enter("GlobalView", "Width", "77");
    Enter("GlobalView", "Height", "88");
    Enter("GlobalView", "Loop count", "5");
    Enter("GlobalView", "Pause length", "12.5");

    EXPECT_TRUE(Becomes([](const Kirto& document) {
        return document.Current()->width == 77 && document.Current()->height == 88 &&
               document.Current()->loop_count == 5 && document.Current()->pause_length == 12.5 &&
               document.Modified();
    }));
}

TEST_F(KirtoWindowDocument, TakesThePalettesChoices) {
    QTest::mouseClick(&Find<QCheckBox>("PaletteView", "Transparent"), Qt::LeftButton, {}, {5, 8});
    QTest::mouseClick(&Find<QCheckBox>("PaletteView", "Dither"), Qt::LeftButton, {}, {5, 8});
    Enter("PaletteView", "Background index", "3");
    Enter("PaletteView", "Transparent index", "4");

    EXPECT_TRUE(Becomes([](const Kirto& document) {
        const Palette palette = *document.Current()->palette;
        return palette.use_transparent && palette.dither && palette.background_index == 3 &&
               palette.transparent_index == 4;
    }));
}

TEST_F(KirtoWindowDocument, TakesTheCurrentFramesNumbersAndNoOthers) {
    Enter("LocalView", "XOffset", "6");
    Enter("LocalView", "YOffset", "7");
    QTest::mouseClick(&Find<QCheckBox>("LocalView", "Pause"), Qt::LeftButton, {}, {5, 8});
    Enter("LocalView", "Pause length", "1.5");

    EXPECT_TRUE(Becomes([](const Kirto& document) {
        const Frame frame = *document.FrameAt(1);
        return frame.x_offset == 6 && frame.y_offset == 7 && frame.use_pause &&
               frame.pause_length == 1.5;
    }));
    EXPECT_EQ(app->FirstFrame()->x_offset, 0);
    EXPECT_EQ(app->FrameAt(2)->x_offset, 0);
}

TEST_F(KirtoWindowDocument, TakesOverWhatIsTypedBeforeAShortcutMovesTheFrame) {
    Type("LocalView", "XOffset", "5");

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_U, Qt::ControlModifier);

    EXPECT_TRUE(FramesBecome("[b]ac"));
    EXPECT_TRUE(
        Becomes([](const Kirto& document) { return document.FirstFrame()->x_offset == 5; }));
    EXPECT_TRUE(WaitFor([&] { return Find<TextControl>("LocalView", "XOffset").text() == "5"; }));
}

TEST_F(KirtoWindowDocument, MovesReversesAndRemovesFrames) {
    Choose("Move Down");
    EXPECT_TRUE(FramesBecome("ac[b]"));
    Choose("Reverse All");
    EXPECT_TRUE(FramesBecome("bc[a]")) << "The selection keeps its number.";
    Choose("Remove");
    EXPECT_TRUE(FramesBecome("b[c]"));
}

TEST_F(KirtoWindowDocument, UnticksDitherTogetherWithTheDocument) {
    QTest::mouseClick(&Find<QCheckBox>("PaletteView", "Dither"), Qt::LeftButton, {}, {5, 8});
    ASSERT_TRUE(Becomes([](const Kirto& document) { return document.Current()->palette->dither; }));
    auto& menu = Find<QComboBox>("PaletteView", "PaletteMenuField");

    menu.setCurrentText("greyscale");
    emit menu.activated(menu.currentIndex());

    EXPECT_TRUE(Becomes([](const Kirto& document) {
        return document.Current()->palette->mode == kPaletteGreyscale &&
               !document.Current()->palette->dither;
    }));
    ASSERT_TRUE(
        WaitFor([&] { return Window().Shown().Current().palette->mode == kPaletteGreyscale; }));
    EXPECT_FALSE(Find<QCheckBox>("PaletteView", "Dither").isChecked());
}

TEST_F(KirtoWindowDocument, SavesTheChangesAndIsUnmodifiedThen) {
    app->AnimationDocument::SetFile(folder.Path(), "some.gif");
    Window().UpdateDisplay();
    Enter("GlobalView", "Width", "77");
    ASSERT_TRUE(Becomes([](const Kirto& document) { return document.Modified(); }));
    ASSERT_TRUE(WaitFor([&] { return Window().Shown().State().modified; }));

    Choose("Save");

    EXPECT_TRUE(WaitFor([&] { return !Window().Shown().State().modified; }));
    EXPECT_FALSE(app->Modified());
    const std::vector<uint8> bytes = ReadBytes(folder.File("some.gif"));
    ASSERT_GT(bytes.size(), 7u);
    EXPECT_EQ(bytes[6], 77) << "The width in the header.";
}

TEST_F(KirtoWindowDocument, UndoesAndRedoesTheRemovalOfAFrameWithTheKeyboard) {
    Choose("Remove");
    ASSERT_TRUE(FramesBecome("a[c]"));
    ASSERT_TRUE(CanChoose("Undo"));
    EXPECT_TRUE(StatusBecomes("Status: 2 frame(s), modified"));

    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(FramesBecome("a[b]c"));
    EXPECT_TRUE(StatusBecomes("Status: 3 frame(s), unmodified"))
        << "The document stands where it was saved.";
    ASSERT_TRUE(CanChoose("Redo"));

    Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(FramesBecome("a[c]"));
    EXPECT_TRUE(StatusBecomes("Status: 2 frame(s), modified"));
}

TEST_F(KirtoWindowDocument, IsUnmodifiedWhereverTheHistoryMeetsTheSavedState) {
    app->AnimationDocument::SetFile(folder.Path(), "some.gif");
    Window().UpdateDisplay();
    Choose("Remove");
    ASSERT_TRUE(StatusBecomes("Status: 2 frame(s), modified"));
    Choose("Save");
    ASSERT_TRUE(StatusBecomes("Status: 2 frame(s), unmodified"));

    Choose("Undo Remove Frame");
    EXPECT_TRUE(StatusBecomes("Status: 3 frame(s), modified"));
    EXPECT_EQ(Window().windowTitle(), "Kirto - some.gif");

    Choose("Redo Remove Frame");
    EXPECT_TRUE(StatusBecomes("Status: 2 frame(s), unmodified"));
    EXPECT_EQ(Window().windowTitle(), "Kirto - some.gif");
}

TEST_F(KirtoWindowDocument, TakesOverWhatIsTypedBeforeAShortcutUndoesIt) {
    const QString before = Find<TextControl>("GlobalView", "Width").text();
    Choose("Remove");
    ASSERT_TRUE(FramesBecome("a[c]"));
    ASSERT_TRUE(CanChoose("Undo"));
    Type("GlobalView", "Width", "77");

    Press(Qt::Key_Z, Qt::ControlModifier);

    EXPECT_TRUE(WaitFor([&] { return Window().Shown().State().redo_name == "Change Width"; }));
    EXPECT_EQ(Find<TextControl>("GlobalView", "Width").text(), before);
    EXPECT_EQ(Window().Shown().State().undo_name, "Remove Frame");
    EXPECT_TRUE(FramesBecome("a[c]"));

    Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_TRUE(Becomes([](const Kirto& document) { return document.Current()->width == 77; }));
}

TEST_F(KirtoWindowDocument, UndoesTheVeryFirstEditWhileItIsBeingTyped) {
    const QString before = Find<TextControl>("GlobalView", "Width").text();
    Type("GlobalView", "Width", "77");
    Window().UpdateDisplay();

    Press(Qt::Key_Z, Qt::ControlModifier);

    EXPECT_TRUE(WaitFor([&] { return Window().Shown().State().redo_name == "Change Width"; }));
    EXPECT_EQ(Find<TextControl>("GlobalView", "Width").text(), before);
    EXPECT_TRUE(StatusBecomes("Status: 3 frame(s), unmodified"));
    EXPECT_FALSE(Window().menuBar()->findChild<QAction*>("Undo")->isEnabled());
}

TEST_F(KirtoWindowDocument, EmptiesTheDocumentWithNew) {
    Choose("New");

    EXPECT_TRUE(Becomes([](const Kirto& document) { return document.FrameCount() == 0; }));
    EXPECT_TRUE(FramesBecome(""));
}

}  // namespace

}  // namespace kirto::test
