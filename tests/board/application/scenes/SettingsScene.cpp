#include "scenes/SettingsScene.h"

#include <SettingsPanel.h>
#include <Theme.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QVBoxLayout>

SettingsScene::SettingsScene()
{
    const QString updates = QStringLiteral("/tmp/updates");
    QDir().mkpath(updates);
    QFile(updates + QStringLiteral("/version-1.5.bin")).open(QIODevice::WriteOnly);

    Theme::apply(*qApp, false);
    auto* panel = new SettingsPanel({updates}, false);
    connect(panel, &SettingsPanel::themeChosen, this, [](bool dark) { Theme::apply(*qApp, dark); });
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(panel);
}
