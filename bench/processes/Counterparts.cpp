#include "Widgets.h"

#include "PlainPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace bench {

namespace {

template <typename Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

QWidget* makeBox(QWidget* parent)
{
    auto* frame = new QFrame(parent);
    frame->setFrameShape(QFrame::Box);
    return frame;
}

template <typename Widget>
QWidget* makeWithText(QWidget* parent)
{
    return new Widget(QStringLiteral("label"), parent);
}

} // namespace

QVector<Maker> makers()
{
    return {makeBox,         make<QPushButton>, make<QProgressBar>,      make<QScrollBar>,
            make<QLineEdit>, make<QLineEdit>,   makeWithText<QCheckBox>, makeWithText<QLabel>,
            make<QToolBar>};
}

/// By hand, of a model and a view.
QWidget* makeBrowser(const QString& directory)
{
    auto* browser = new QWidget;
    auto* roots = new QComboBox;
    roots->addItem(directory);
    auto* view = new QListView;
    view->setWrapping(true);
    view->setResizeMode(QListView::Adjust);
    auto* model = new QFileSystemModel(browser);
    view->setModel(model);
    view->setRootIndex(model->setRootPath(directory));
    auto* column = new QVBoxLayout(browser);
    column->addWidget(roots);
    column->addWidget(view);
    return browser;
}

QWidget* makeFileDialog(const QString& directory)
{
    auto* dialog = new QFileDialog(nullptr, QString(), directory);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setViewMode(QFileDialog::List);
    return dialog;
}

QWidget* makeSettings()
{
    return new PlainPanel;
}

QWidget* makeIconButton(const QString&, QWidget* parent)
{
    return new QPushButton(parent);
}

} // namespace bench
