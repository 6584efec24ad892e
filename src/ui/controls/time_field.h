#pragma once

#include <QWidget>
#include <functional>

class QDoubleSpinBox;
class QSlider;

namespace kirto {

// A moment of something that lasts, by a slider and by a number of seconds beside it. GUI thread.
class TimeField : public QWidget {
  public:
    // name: the object's; label: for those who can't see it.
    TimeField(const char* name, const QString& label, QWidget* parent);

    // From 0 to last, in seconds.
    void SetRange(double last, double value);
    // Called whenever the moment has changed.
    void OnChange(std::function<void()> changed) { changed_ = std::move(changed); }

    double Seconds() const;
    void SetSeconds(double seconds);
    // Whether it is the last moment there is.
    bool IsLast() const;

  private:
    void ShowOnSlider();

    QSlider* const slider_;
    QDoubleSpinBox* const number_;
    std::function<void()> changed_;
};

}  // namespace kirto
