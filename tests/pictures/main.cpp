// kirto-pictures: draws the editor's windows into PNG files, for the documents and for looking at.
// Runs offscreen unless told otherwise; the toolkit's QT_SCALE_FACTOR gives sharper pictures.
#include <CLI/CLI.hpp>
#include <QApplication>
#include <QPalette>
#include <cstdio>
#include <string>

#include "document_pictures.h"
#include "driving/driven_editor.h"
#include "driving/long_words.h"
#include "picture_folder.h"
#include "state_pictures.h"
#include "tour.h"
#include "ui/shell/editor_style.h"

namespace {

struct Wishes {
    std::string folder;
    std::string animation;
    std::string colors = "desktop";
    double font = 1.0;  // times the desktop's size
    bool right_to_left = false;
    bool long_words = false;
    bool states = false;
    std::string compare;
    std::string approve;
    std::string tour;
};

QPalette DarkColors() {
    QPalette dark(QColor(49, 54, 59), QColor(42, 46, 50));
    dark.setColor(QPalette::Base, QColor(27, 30, 32));
    dark.setColor(QPalette::Highlight, QColor(61, 174, 233));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

QPalette ContrastColors() {
    QPalette contrast(Qt::black, Qt::black);
    contrast.setColor(QPalette::WindowText, Qt::white);
    contrast.setColor(QPalette::Text, Qt::white);
    contrast.setColor(QPalette::ButtonText, Qt::white);
    contrast.setColor(QPalette::Base, Qt::black);
    contrast.setColor(QPalette::Highlight, Qt::yellow);
    contrast.setColor(QPalette::HighlightedText, Qt::black);
    contrast.setColor(QPalette::Link, Qt::yellow);
    return contrast;
}

int Parse(int argc, char** argv, Wishes* wishes) {
    CLI::App app("Draws the editor's windows into PNG files.", "kirto-pictures");
    app.add_option("--colors", wishes->colors, "Whose colors")
        ->check(CLI::IsMember({"desktop", "dark", "contrast"}));
    app.add_option("--font", wishes->font, "How large letters are, times the desktop's size");
    app.add_flag("--right-to-left", wishes->right_to_left, "Mirror the windows");
    app.add_flag("--long-words", wishes->long_words, "In a language of long words");
    app.add_flag("--states", wishes->states, "Before, draw the main window's states");
    app.add_option("--compare", wishes->compare, "Tell what differs from these fingerprints");
    app.add_option("--approve", wishes->approve, "Write the fingerprints");
    app.add_option("--tour", wishes->tour,
                   "Write a walk through the editor to this GIF file alone");
    app.add_option("folder", wishes->folder, "Where the pictures go")->required();
    app.add_option("animation", wishes->animation, "What the windows show")->required();
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : 2;
    }
    return -1;
}

void Dress(const Wishes& wishes) {
    const bool desktop = wishes.colors == "desktop";
    const QString style = desktop ? QApplication::style()->name() : "fusion";
    QApplication::setStyle(new kirto::EditorStyle(style));
    if (!desktop) {
        QApplication::setPalette(wishes.colors == "dark" ? DarkColors() : ContrastColors());
    }
    QFont font = QApplication::font();
    font.setPointSizeF(wishes.font * font.pointSizeF());
    QApplication::setFont(font);
    if (wishes.right_to_left) QApplication::setLayoutDirection(Qt::RightToLeft);
    if (wishes.long_words) QApplication::installTranslator(new kirto::LongWords);
    // A cursor that blinks is there in some pictures only.
    QApplication::setCursorFlashTime(0);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen").toLocal8Bit());
    QApplication application(argc, argv);
    Wishes wishes;
    if (const int status = Parse(argc, argv, &wishes); status >= 0) return status;
    Dress(wishes);
    kirto::PictureFolder folder(wishes.folder);
    kirto::DrivenEditor editor;
    if (!wishes.tour.empty())
        return kirto::Tour(editor).Make(wishes.animation, wishes.tour) ? 0 : 1;
    if (wishes.states) kirto::StatePictures(editor, folder).DrawAll(wishes.animation);
    kirto::DocumentPictures(editor, folder).DrawAll(wishes.animation);
    if (!wishes.approve.empty() && !folder.WriteFingerprints(wishes.approve)) {
        std::fprintf(stderr, "kirto-pictures: %s can't be written.\n", wishes.approve.c_str());
        return 1;
    }
    const int differences = wishes.compare.empty() ? 0 : folder.CountDifferences(wishes.compare);
    return folder.Failures() == 0 && differences == 0 ? 0 : 1;
}
