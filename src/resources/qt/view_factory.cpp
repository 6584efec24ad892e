#include "resources/qt/view_factory.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabWidget>

#include "kit/qt/ui_text.h"
#include "resources/qt/bottom_view.h"
#include "resources/qt/text_control.h"
#include "resources/window_archive.h"

namespace kirto {

namespace {

// In the user's language; see layout_texts.h.
QString LabelOf(const BMessage& archive) {
    std::string label;
    archive.FindString(kArchiveLabel, &label);
    return UiText::tr(label.c_str());
}

QString TextOf(const BMessage& archive, const char* field) {
    std::string text;
    archive.FindString(field, &text);
    return QString::fromStdString(text);
}

BRect FrameOf(const BMessage& archive) {
    BRect frame(0, 0, 0, 0);
    archive.FindRect(kArchiveFrame, &frame);
    return frame;
}

// What the user reads on a control. No character of it stands for a key.
QString WithoutShortcut(QString label) {
    return label.replace('&', "&&");
}

}  // namespace

void ViewFactory::MakeChildren(const BMessage& archive, QWidget& parent) {
    std::vector<PlacedView> views;
    BMessage view;
    for (int32 i = 0; archive.FindMessage(kArchiveViews, &view, i) == B_OK; ++i) {
        views.push_back(MakeView(view, parent));
    }
    ArrangeViews(parent, views, FrameOf(archive).Width());
}

PlacedView ViewFactory::MakeView(const BMessage& archive, QWidget& parent) {
    struct Class {
        const char* name;
        QWidget* (ViewFactory::*make)(const BMessage&, QWidget&);
    };
    static constexpr Class kClasses[] = {
        {"BView", &ViewFactory::MakePlainView<QWidget>},
        {"BottomView", &ViewFactory::MakePlainView<BottomView>},
        {"BTabView", &ViewFactory::MakeTabView},
        {"BBox", &ViewFactory::MakeBox},
        {"BStringView", &ViewFactory::MakeStringView},
        {"BTextControl", &ViewFactory::MakeTextControl},
        {"BCheckBox", &ViewFactory::MakeButton<QCheckBox>},
        {"BRadioButton", &ViewFactory::MakeButton<QRadioButton>},
        {"BButton", &ViewFactory::MakeButton<QPushButton>},
    };
    const QString class_name = TextOf(archive, kArchiveClass);
    auto make = &ViewFactory::MakePlainView<QWidget>;
    for (const Class& known : kClasses) {
        if (class_name == known.name) make = known.make;
    }
    QLabel* label = nullptr;
    const QString text = LabelOf(archive);
    if (make == &ViewFactory::MakeTextControl && !text.isEmpty()) {
        label = new QLabel(text, &parent);
        label->setTextFormat(Qt::PlainText);
    }
    QWidget* view = (this->*make)(archive, parent);
    view->setObjectName(TextOf(archive, kArchiveName));
    if (!text.isEmpty()) view->setAccessibleName(text);
    return {FrameOf(archive), view, label};
}

template <typename View>
QWidget* ViewFactory::MakePlainView(const BMessage& archive, QWidget& parent) {
    auto* view = new View(&parent);
    MakeChildren(archive, *view);
    return view;
}

QWidget* ViewFactory::MakeBox(const BMessage& archive, QWidget& parent) {
    auto* box = new QGroupBox(WithoutShortcut(LabelOf(archive)), &parent);
    MakeChildren(archive, *box);
    return box;
}

QWidget* ViewFactory::MakeTabView(const BMessage& archive, QWidget& parent) {
    auto* tabs = new QTabWidget(&parent);
    // The window is as wide as its tabs.
    tabs->setUsesScrollButtons(false);
    tabs->setAccessibleName(UiText::tr("Pages"));
    BMessage page, container;
    for (int32 i = 0; archive.FindMessage(kArchiveTabViews, &page, i) == B_OK; ++i) {
        BMessage tab;
        archive.FindMessage(kArchiveTabs, &tab, i);
        QWidget* const shown = MakeView(page, *tabs).view;
        const QString label = LabelOf(tab);
        tabs->addTab(
            shown,
            WithoutShortcut(label.isEmpty() ? UiText::tr(shown->objectName().toUtf8()) : label));
    }
    // The view that the shown tab's view lies in is part of the widget already.
    if (archive.FindMessage(kArchiveViews, &container) == B_OK) {
        auto* stack = tabs->findChild<QStackedWidget*>(QString(), Qt::FindDirectChildrenOnly);
        stack->setObjectName(TextOf(container, kArchiveName));
    }
    return tabs;
}

QWidget* ViewFactory::MakeStringView(const BMessage& archive, QWidget& parent) {
    auto* label = new QLabel(LabelOf(archive), &parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QWidget* ViewFactory::MakeTextControl(const BMessage& archive, QWidget& parent) {
    BMessage command;
    const bool sends = archive.FindMessage(kArchiveMessage, &command) == B_OK;
    const std::string name = TextOf(archive, kArchiveName).toStdString();
    return new TextControl(name.c_str(), command, sends ? target_ : BMessenger(), &parent);
}

template <typename Button>
QWidget* ViewFactory::MakeButton(const BMessage& archive, QWidget& parent) {
    auto* button = new Button(WithoutShortcut(LabelOf(archive)), &parent);
    BMessage command;
    if (archive.FindMessage(kArchiveMessage, &command) == B_OK) {
        QObject::connect(button, &QAbstractButton::clicked, button,
                         [target = target_, command] { target.SendMessage(command); });
    }
    return button;
}

}  // namespace kirto
