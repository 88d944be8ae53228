#pragma once

#include <QWidget>

/// The settings example, with updates to choose from.
class SettingsScene : public QWidget
{
    Q_OBJECT

public:
    SettingsScene();
};
