// The measure of all figures of the window: an empty QLabel of the size of the presentation.

#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QLabel label;
    label.setFixedSize(635, 389);
    label.show();
    return QApplication::exec();
}
