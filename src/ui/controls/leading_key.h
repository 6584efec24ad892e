#pragma once

#include <QLineEdit>
#include <QObject>

namespace kirto {

// Makes a character that has no meaning in a field lead to another one, as Tab does, with what is
// there selected: so that values that belong together can be typed in one go. Lives as long as the
// field. GUI thread.
class LeadingKey : public QObject {
  public:
    // The other field, or spin box, lives as long as this one.
    LeadingKey(QLineEdit* field, QChar character, QWidget* next);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    const QChar character_;
    QWidget* const next_;
};

}  // namespace kirto
