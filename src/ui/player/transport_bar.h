#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QToolButton>
#include <QWidget>
#include <functional>

#include "ui/player/player.h"
#include "ui/player/transport_icon.h"

namespace kirto {

// The buttons that start and stop the player and choose how it plays, and what it plays now. GUI
// thread.
class TransportBar : public QWidget {
  public:
    // The player outlives the bar.
    explicit TransportBar(Player& player, QWidget* parent = nullptr);

    // Shows the player's state. frames: of the animation.
    void UpdateDisplay(int32 frames);

  private:
    QLayout* MakeButtons();
    QLayout* MakeChoices();
    QToolButton* MakeButton(const char* name, TransportSymbol symbol, const QString& label,
                            const QString& key, const std::function<void()>& act);
    QComboBox* MakeLoopMenu();
    QDoubleSpinBox* MakeSpeedField();

    Player& player_;
    QToolButton* play_ = nullptr;
    QLabel* time_ = nullptr;
    bool shows_pause_ = false;
};

}  // namespace kirto
