// The windows in each language that there are translations of, and in one whose words are longer
// than those of any.
#include <QComboBox>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QTranslator>
#include <map>
#include <memory>

#include "driving/long_words.h"
#include "ui/shell/help_menu.h"
#include "ui/shell/kirto_window_fixture.h"
#include "ui/shell/main_menu.h"
#include "ui/shell/tool_bar.h"

namespace kirto::test {

namespace {

class InLanguage : public KirtoWindowFixture, public ::testing::WithParamInterface<const char*> {
  protected:
    void SetUp() override {
        if (!*GetParam()) return;
        ASSERT_TRUE(translator_.load(QString(":/languages/kirto_") + GetParam()));
        QCoreApplication::installTranslator(&translator_);
    }
    void TearDown() override { QCoreApplication::removeTranslator(&translator_); }

  private:
    QTranslator translator_;
};

// The letter behind "&"; none without.
QChar KeyOf(const QString& text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&') continue;
        if (text[i + 1] != '&') return text[i + 1].toLower();
        ++i;
    }
    return {};
}

void ExpectKeysOfTheirOwn(const QList<QAction*>& actions, const QString& where) {
    std::map<QChar, QString> owners;
    for (const QAction* action : actions) {
        const QChar key = KeyOf(action->text());
        if (action->isSeparator() || key.isNull()) continue;
        const auto [owner, added] = owners.try_emplace(key, action->text());
        EXPECT_TRUE(added) << where.toStdString() << ": " << owner->second.toStdString() << " and "
                           << action->text().toStdString();
    }
}

TEST_P(InLanguage, NoTwoItemsOfAMenuHaveTheSameKey) {
    QMainWindow main;
    main.setMenuBar(MakeMainMenu(&main, [](uint32) {}));
    AddToolBar(main);
    AddHelpMenu(*main.menuBar(), [](uint32) {});

    ExpectKeysOfTheirOwn(main.menuBar()->actions(), "menu bar");
    for (const QAction* title : main.menuBar()->actions())
        ExpectKeysOfTheirOwn(title->menu()->actions(), title->text());
}

TEST_P(InLanguage, TheMenuBarIsInThatLanguage) {
    Open();

    const QString first = window->menuBar()->actions().front()->text().remove('&');
    const std::map<std::string, QString> names = {
        {"", "File"}, {"de", "Datei"}, {"fr", "Fichier"}, {"es", "Archivo"}, {"zh_CN", "文件(F)"}};
    EXPECT_EQ(first, names.at(GetParam()));
}

// What can be chosen by Alt and a letter in a window: labels of fields, buttons and boxes.
std::vector<QString> TextsWithKeys(const QWidget& dialog) {
    std::vector<QString> texts;
    for (const auto* label : dialog.findChildren<QLabel*>()) {
        if (label->buddy() && !label->isHidden()) texts.push_back(label->text());
    }
    for (const auto* button : dialog.findChildren<QAbstractButton*>()) {
        if (!button->isHidden() && !button->window()->isHidden()) texts.push_back(button->text());
    }
    return texts;
}

TEST_P(InLanguage, NoTwoFieldsOfADialogHaveTheSameKey) {
    Open();
    for (int i = 0; i < 3; ++i)
        AddFrame(8, 8);
    window->UpdateDisplay();
    for (const uint32 command :
         {kMenuSelectEvery, kMenuSelectRange, kMenuGoToFrame, kMenuSetPause, kMenuDropEvery,
          kMenuRemoveDuplicates, kMenuMoveTo, kMenuResize, kMenuCrop, kMenuCanvasSize,
          kMenuFitFrames, kMenuAdjustColors, kMenuOpacity, kMenuOverlay, kMenuText,
          kMenuMakeTransparent, kMenuExport, kMenuExportSheet}) {
        Do(command);
        const auto dialogs = window->findChildren<QDialog*>();
        ASSERT_EQ(dialogs.size(), 1) << CodeText(command);
        std::map<QChar, QString> owners;
        for (const QString& text : TextsWithKeys(*dialogs.front())) {
            if (KeyOf(text).isNull()) continue;
            const auto [owner, added] = owners.try_emplace(KeyOf(text), text);
            EXPECT_TRUE(added) << dialogs.front()->windowTitle().toStdString() << ": "
                               << owner->second.toStdString() << " and " << text.toStdString();
        }
        delete dialogs.front();
    }
}

INSTANTIATE_TEST_SUITE_P(All, InLanguage, ::testing::Values("", "de", "fr", "es", "zh_CN"));

class InALongerLanguage : public KirtoWindowFixture {
  protected:
    InALongerLanguage() { QCoreApplication::installTranslator(&translator_); }
    ~InALongerLanguage() override { QCoreApplication::removeTranslator(&translator_); }

  private:
    LongWords translator_;
};

TEST_F(InALongerLanguage, NothingInThePanelsIsCut) {
    Open(BRect(0, 0, 1199, 899));
    AddFrame();
    window->UpdateDisplay();
    HandleEvents();

    int seen = 0;
    for (const char* panel : {"GlobalView", "PaletteView", "LocalView"}) {
        for (const QWidget* widget : Find<QWidget>(panel).findChildren<QWidget*>()) {
            const bool has_text = qobject_cast<const QLabel*>(widget) ||
                                  qobject_cast<const QAbstractButton*>(widget) ||
                                  qobject_cast<const QComboBox*>(widget);
            const bool may_be_cut = widget->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
            if (!has_text || may_be_cut || !widget->isVisible()) continue;
            EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
                << panel << ' ' << widget->objectName().toStdString();
            ++seen;
        }
    }
    EXPECT_GT(seen, 20);
}

}  // namespace

}  // namespace kirto::test
