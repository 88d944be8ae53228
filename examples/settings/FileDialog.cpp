#include "FileDialog.h"

#include <ui/FileBrowserWidget.h>

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QFileInfo>
#include <QPushButton>
#include <QScroller>

namespace {

constexpr int margin = 11; // as the browser's

/// Lists are dragged, as everything else is.
void makeDraggable(const QWidget& browser)
{
    const auto views = browser.findChildren<QAbstractItemView*>();
    for (QAbstractItemView* view : views) {
        view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        QScroller::grabGesture(view->viewport(), QScroller::LeftMouseButtonGesture);
    }
}

} // namespace

//! [FileDialog]
FileDialog::FileDialog(const QStringList& folders, const QStringList& filters, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_browser(new ui::FileBrowserWidget(this))
    , m_open(new QPushButton(tr("Open"), this))
{
    m_browser->setFilters(filters);
    m_browser->setAllowedDirs(folders);
    makeDraggable(*m_browser);
    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName("cancel");
    m_open->setObjectName("open");
    m_open->setEnabled(false);

    connect(m_browser, &ui::FileBrowserWidget::selectionChanged, this, &FileDialog::showSelection);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_open, &QPushButton::clicked, this, [this] {
        Q_EMIT chosen(selectedFile()); // now: once the browser is hidden, its selection is another
        accept();
    });

    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(margin, 0, margin, margin);
    buttons->addWidget(cancel);
    buttons->addStretch();
    buttons->addWidget(m_open);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0); // the browser has margins of its own
    column->addWidget(m_browser);
    column->addLayout(buttons);
}

/// Empty for a folder: one that has been opened stays selected until something else is.
QString FileDialog::selectedFile() const
{
    const QStringList paths = m_browser->selectedFiles();
    return paths.size() == 1 && QFileInfo(paths.first()).isFile() ? paths.first() : QString();
}

void FileDialog::showSelection()
{
    const QString file = selectedFile();
    m_open->setEnabled(!file.isEmpty());
    if (file.isEmpty()) {
        m_open->setText(tr("Open"));
        return;
    }
    const QString name = QFileInfo(file).fileName(); // may be too long for the screen
    m_open->setText(
        tr("Open %1").arg(fontMetrics().elidedText(name, Qt::ElideMiddle, width() / 3)));
}
//! [FileDialog]
