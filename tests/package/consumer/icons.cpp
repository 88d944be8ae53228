#include <QGuiApplication>
#include <QIcon>

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    Q_INIT_RESOURCE(widgets);
    for (const char* name : {":/icons/tile_view.svg", ":/icons/list_view.svg"}) {
        if (QIcon(QString::fromLatin1(name)).pixmap(32).isNull()) {
            qWarning("%s cannot be drawn: is the SVG plugin installed?", name);
            return 1;
        }
    }
    return 0;
}
