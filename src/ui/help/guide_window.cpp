#include "ui/help/guide_window.h"

#include <QApplication>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QUrl>
#include <QVBoxLayout>

#include "kit/qt/ui_text.h"
#include "ui/help/guide_folder.h"
#include "ui/help/guide_page.h"

namespace kirto {

namespace {

constexpr int kGuideWidthInLetters = 110;
constexpr int kGuideHeightInLines = 40;

QPushButton* MakeButton(const char* name, const QString& label, const QString& tip,
                        QWidget* parent) {
    auto* button = new QPushButton(label, parent);
    button->setObjectName(name);
    button->setToolTip(tip);
    return button;
}

}  // namespace

GuideWindow::GuideWindow(const QString& folder, QWidget* parent)
    : QWidget(parent, Qt::Window), page_(new GuidePage(this)), note_(new QLabel(this)) {
    setObjectName("GuideWindow");
    setWindowTitle(UiText::tr("Kirto - Guide"));
    setAttribute(Qt::WA_DeleteOnClose);
    note_->setObjectName("GuideNote");
    note_->setWordWrap(true);
    note_->setContentsMargins(8, 4, 8, 4);
    note_->hide();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(MakeControls(folder));
    layout->addWidget(page_, 1);
    layout->addWidget(note_);
    const QSize wanted(fontMetrics().averageCharWidth() * kGuideWidthInLetters,
                       fontMetrics().lineSpacing() * kGuideHeightInLines);
    resize(wanted.boundedTo(screen()->availableSize()));
    // The page is laid out once, as wide as it will be shown.
    layout->activate();

    page_->WhenMissing([this](const QString& path) {
        note_->setText(UiText::tr("The page \"%1\" is not part of the installed guide.")
                           .arg(QFileInfo(path).fileName()));
        note_->show();
    });
    connect(page_, &QTextBrowser::sourceChanged, note_, &QWidget::hide);
    if (folder.isEmpty()) {
        page_->setPlainText(UiText::tr("The guide is not installed with this program."));
    } else {
        page_->setSource(QUrl::fromLocalFile(folder + "/README.md"));
    }
    page_->setFocus();
}

QWidget* GuideWindow::MakeControls(const QString& folder) {
    auto* controls = new QWidget(this);
    auto* contents =
        MakeButton("Contents", UiText::tr("&Contents"), UiText::tr("The first page"), controls);
    auto* back = MakeButton("Back", UiText::tr("&Back"),
                            UiText::tr("The page before this one (Alt+Left)"), controls);
    auto* forward = MakeButton("Forward", UiText::tr("&Forward"),
                               UiText::tr("The page after it (Alt+Right)"), controls);
    auto* label = new QLabel(UiText::tr("F&ind:"), controls);
    wanted_ = new QLineEdit(controls);
    wanted_->setObjectName("Find");
    wanted_->setAccessibleName(UiText::tr("Find on this page"));
    wanted_->setToolTip(UiText::tr("Finds a text on this page; Return finds the next place"));
    wanted_->setClearButtonEnabled(true);
    label->setBuddy(wanted_);

    auto* layout = new QHBoxLayout(controls);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(8);
    for (QWidget* each : {static_cast<QWidget*>(contents), static_cast<QWidget*>(back),
                          static_cast<QWidget*>(forward)})
        layout->addWidget(each);
    layout->addStretch();
    layout->addWidget(label);
    layout->addWidget(wanted_);

    back->setEnabled(false);
    forward->setEnabled(false);
    contents->setEnabled(!folder.isEmpty());
    connect(contents, &QPushButton::clicked, page_,
            [this, folder] { page_->setSource(QUrl::fromLocalFile(folder + "/README.md")); });
    connect(back, &QPushButton::clicked, page_, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, page_, &QTextBrowser::forward);
    connect(page_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    connect(wanted_, &QLineEdit::returnPressed, this, [this] { FindNext(); });
    return controls;
}

void GuideWindow::FindNext() {
    const QString text = wanted_->text();
    if (text.isEmpty()) return;
    bool found = page_->find(text);
    if (!found) {
        page_->moveCursor(QTextCursor::Start);
        found = page_->find(text);
    }
    note_->setText(UiText::tr("\"%1\" is not on this page.").arg(text));
    note_->setVisible(!found);
}

void GuideWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else if (event->matches(QKeySequence::Find)) {
        wanted_->setFocus();
        wanted_->selectAll();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void ShowGuide(QWidget* parent) {
    auto* window = parent->findChild<QWidget*>("GuideWindow", Qt::FindDirectChildrenOnly);
    if (!window) window = new GuideWindow(GuideFolder(QApplication::applicationDirPath()), parent);
    window->show();
    window->raise();
    window->activateWindow();
}

}  // namespace kirto
