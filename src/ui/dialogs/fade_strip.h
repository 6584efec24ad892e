#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "animation/animation.h"
#include "base/types.h"

namespace kirto {

// Shows a fade as a strip of pictures, from its first frame to its last, on the chosen color; that
// color alone while there is nothing to fade. Looks at the choice each time it is painted. GUI
// thread.
class FadeStrip : public QWidget {
  public:
    struct Choice {
        uint32 command = 0;  // kFadeToColor and so on
        int32 count = 0;     // of the new frames
        uint32 color = 0;    // red, green, blue from the top byte on
        bool operator==(const Choice&) const = default;
    };

    FadeStrip(const char* name, std::function<Choice()> choice, QWidget* parent);

    // Whose current frame is to be faded; null for none.
    void SetAnimation(std::shared_ptr<const Animation> animation);
    // The pictures that are shown, evenly chosen among those of the fade.
    const std::vector<QImage>& Images();

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void Make(const Choice& choice);

    const std::function<Choice()> choice_;
    std::shared_ptr<const Animation> animation_;
    std::optional<Choice> made_;  // what the images are of; empty: they are to be made
    std::vector<QImage> images_;
};

}  // namespace kirto
