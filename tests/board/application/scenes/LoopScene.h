#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

class Journal;

/// A ball that runs to and fro between two buttons, which start and stop it.
class LoopScene : public QWidget
{
    Q_OBJECT

public:
    explicit LoopScene(Journal& journal);

private:
    QPushButton* addButton(const QString& name, const QPoint& position);
};
