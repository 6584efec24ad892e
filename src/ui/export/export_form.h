#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "app/export/fit_under.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QSlider;
class QSpinBox;

namespace kirto {

// What an export is to be like.
struct ExportWish {
    ExportSettings settings;
    std::optional<int32> kilobytes;  // that the file may have; thousands of bytes

    bool operator==(const ExportWish&) const = default;
};

// The choices of an export as fields; those that the format does not know are not shown. GUI
// thread.
class ExportForm : public QWidget {
  public:
    explicit ExportForm(QWidget* parent = nullptr);

    ExportWish Wish() const;
    void ShowWish(const ExportWish& wish);
    // Called when the user has changed a choice.
    void WhenChanged(std::function<void()> changed) { changed_ = std::move(changed); }
    // Called when the user has chosen another format, before WhenChanged.
    void WhenFormatChanged(std::function<void(ExportFormat format)> changed) {
        format_changed_ = std::move(changed);
    }

  private:
    QSpinBox* AddNumber(const char* name, const QString& label, int first, int last,
                        const QString& unit = {});
    QSlider* AddSlider(const char* name, const QString& label, int last);
    void AddField(const char* name, const QString& label, QWidget* field);
    void ShowFields();
    void Change();

    QFormLayout* form_;
    QComboBox* format_;
    QSpinBox* colors_;
    QCheckBox* one_table_;
    QComboBox* dither_;
    QSlider* loss_;
    QCheckBox* lossless_;
    QSlider* quality_;
    QSpinBox* scale_;
    QSpinBox* every_;
    QCheckBox* fits_;
    QSpinBox* kilobytes_;
    std::function<void()> changed_;
    std::function<void(ExportFormat format)> format_changed_;
    rgb_color matte_{255, 255, 255, 255};
    bool showing_ = false;
};

}  // namespace kirto
