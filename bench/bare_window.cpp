// The least that a program with a window can be: what the editor's start-up is measured against.
// With an argument the window shows it as a label; without one there is nothing in it at all, not
// even a letter, and the toolkit never looks for the machine's fonts.
#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QLabel window;
    if (argc > 1) window.setText(argv[1]);
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
