#pragma once

#include <QWidget>

/// Fields with a number pad at every edge and corner of the screen, and in its middle.
class EdgesScene : public QWidget
{
    Q_OBJECT

public:
    EdgesScene();
};
