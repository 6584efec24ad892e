// A panel's surroundings: a document, the copy of it that is shown, and a recorded window.
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "document/command_codes.h"
#include "resources/qt/text_control.h"
#include "support/test_support.h"
#include "ui/controls/shown_document.h"

namespace kirto::test {

class ViewFixture : public ::testing::Test {
  protected:
    // Takes the document as it is now.
    void Take() { shown.Take(document); }

    // The command that the control sends when the user changes it.
    std::string CommandOf(QAbstractButton& button) {
        button.setEnabled(true);
        button.click();
        return port->TakeTranscript();
    }
    std::string CommandOf(TextControl& field) {
        field.setModified(true);
        field.Commit();
        return port->TakeTranscript();
    }
    // The items with their commands: "label awfn".
    std::vector<std::string> ItemsOf(QComboBox& menu) {
        std::vector<std::string> items;
        for (int item = 0; item < menu.count(); ++item) {
            emit menu.activated(item);
            items.push_back(menu.itemText(item).toStdString() + " " + port->TakeTranscript());
        }
        return items;
    }

    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    ShownDocument shown;
    std::shared_ptr<PortRecorder> port = std::make_shared<PortRecorder>();
    BMessenger window{port};
};

}  // namespace kirto::test
