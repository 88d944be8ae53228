#include "PlainPanel.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    PlainPanel panel;
    panel.showFullScreen();
    return QApplication::exec();
}
