#pragma once

#include <QDialog>
#include <functional>
#include <string>

#include "kit/message.h"

class QFormLayout;

namespace kirto {

// The window "Translator Settings": a form of an image writer's settings, one row per named value.
// Each change takes effect at once. Stays in front of its parent, and deletes itself when it is
// closed. GUI thread.
class TranslatorSettingsWindow : public QDialog {
  public:
    // settings: whole numbers, switches, real numbers and texts; other values stay as they are.
    // changed: called with all the settings after each change.
    TranslatorSettingsWindow(BMessage settings, std::function<void(const BMessage&)> changed,
                             QWidget* parent);

  private:
    // The row for the field of that name and type.
    void AddRow(const std::string& name, type_code type, QFormLayout& form);
    QWidget* MakeNumberField(const std::string& name);
    QWidget* MakeSwitch(const std::string& name);
    QWidget* MakeFloatField(const std::string& name);
    QWidget* MakeDoubleField(const std::string& name);
    QWidget* MakeTextField(const std::string& name);
    // Replaces the field's value.
    template <typename Add>
    void Change(const std::string& name, Add add);

    BMessage settings_;
    std::function<void(const BMessage&)> changed_;
};

}  // namespace kirto
