// The measure of all figures of the window: an empty QLabel of the size of the window measured.
//
//   bare WIDTH HEIGHT    in pixels

#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList size = QApplication::arguments();
    QLabel label;
    label.setFixedSize(size.value(1).toInt(), size.value(2).toInt());
    label.show();
    return QApplication::exec();
}
