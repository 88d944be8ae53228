#pragma once

#include "GalleryPage.h"

class Switch;
QT_BEGIN_NAMESPACE
class QButtonGroup;
class QLayout;
QT_END_NAMESPACE

/// The switch in all its states, in colours and times of the application's choice, and in a group.
class SwitchPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit SwitchPage(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    Switch* addSwitch(Switch* control, const QString& name);
    QLayout* makePlain();
    QLayout* makeLabelled();
    QLayout* makeCustom();
    QLayout* makeGroup();
    void followPalette();
};
