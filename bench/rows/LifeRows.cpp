#include "Rows.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>
#include <Switch.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileBrowserWidget.h>
#include <ui/LineEdit.h>
#include <ui/ScrollIndicatorBar.h>

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QToolBar>

namespace bench {

namespace {

/// Made, shown with its first paint, and destroyed.
template <typename Widget>
Work live()
{
    return [] {
        Widget widget(nullptr);
        widget.show();
        QCoreApplication::sendPostedEvents();
    };
}

template <typename Ours, typename Stock>
Row lifeRow(const char* ours, const char* stock)
{
    return {QStringLiteral("one %1: made, shown, destroyed").arg(QLatin1String(ours)),
            live<Ours>,
            QLatin1String(stock),
            live<Stock>,
            {}};
}

} // namespace

QVector<Row> lifeRows()
{
    return {
        lifeRow<ui::CRoundedFrame, QFrame>("CRoundedFrame", "QFrame"),
        lifeRow<ui::CGridArrangedButton, QPushButton>("CGridArrangedButton", "QPushButton"),
        lifeRow<ui::CBatteryStatusWidget, QProgressBar>("CBatteryStatusWidget", "QProgressBar"),
        lifeRow<ui::widgets::ScrollIndicatorBar, QScrollBar>("ScrollIndicatorBar", "QScrollBar"),
        lifeRow<ui::LineEdit, QLineEdit>("LineEdit", "QLineEdit"),
        lifeRow<Switch, QCheckBox>("Switch", "QCheckBox"),
        lifeRow<ClickableLabel, QLabel>("ClickableLabel", "QLabel"),
        lifeRow<BreadCrumbsWidget, QToolBar>("BreadCrumbsWidget", "QToolBar"),
        lifeRow<ui::FileBrowserWidget, QFileDialog>("FileBrowserWidget", "QFileDialog"),
    };
}

} // namespace bench
