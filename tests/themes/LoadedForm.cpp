#include <BreadCrumbsWidget.h>
#include <Switch.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileBrowserWidget.h>
#include <ui/KeypadLineEdit.h>
#include <ui/ScrollIndicatorBar.h>

#include <QVBoxLayout>

/// A part of an application that is loaded when it is needed: a form with every widget.
extern "C" Q_DECL_EXPORT QWidget* newLoadedForm(QWidget* parent)
{
    auto* form = new QWidget(parent);
    auto* layout = new QVBoxLayout(form);
    auto* toggle = new Switch(QStringLiteral("label"));
    toggle->setThumbPosAnimation(toggle->trackBrushAnimation());
    auto* crumbs = new BreadCrumbsWidget(nullptr);
    crumbs->changeDir(QStringLiteral("/a/b"));
    for (QWidget* widget : std::initializer_list<QWidget*>{
             toggle, crumbs, new ui::CRoundedFrame, new ui::CGridArrangedButton,
             new ui::CBatteryStatusWidget, new ui::widgets::ScrollIndicatorBar(Qt::Horizontal),
             new ui::FileBrowserWidget})
        layout->addWidget(widget);
    auto* field = new ui::KeypadLineEdit(nullptr, ui::keyboard::KeyboardType::Integer);
    layout->addWidget(field);
    field->showKeypad();
    return form;
}
