#include "AllClasses.h"

#include <Switch.h>
#include <ui/KeypadLineEdit.h>

#include <QVBoxLayout>

/// A part of an application that is loaded when it is needed: a form with every class.
extern "C" Q_DECL_EXPORT QWidget* newLoadedForm(QWidget* parent)
{
    auto* form = new QWidget(parent);
    auto* layout = new QVBoxLayout(form);
    for (const test::ClassInfo& info : test::allClasses()) {
        if (QWidget* widget = info.createTypicalWidget(form))
            layout->addWidget(widget);
    }
    auto* toggle = form->findChild<Switch*>();
    toggle->setThumbPosAnimation(toggle->trackBrushAnimation());
    form->findChild<ui::KeypadLineEdit*>()->showKeypad();
    return form;
}
