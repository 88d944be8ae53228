#include "GalleryWindow.h"

#include "FlowLayout.h"
#include "GalleryPage.h"
#include "PageView.h"
#include "properties/PropertyEditor.h"
#include "StyleSheetFile.h"
#include "tools/Tools.h"
#include "Touch.h"

#include <Switch.h>

#include <QBoxLayout>
#include <QComboBox>
#include <QListWidget>
#include <QScrollArea>
#include <QStackedWidget>

namespace {

constexpr QSize screenSize(800, 480);
constexpr int listWidth = 140;
constexpr int toolWidth = 250; ///< Beside the page.
constexpr int choiceWidth = 150;
constexpr int spacing = 4;

/// In the order of their stack; the first choice is to have none.
enum Tool { NoTool, Properties, Code, Signals, StyleSheet };

} // namespace

GalleryWindow::GalleryWindow(const QVector<PageEntry>& pages, const QString& styleSheet,
                             QWidget* parent)
    : QWidget(parent)
    , m_pages(pages)
    , m_styleSheet(styleSheet.isEmpty() ? exampleStyleSheet() : styleSheet)
    , m_pageChoice(touch::makeComboBox())
    , m_list(new QListWidget)
    , m_pageArea(new QScrollArea)
    , m_toolChoice(touch::makeComboBox())
    , m_tools(new QStackedWidget)
    , m_properties(new PropertyEditor)
    , m_code(new CodeView)
    , m_log(new SignalLog)
    , m_styleSheetEditor(new StyleSheetEditor)
    , m_mark(new TargetMark(this))
    , m_picker(new DemoWidgetPicker(this))
{
    setWindowTitle(tr("Widget Gallery"));
    m_appearance.styleSheet = styleSheet;
    setUpPageChoices();
    setUpTools();
    m_pageArea->setWidgetResizable(true);
    m_pageArea->setFrameShape(QFrame::NoFrame);
    touch::makeScrollable(m_pageArea);

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(makeBar());
    rows->addLayout(makeColumns(), 1);
    resize(screenSize); // Qt would shrink a size hint that takes most of the screen

    applyAppearance();
    m_list->setCurrentRow(0);
}

GalleryWindow::~GalleryWindow()
{
    // QWidget hides the children of a visible window once this object is only a QWidget any more.
    m_properties->disconnect(this);
}

GalleryPage* GalleryWindow::page() const
{
    return m_page;
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

QSize GalleryWindow::sizeHint() const
{
    return screenSize;
}

void GalleryWindow::resizeEvent(QResizeEvent*)
{
    updateTool();
}

QWidget* GalleryWindow::makeBar()
{
    auto* bar = new QWidget;
    m_bar = new FlowLayout(bar);
    m_bar->setContentsMargins(spacing, spacing, spacing, spacing);
    m_bar->setSpacing(spacing);
    for (QComboBox* choice : {m_pageChoice, m_toolChoice}) {
        choice->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        choice->setFixedWidth(choiceWidth);
    }
    m_bar->addWidget(m_pageChoice);
    addAppearanceSwitch(tr("Dark"), QStringLiteral("darkSwitch"), &Appearance::dark);
    addAppearanceSwitch(tr("Right to left"), QStringLiteral("rightToLeftSwitch"),
                        &Appearance::rightToLeft);
    addAppearanceSwitch(tr("Disabled"), QStringLiteral("disabledSwitch"), &Appearance::disabled);
    m_styleSheetSwitch = addSwitch(tr("Style sheet"), QStringLiteral("styleSheetSwitch"),
                                   !m_appearance.styleSheet.isEmpty());
    connect(m_styleSheetSwitch, &Switch::toggled, this, &GalleryWindow::applyStyleSheet);
    m_bar->addWidget(m_toolChoice);
    return bar;
}

Switch* GalleryWindow::addSwitch(const QString& text, const QString& name, bool on)
{
    Switch* control = touch::makeSwitch(text);
    control->setObjectName(name);
    control->setChecked(on);
    m_bar->addWidget(control);
    return control;
}

void GalleryWindow::addAppearanceSwitch(const QString& text, const QString& name,
                                        bool Appearance::*member)
{
    const Switch* control = addSwitch(text, name, m_appearance.*member);
    connect(control, &Switch::toggled, this, [this, member](bool on) {
        m_appearance.*member = on;
        applyAppearance();
    });
}

QLayout* GalleryWindow::makeColumns()
{
    m_content = new QHBoxLayout;
    m_content->setSpacing(spacing);
    m_content->addWidget(m_pageArea, 1);
    m_content->addWidget(m_tools, 1);

    auto* columns = new QHBoxLayout;
    columns->setSpacing(0);
    columns->addWidget(m_list);
    columns->addLayout(m_content, 1);
    return columns;
}

void GalleryWindow::setUpPageChoices()
{
    m_list->setObjectName(QStringLiteral("pageList"));
    m_list->setFixedWidth(listWidth);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    touch::makeScrollable(m_list);
    m_pageChoice->setObjectName(QStringLiteral("pageChoice"));
    for (const PageEntry& entry : qAsConst(m_pages)) {
        m_list->addItem(entry.title);
        m_pageChoice->addItem(entry.title);
    }
    connect(m_list, &QListWidget::currentRowChanged, this, &GalleryWindow::makePage);
    connect(m_pageChoice, QOverload<int>::of(&QComboBox::activated), m_list,
            QOverload<int>::of(&QListWidget::setCurrentRow));
}

void GalleryWindow::setUpTools()
{
    m_toolChoice->setObjectName(QStringLiteral("toolChoice"));
    m_toolChoice->addItems(
        {tr("Page alone"), tr("Properties"), tr("Code"), tr("Signals"), tr("Style sheet")});
    m_toolChoice->setCurrentIndex(Properties);
    for (QWidget* tool :
         std::initializer_list<QWidget*>{m_properties, m_code, m_log, m_styleSheetEditor})
        m_tools->addWidget(tool);
    m_styleSheetEditor->setText(m_styleSheet);

    connect(m_toolChoice, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &GalleryWindow::chooseTool);
    connect(m_picker, &DemoWidgetPicker::picked, m_properties, &PropertyEditor::setTarget);
    connect(m_properties, &PropertyEditor::targetShown, this,
            [this](QWidget* target) { m_mark->mark(m_page, target); });
    connect(m_styleSheetEditor, &StyleSheetEditor::edited, this, [this](const QString& text) {
        m_styleSheet = text;
        if (m_styleSheetSwitch->isChecked())
            applyStyleSheet(true);
        else
            m_styleSheetSwitch->setChecked(true);
    });
}

void GalleryWindow::makePage(int index)
{
    m_mark->mark(nullptr, nullptr);
    m_mark->setParent(this); // it would go with the page
    m_log->reset();
    touch::stopScrolling(m_pageArea);

    const PageEntry& entry = m_pages.at(index);
    auto* view = new PageView(entry);
    m_page = view->page();
    m_appearance.applyToPage(*m_page);
    m_pageArea->setWidget(view); // deletes the one before
    m_pageChoice->setCurrentIndex(index);
    // The page is gone when the other has been made, so not at once.
    connect(m_page, &GalleryPage::pageRequested, this, &GalleryWindow::showPage,
            Qt::QueuedConnection);

    m_picker->setPage(m_page);
    m_properties->setDemoWidgets(m_page->demoWidgets());
    QStringList classes;
    for (const QString& name : entry.classes)
        classes.append(reference::shortName(name));
    m_code->setClasses(classes);
    listen();
    updateTool();
}

void GalleryWindow::applyAppearance()
{
    m_appearance.applyToApplication();
    if (m_page)
        m_appearance.applyToPage(*m_page);
}

void GalleryWindow::applyStyleSheet(bool on)
{
    m_appearance.styleSheet = on ? m_styleSheet : QString();
    applyAppearance();
    // Properties that a style sheet has set outlive it.
    if (!on && m_page)
        makePage(m_list->currentRow());
}

void GalleryWindow::chooseTool()
{
    const int tool = m_toolChoice->currentIndex();
    if (tool != NoTool)
        m_tools->setCurrentIndex(tool - 1);
    updateTool();
}

/// Properties are read beside the page as long as it is wide enough; lines of code and signals
/// below.
void GalleryWindow::updateTool()
{
    const bool isTall = height() > width();
    m_list->setVisible(!isTall);
    m_pageChoice->setVisible(isTall);

    const int tool = m_toolChoice->currentIndex();
    const bool isEmpty = tool == Properties && (!m_page || m_page->demoWidgets().isEmpty());
    m_tools->setVisible(tool != NoTool && !isEmpty);
    const bool isBeside = tool == Properties && !isTall;
    m_content->setDirection(isBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_content->setStretchFactor(m_tools, isBeside ? 0 : 1);
    m_tools->setFixedWidth(isBeside ? toolWidth : QWIDGETSIZE_MAX);
    if (!isBeside)
        m_tools->setMinimumWidth(0);
}

void GalleryWindow::listen()
{
    for (const GalleryPage::DemoWidget& demo : m_page->demoWidgets())
        m_log->listenTo(demo.widget, demo.name);
    for (const GalleryPage::Source& source : m_page->sources())
        m_log->listenTo(source.object, source.name);
}
