#include "SettingsPanel.h"
#include "Theme.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QScreen>

namespace {

constexpr QSize deviceScreen(800, 480);

/// A device's screen is all the panel's, whichever way it stands; on a desktop it is a window.
void showPanel(QWidget& panel)
{
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const QSize upright = deviceScreen.transposed();
    if (screen == screen.boundedTo(deviceScreen) || screen == screen.boundedTo(upright)) {
        panel.showFullScreen();
    } else {
        panel.resize(deviceScreen);
        panel.show();
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption dark(QStringLiteral("dark"),
                                  QStringLiteral("Begin with the dark theme."));
    const QCommandLineOption updates(QStringLiteral("updates"),
                                     QStringLiteral("Look for updates in <folder>."),
                                     QStringLiteral("folder"), QDir::homePath());
    parser.addOptions({dark, updates});
    parser.process(application);

    Theme::apply(application, parser.isSet(dark));
    SettingsPanel panel({parser.value(updates)}, parser.isSet(dark));
    QObject::connect(&panel, &SettingsPanel::themeChosen, &application,
                     [&application](bool isDark) { Theme::apply(application, isDark); });
    showPanel(panel);
    return QApplication::exec();
}
