#pragma once

#include <QListWidget>
#include <string>

#include "kit/messenger.h"
#include "kit/translator_roster.h"
#include "ui/controls/latest_work.h"
#include "ui/controls/recent_list.h"

namespace kirto {

// The recent animations with their pictures and dates, which a click or Enter opens. Files that are
// gone can't be chosen. Pictures are read by a thread of its own while this is shown. GUI thread.
class RecentView : public QListWidget {
  public:
    // list and roster outlive this. application: is told which file to open.
    RecentView(RecentList& list, BTranslatorRoster& roster, const BMessenger& application,
               QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void Fill();
    void ReadPictures();
    void ShowPicture(const std::string& path, const QImage& picture, bool exists);
    int RowsShown() const;

    RecentList& list_;
    BTranslatorRoster& roster_;
    LatestWork pictures_;
};

}  // namespace kirto
