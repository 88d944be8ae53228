#include "GalleryWindow.h"

#include "DemoWidgetPicker.h"
#include "GalleryPage.h"
#include "properties/PropertyEditor.h"
#include "StyleSheetFile.h"
#include "Touch.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QListWidget>
#include <QScrollArea>

namespace {

constexpr QSize screenSize(800, 480);
constexpr int listWidth = 140;
constexpr int propertiesWidth = 250;
constexpr int spacing = 4;

} // namespace

GalleryWindow::GalleryWindow(const QVector<PageEntry>& pages, const QString& styleSheet,
                             QWidget* parent)
    : QWidget(parent)
    , m_pages(pages)
    , m_styleSheet(styleSheet.isEmpty() ? exampleStyleSheet() : styleSheet)
    , m_switches(new QHBoxLayout)
    , m_list(new QListWidget)
    , m_pageArea(new QScrollArea)
    , m_properties(new PropertyEditor)
    , m_propertiesSwitch(nullptr)
    , m_picker(new DemoWidgetPicker(this))
{
    setWindowTitle(tr("Widget Gallery"));
    m_appearance.styleSheet = styleSheet;
    setUpList();
    setUpPageArea();
    setUpProperties();

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addLayout(makeSwitches());
    rows->addLayout(makeColumns(), 1);
    resize(screenSize); // Qt would shrink a size hint that takes most of the screen

    applyAppearance();
    m_list->setCurrentRow(0);
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

QCheckBox* GalleryWindow::addSwitch(const QString& text, const QString& name, bool on)
{
    QCheckBox* box = touch::makeCheckBox(text);
    box->setObjectName(name);
    box->setChecked(on);
    m_switches->addWidget(box);
    return box;
}

void GalleryWindow::addAppearanceSwitch(const QString& text, const QString& name,
                                        bool Appearance::*member)
{
    const QCheckBox* box = addSwitch(text, name, m_appearance.*member);
    connect(box, &QCheckBox::toggled, this, [this, member](bool on) {
        m_appearance.*member = on;
        applyAppearance();
    });
}

QLayout* GalleryWindow::makeSwitches()
{
    m_switches->setContentsMargins(spacing, spacing, spacing, spacing);
    m_switches->setSpacing(spacing);
    addAppearanceSwitch(tr("Dark"), QStringLiteral("darkSwitch"), &Appearance::dark);
    addAppearanceSwitch(tr("Right to left"), QStringLiteral("rightToLeftSwitch"),
                        &Appearance::rightToLeft);
    addAppearanceSwitch(tr("Disabled"), QStringLiteral("disabledSwitch"), &Appearance::disabled);

    const QCheckBox* styleSheet = addSwitch(tr("Style sheet"), QStringLiteral("styleSheetSwitch"),
                                            !m_appearance.styleSheet.isEmpty());
    connect(styleSheet, &QCheckBox::toggled, this, [this](bool on) {
        m_appearance.styleSheet = on ? m_styleSheet : QString();
        applyAppearance();
    });

    m_switches->addStretch();
    m_propertiesSwitch = addSwitch(tr("Properties"), QStringLiteral("propertiesSwitch"), true);
    connect(m_propertiesSwitch, &QCheckBox::toggled, this, &GalleryWindow::updateProperties);
    return m_switches;
}

QLayout* GalleryWindow::makeColumns()
{
    auto* columns = new QHBoxLayout;
    columns->setSpacing(0);
    columns->addWidget(m_list);
    columns->addWidget(m_pageArea, 1);
    columns->addWidget(m_properties);
    return columns;
}

void GalleryWindow::setUpList()
{
    m_list->setObjectName(QStringLiteral("pageList"));
    m_list->setFixedWidth(listWidth);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    touch::makeItemsTall(m_list);
    touch::makeScrollable(m_list);
    for (const PageEntry& entry : qAsConst(m_pages))
        m_list->addItem(entry.title);
    connect(m_list, &QListWidget::currentRowChanged, this, &GalleryWindow::makePage);
}

void GalleryWindow::setUpPageArea()
{
    m_pageArea->setWidgetResizable(true);
    m_pageArea->setFrameShape(QFrame::NoFrame);
    touch::makeScrollable(m_pageArea);
}

void GalleryWindow::setUpProperties()
{
    m_properties->setFixedWidth(propertiesWidth);
    connect(m_picker, &DemoWidgetPicker::picked, m_properties, &PropertyEditor::setTarget);
}

void GalleryWindow::makePage(int index)
{
    GalleryPage* page = m_pages.at(index).create(nullptr);
    m_appearance.applyToPage(*page);
    touch::stopScrolling(m_pageArea);
    m_pageArea->setWidget(page); // deletes the one before
    m_picker->setPage(page);
    m_properties->setDemoWidgets(page->demoWidgets());
    updateProperties();
}

void GalleryWindow::applyAppearance()
{
    m_appearance.applyToApplication();
    if (page())
        m_appearance.applyToPage(*page());
}

void GalleryWindow::updateProperties()
{
    const bool hasDemoWidgets = page() && !page()->demoWidgets().isEmpty();
    m_propertiesSwitch->setEnabled(hasDemoWidgets);
    m_properties->setVisible(hasDemoWidgets && m_propertiesSwitch->isChecked());
}
