#include "scenes/SwitchesScene.h"

#include "Journal.h"

#include <Switch.h>

#include <QVBoxLayout>

SwitchesScene::SwitchesScene(Journal& journal)
{
    auto* plain = new Switch(QStringLiteral("Plain"));
    auto* coloured = new Switch(QStringLiteral("Coloured"), QColor(200, 80, 30));
    auto* disabled = new Switch(QStringLiteral("Disabled"));
    disabled->setEnabled(false);

    auto* column = new QVBoxLayout(this);
    for (Switch* each : {plain, coloured, disabled}) {
        const QString name = each->text().toLower();
        each->setObjectName(name);
        connect(each, &Switch::toggled, this, [&journal, name](bool on) {
            journal.record(name + (on ? QStringLiteral(" on") : QStringLiteral(" off")));
        });
        column->addWidget(each);
    }
    column->addStretch();
}
