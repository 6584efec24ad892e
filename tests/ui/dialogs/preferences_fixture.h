// The preferences window with its surroundings: resources, and an application that is recorded.
#pragma once

#include <QCheckBox>
#include <QCoreApplication>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "document/command_codes.h"
#include "support/fake_roster.h"
#include "support/source_folder.h"
#include "support/window_resources.h"
#include "ui/dialogs/preferences_window.h"

namespace kirto::test {

inline const std::string kPreferencesLayout = SourceFolder() / "resources/preferences_window.toml";

// The settings as a message, for comparisons.
inline BMessage Fields(const Prefs& prefs) {
    BMessage fields;
    prefs.AddTo(&fields);
    return fields;
}

class PreferencesFixture : public ::testing::Test {
  protected:
    struct NoPanels : FilePanelSource {
        FilePanel* GetPanel(FilePanelKind) override { return nullptr; }
    };

    ~PreferencesFixture() override { delete window; }

    void Open() { Open(ArchiveOfLayout(kPreferencesLayout)); }
    // Opens the window for the settings as they stand in prefs, with this layout.
    void Open(const BMessage& layout) {
        delete window;
        resources = std::make_unique<WindowResources>(
            std::vector<WindowResources::Window>{{"PreferencesWindow", layout}});
        const Editor editor{document.document, BMessenger(application), panels, roster,
                            &resources->Handler()};
        window = new PreferencesWindow(editor, prefs, nullptr, [] { return BRect(1, 2, 30, 40); });
        window->Show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    }

    template <typename Control>
    Control* Find(const char* name) {
        auto* control = dynamic_cast<Control*>(window->findChild<QWidget*>(name));
        if (!control) ADD_FAILURE() << "no " << name;
        return control;
    }
    TextControl* Field(const char* name) { return Find<TextControl>(name); }
    std::string TextOf(const char* name) { return Field(name)->text().toStdString(); }

    // Until everything that was posted is handled; deletes a window that has quit.
    static void HandleEvents() {
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    // Brings the control's tab to the front.
    void ShowTabOf(QWidget* control) {
        for (QWidget* view = control; view; view = view->parentWidget()) {
            window->ShowTab(view->objectName().toUtf8().constData());
        }
    }
    // Types over the field's text without leaving it.
    void Type(const char* name, const std::string& text) {
        TextControl* field = Field(name);
        ShowTabOf(field);
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        field->insert(QString::fromStdString(text));
    }
    // Types over the field's text and leaves it.
    void Enter(const char* name, const std::string& text) {
        Type(name, text);
        Field(name)->clearFocus();
        HandleEvents();
    }
    void Click(const char* name) {
        auto* button = Find<QAbstractButton>(name);
        ShowTabOf(button);
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
        HandleEvents();
    }
    // The settings that the application was sent; built-in ones if it was sent none.
    Prefs Saved() {
        Prefs saved{Prefs::BuiltIn{}};
        for (const BMessage& message : application->Messages()) {
            if (message.what == kStoreSettings) saved.TakeFrom(message);
        }
        return saved;
    }

    DocumentFixture document;
    Prefs prefs{Prefs::BuiltIn{}};
    std::shared_ptr<PortRecorder> application = std::make_shared<PortRecorder>();
    NoPanels panels;
    FakeRoster roster;
    AlertRecorder alerts;
    std::unique_ptr<WindowResources> resources;
    QPointer<PreferencesWindow> window;
};

}  // namespace kirto::test
