#pragma once

#include <QTextBrowser>
#include <functional>

namespace kirto {

// Shows Markdown pages with their pictures, which become no wider than the page. Follows links
// between the pages, also to a heading; addresses of the web go to the desktop. GUI thread.
class GuidePage : public QTextBrowser {
  public:
    explicit GuidePage(QWidget* parent);

    // Called with the path of a page that a link leads to and that is not there. What was shown
    // stays.
    void WhenMissing(std::function<void(const QString& path)> missing);
    QVariant loadResource(int type, const QUrl& name) override;

  protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    // The name that links have for a heading, as the pages' hosts make it: small letters, dashes
    // for spaces.
    static QString AnchorOf(const QString& heading);
    void ScrollToHeading(const QString& anchor);
    int PictureRoom() const;

    std::function<void(const QString& path)> missing_;
    int laid_out_for_ = 0;  // the room for pictures, in pixels, when they were loaded
};

}  // namespace kirto
