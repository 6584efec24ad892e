#pragma once

#include <QColor>
#include <QWidget>
#include <array>

#include "base/types.h"

class QGridLayout;
class QSlider;
class QSpinBox;

// Three sliders, each with a field for its number, that mix a color of red, green and blue. While
// one of them is moved, or a color is picked from the screen, the view "Preview" of the same window
// follows. Black at first. GUI thread.
class RTColorControl : public QWidget {
  public:
    RTColorControl(const char* name, QWidget* parent);

    // The color: red in bits 24 to 31, green in bits 16 to 23, blue in bits 8 to 15, the rest 0.
    int32 Value() const { return value_; }
    QColor Color() const;
    // Repaints the preview with the new color. Bits 0 to 7 are ignored.
    void SetValue(int32 value);

  private:
    struct Channel {
        QSlider* slider = nullptr;
        QSpinBox* field = nullptr;
        int shift = 0;  // of the channel's bits in the value
    };

    Channel MakeChannel(const char* name, int shift, QGridLayout& layout);
    // A channel was moved to a level from 0 to 255.
    void SetLevel(int shift, int level);

    std::array<Channel, 3> channels_;
    int32 value_ = 0;
};
