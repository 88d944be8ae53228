#include "GalleryWindow.h"

#include "GalleryPage.h"
#include "StyleSheetFile.h"
#include "Touch.h"

#include <QBoxLayout>
#include <QListWidget>
#include <QScrollArea>
#include <QToolButton>

namespace {

constexpr QSize screenSize(800, 480);
constexpr int listWidth = 150;

QToolButton* makeSwitch(const QString& text, const QString& name)
{
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setText(text);
    button->setCheckable(true);
    button->setMinimumSize(touch::fingerSize, touch::fingerSize);
    return button;
}

} // namespace

GalleryWindow::GalleryWindow(const QVector<PageEntry>& pages, const QString& styleSheet, QWidget* parent)
    : QWidget(parent)
    , m_pages(pages)
    , m_styleSheet(styleSheet.isEmpty() ? exampleStyleSheet() : styleSheet)
    , m_switches(nullptr)
    , m_list(new QListWidget)
    , m_pageArea(new QScrollArea)
{
    setWindowTitle(tr("Widget Gallery"));
    m_appearance.styleSheet = styleSheet;

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addLayout(makeSwitches());
    rows->addLayout(makeColumns(), 1);

    resize(screenSize); // Qt would shrink a size hint that takes most of the screen
    applyAppearance();
    fillList();
}

GalleryPage* GalleryWindow::page() const
{
    return qobject_cast<GalleryPage*>(m_pageArea->widget());
}

void GalleryWindow::showPage(const QString& id)
{
    for (int index = 0; index < m_pages.size(); ++index) {
        if (m_pages.at(index).id == id) {
            m_list->setCurrentRow(index);
            return;
        }
    }
}

QToolButton* GalleryWindow::addSwitch(const QString& text, const QString& name,
                                      bool Appearance::*member)
{
    QToolButton* button = makeSwitch(text, name);
    m_switches->addWidget(button);
    connect(button, &QToolButton::toggled, this, [this, member](bool on) {
        m_appearance.*member = on;
        applyAppearance();
    });
    return button;
}

QLayout* GalleryWindow::makeSwitches()
{
    m_switches = new QHBoxLayout;
    m_switches->setContentsMargins(4, 4, 4, 4);
    m_switches->setSpacing(4);
    addSwitch(tr("Dark"), QStringLiteral("darkSwitch"), &Appearance::dark);
    addSwitch(tr("Right to left"), QStringLiteral("rightToLeftSwitch"), &Appearance::rightToLeft);
    addSwitch(tr("Disabled"), QStringLiteral("disabledSwitch"), &Appearance::disabled);

    QToolButton* styleSheet = makeSwitch(tr("Style sheet"), QStringLiteral("styleSheetSwitch"));
    styleSheet->setChecked(!m_appearance.styleSheet.isEmpty());
    connect(styleSheet, &QToolButton::toggled, this, [this](bool on) {
        m_appearance.styleSheet = on ? m_styleSheet : QString();
        applyAppearance();
    });
    m_switches->addWidget(styleSheet);
    m_switches->addStretch();
    return m_switches;
}

QLayout* GalleryWindow::makeColumns()
{
    m_list->setObjectName(QStringLiteral("pageList"));
    m_list->setFixedWidth(listWidth);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    touch::makeScrollable(m_list);
    connect(m_list, &QListWidget::currentRowChanged, this, &GalleryWindow::makePage);

    m_pageArea->setWidgetResizable(true);
    m_pageArea->setFrameShape(QFrame::NoFrame);
    touch::makeScrollable(m_pageArea);

    auto* columns = new QHBoxLayout;
    columns->setSpacing(0);
    columns->addWidget(m_list);
    columns->addWidget(m_pageArea, 1);
    return columns;
}

void GalleryWindow::fillList()
{
    for (const PageEntry& entry : qAsConst(m_pages)) {
        auto* item = new QListWidgetItem(entry.title, m_list);
        item->setSizeHint(QSize(0, touch::fingerSize));
    }
    m_list->setCurrentRow(0);
}

void GalleryWindow::makePage(int index)
{
    GalleryPage* page = m_pages.at(index).create(nullptr);
    m_pageArea->setWidget(page); // deletes the one before
    m_appearance.applyToPage(*page);
}

void GalleryWindow::applyAppearance()
{
    m_appearance.applyToApplication();
    if (page())
        m_appearance.applyToPage(*page());
}
