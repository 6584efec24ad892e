#pragma once

#include <QLabel>
#include <QWidget>

#include "kit/message.h"
#include "kit/messenger.h"
#include "resources/qt/view_arrangement.h"

namespace kirto {

// Brings archived views to life as widgets of the desktop's own look. A view's name becomes the
// object name, a label the accessible name; controls send their message to the target when the
// user changes them. A class that is not known becomes a plain view with its children. GUI thread.
class ViewFactory {
  public:
    explicit ViewFactory(BMessenger target) : target_(std::move(target)) {}

    // Makes the archive's "_views" children of the parent and lays them out.
    void MakeChildren(const BMessage& archive, QWidget& parent);

  private:
    PlacedView MakeView(const BMessage& archive, QWidget& parent);
    template <typename Button>
    QWidget* MakeButton(const BMessage& archive, QWidget& parent);
    QWidget* MakeTabView(const BMessage& archive, QWidget& parent);
    QWidget* MakeBox(const BMessage& archive, QWidget& parent);
    QWidget* MakeTextControl(const BMessage& archive, QWidget& parent);
    QWidget* MakeStringView(const BMessage& archive, QWidget& parent);
    template <typename View>
    QWidget* MakePlainView(const BMessage& archive, QWidget& parent);

    BMessenger target_;
};

}  // namespace kirto
