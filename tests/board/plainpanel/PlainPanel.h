#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QBoxLayout;
class QLayout;
class QValidator;
QT_END_NAMESPACE

/// The rows of the settings example, made of Qt's own widgets alone, to compare what they cost.
class PlainPanel : public QWidget
{
    Q_OBJECT

public:
    PlainPanel();

private:
    QLayout* makeHeader();
    QWidget* makeHeating();
    QWidget* makeNetwork();
    QWidget* makeDisplay();
    QWidget* makeUpdate();
};
