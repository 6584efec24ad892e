// File panels shown over a window, with a folder of files and a recorded application.
#pragma once

#include <QPointer>
#include <QPushButton>
#include <QWidget>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "app/file_panel.h"
#include "support/fake_roster.h"
#include "support/test_support.h"
#include "ui/file_panels/file_dialog.h"
#include "ui/file_panels/file_dialog_panel.h"

class QLineEdit;

namespace kirto::test {

// Knows writers of several kinds besides the fake ones.
struct WriterRoster : FakeRoster {
    static constexpr translator_id kPng = 3;
    static constexpr translator_id kTwoFormats = 4;
    static constexpr translator_id kGone = 5;  // listed, but nobody knows its name

    bool no_translators = false;

    std::vector<translator_id> Translators() const override;
    bool GetTranslatorInfo(translator_id translator, std::string* name) const override;
    std::vector<translation_format> OutputFormats(translator_id translator) const override;
    BMessage DefaultSettings(translator_id translator) const override;
};

struct FilePanelTest : ::testing::Test {
    // Makes the panel, and shows it in the folder.
    void Make(FilePanelKind kind);
    void Show(FilePanelKind kind);
    void AddFile(const std::string& name, const std::string& content = {}) const;

    FileDialog* Dialog() const;
    QLineEdit* NameField() const;
    QPushButton* AcceptButton() const;
    // The names that the dialog lists, sorted, joined by spaces; waits until they are as many.
    std::string Offered(int count) const;
    // Types the name and presses the default button.
    void Choose(const QString& name) const;

    // The message of that number that the application was sent.
    BMessage Sent(size_t number) const;
    static std::vector<std::string> Refs(const BMessage& message);
    // True for the panel's own notice that it closed.
    bool IsClosing(const BMessage& message) const;

    AlertRecorder alerts;
    TemporaryFolder folder;
    std::shared_ptr<PortRecorder> application = std::make_shared<PortRecorder>();
    WriterRoster roster;
    std::unique_ptr<QWidget> parent = std::make_unique<QWidget>();
    std::unique_ptr<FilePanel> panel;
    int preferences_shown = 0;
};

}  // namespace kirto::test
